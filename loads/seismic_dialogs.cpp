#include "loads/seismic_dialogs.hpp"

#include <utility>

#include "loads/standard_2800_parts.hpp"

namespace qorvat::loads {
namespace {

// Form25 only shows the standard's table of behaviour factors, as the
// picture it has always been, for the user to choose Ru from.
void register_behaviour_factor_table(DialogRegistry& registry) {
  DialogType type = *registry.find("Form25");
  type.controls.clear();
  type.handlers.clear();
  type.add(image("Image1").size(11000, 7000));
  registry.add(std::move(type));
}

}  // namespace

void register_seismic_dialogs(DialogRegistry& registry) {
  register_standard_2800(registry);
  register_behaviour_factor_table(registry);
}

}  // namespace qorvat::loads
