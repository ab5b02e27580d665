#include "shell/program.hpp"

#include "shell/dialog_catalog.hpp"
#include "shell/main_menu.hpp"
#include "shell/navigation.hpp"
#include "concrete/ssi_dialog.hpp"
#include "loads/nonstructural_dialogs.hpp"
#include "loads/seismic_dialogs.hpp"
#include "members/check_section_dialog.hpp"
#include "members/compression_dialogs.hpp"
#include "members/effective_length_dialog.hpp"
#include "members/lateral_support_dialogs.hpp"
#include "sections/picker_callers.hpp"
#include "sections/profile_picker.hpp"
#include "sections/section_helpers.hpp"
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
  // The calculators replace their stand-ins with their full dialogs.
  sections::register_section_helpers(registry);
  members::register_compression_dialogs(registry);
  members::register_effective_length_dialog(registry);
  members::register_check_section_dialog(registry);
  members::register_lateral_support_dialogs(registry);
  loads::register_seismic_dialogs(registry);
  loads::register_nonstructural_dialogs(registry);
  concrete::register_ssi_dialog(registry);
  return registry;
}

}  // namespace qorvat
