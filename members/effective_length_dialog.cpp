#include "members/effective_length_dialog.hpp"

#include <utility>

#include "members/effective_length_parts.hpp"

namespace qorvat::members {

void register_effective_length_dialog(DialogRegistry& registry) {
  DialogType type = *registry.find("Form5");
  // Whatever stand-ins other dialogs needed here is declared again in its place.
  type.controls.clear();
  type.handlers.clear();
  type.add(effective_length::controls());
  effective_length::add_state_routines(type);
  type.on_click("Command1", [](Form& me, int) { effective_length::calculate_k(me); });
  type.on_click("Command2", [](Form& me, int) { effective_length::copy_all_same(me); });
  type.on_click("Command3", [](Form& me, int) { effective_length::copy_side_same(me); });
  type.on_click("Command4", [](Form& me, int) { hand_column_to_fa_calculation(me.session()); });
  registry.add(std::move(type));
}

}  // namespace qorvat::members
