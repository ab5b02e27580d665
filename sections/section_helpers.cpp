#include "sections/section_helpers.hpp"

#include <string>
#include <utility>

#include "runtime/form.hpp"
#include "sections/section_helper_dialogs.hpp"

namespace qorvat::sections {
namespace {

// Until the caller is built in full, its stand-in gets the button that opens the helper.
void give_stand_in_opener(DialogRegistry& registry, const char* caller, ControlDecl button_decl,
                          void (*opener)(Session&)) {
  DialogType& type = *registry.find_mutable(caller);
  const std::string name = button_decl.name;
  if (type.handler(name, Event::Click) != nullptr) return;
  type.add(std::move(button_decl));
  type.on_click(name, [opener](Form& me, int) { opener(me.session()); });
}

}  // namespace

void open_p_selection(Session& s) {
  s.form("Form1").set_text("Text39", "1");
  s.show("Form30");
}

void open_m_calculate(Session& s) {
  s.show("Form3");
  if (s.form("Form1")["Check6"].ticked()) s.field("Form3", "Check1").set_value(1);
}

void register_section_helpers(DialogRegistry& registry) {
  register_p_calculate(registry);
  register_m_calculate(registry);
  register_cal_zx(registry);
  give_stand_in_opener(registry, "Form1", button("Command3", "P cal"), open_p_selection);
  give_stand_in_opener(registry, "Form1", button("Command4", "M Cal"), open_m_calculate);
  give_stand_in_opener(registry, "Form53", button("Command2", "Zx Cal"), open_cal_zx);
}

}  // namespace qorvat::sections
