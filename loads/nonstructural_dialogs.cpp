#include "loads/nonstructural_dialogs.hpp"

#include <utility>

#include "loads/nonstructural_dialog_parts.hpp"

namespace qorvat::loads {

void register_nonstructural_dialogs(DialogRegistry& registry) {
  const std::pair<const char*, DialogType (*)(DialogType)> dialogs[] = {
      {"Form41", nonstructural_force_dialog},
      {"Form53", wind_load_dialog},
      {"Form51", tank_force_dialog},
  };
  for (const auto& [name, build] : dialogs) {
    DialogType type = *registry.find(name);
    // What other calculators declared on the stand-in is part of the full dialog.
    type.controls.clear();
    type.handlers.clear();
    registry.add(build(std::move(type)));
  }
}

}  // namespace qorvat::loads
