#include "shell/program.hpp"

#include "shell/dialog_catalog.hpp"
#include "shell/main_menu.hpp"
#include "shell/navigation.hpp"
#include "sections/picker_callers.hpp"
#include "sections/profile_picker.hpp"
#include "shell/selectors.hpp"

namespace qorvat {

DialogRegistry make_program_registry() {
  DialogRegistry registry;
  shell::register_dialog_catalog(registry);
  shell::register_navigation(registry);
  shell::register_main_menu(registry);
  shell::register_selectors(registry);
  sections::register_profile_picker(registry);
  sections::register_picker_callers(registry);
  return registry;
}

}  // namespace qorvat
