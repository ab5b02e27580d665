#include "shell/program.hpp"

#include "shell/dialog_catalog.hpp"
#include "shell/main_menu.hpp"
#include "shell/navigation.hpp"
#include "shell/selectors.hpp"

namespace qorvat {

DialogRegistry make_program_registry() {
  DialogRegistry registry;
  shell::register_dialog_catalog(registry);
  shell::register_navigation(registry);
  shell::register_main_menu(registry);
  shell::register_selectors(registry);
  return registry;
}

}  // namespace qorvat
