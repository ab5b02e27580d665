#include "members/beam_end_force_dialog.hpp"

#include <vector>

#include "members/beam_end_force.hpp"
#include "runtime/form.hpp"
#include "runtime/session.hpp"
#include "sections/profile_picker.hpp"
#include "sections/section_helper_dialogs.hpp"

namespace qorvat::members {
namespace {

std::vector<ControlDecl> controls() {
  // clang-format off
  return {
      label("Label1", "Z="),    text_box("Text1"),         label("Label5", "cm3"),
      label("Label2", "Fy="),   text_box("Text2", "2400"), label("Label6", "kgf/cm2"),
      label("Label3", "h="),    text_box("Text3"),         label("Label7", "cm"), label("Label8", "ارتفاع تير"),
      label("Label4", "Qb="),   text_box("Text4", "0.9"),  label("Label9", "ضريب کاهش مقاومت"),
      label("Label10", " مبحث دهم 1392"), label("Label11", " براساس بند 10-3-5-4 "),
      label("Label12", " مبحث دهم 1401"), label("Label13", "بند 10-3-3-2-10 و  3-12"),
      button("Command1", "Stahl"),
      button("Command3", "PG"),
      button("Command2", "Calculate"),
  };
  // clang-format on
}

// Only the first bolt design found gets the force; with none showing the dialog stays.
void calculate_and_hand_back(Form& me) {
  Session& s = me.session();
  const FlangeForceResult r =
      flange_force({.Z = me.val("Text1"), .Fy = me.val("Text2"), .Qb = me.val("Text4"), .h = me.val("Text3")});
  if (s.visible("Form17")) {
    s.field("Form17", "Text6").set_rounded(r.T / 1000, 2);
    s.close("Form21");
  } else if (s.visible("Form24")) {
    s.field("Form24", "Text6").set_rounded(r.T / 1000, 2);
    s.close("Form21");
  }
}

}  // namespace

DialogType beam_end_force_dialog(const DialogType& catalog_entry) {
  DialogType type = catalog_entry;
  type.controls.clear();
  type.handlers.clear();
  type.add(controls());
  type.on_click("Command1", [](Form& me, int) { sections::open_profile_picker(me.session(), {"ipe", 13, 13}); });
  type.on_click("Command3", [](Form& me, int) { sections::open_section_designer(me.session()); });
  type.on_click("Command2", [](Form& me, int) { calculate_and_hand_back(me); });
  return type;
}

}  // namespace qorvat::members
