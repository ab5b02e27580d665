// P Calculate (Form2): the shear a beam delivers, handed to the connection
// dialogs that are showing; and P selection (Form30), which chooses between
// it and the gravity load.

#include <utility>

#include "runtime/form.hpp"
#include "sections/section_helper_dialogs.hpp"
#include "sections/shear_capacity.hpp"

namespace qorvat::sections {
namespace {

// clang-format off
std::vector<ControlDecl> p_calculate_controls() {
  return {
      label("Label1", "Shear Area ="), text_box("Text1"), label("Label2", "cm2"),
      label("Label3", "Fy ="), text_box("Text2", "2400"), label("Label4", "kgf/cm2"),
      label("Label5", "Ry (ضريب افزايش مقاومت)="), text_box("Text3", "1"),
      label("Label6", "Cv.Q ="), text_box("Text6", "1"),
      text_box("Text4").hidden(),        // beam depth from the picker, cm
      text_box("Text5", "0").hidden(),   // 1 when the beam connection asked
      check_box("Check1", "مقاومت نهايي  "),
      check_box("Check2", "معادل وصله 1401"),
      button("Command1", "Calc..."), button("Command2", "Stahl"), button("Command3", "PG"),
  };
}
// clang-format on

void open_p_calculate(Form& me) {
  Session& s = me.session();
  me.set_text("Text5", s.form("Form1").text("Text39"));
  me["Check1"].set_enabled(me.val("Text5") != 1);
  if (s.visible("Form1")) me["Check1"].set_enabled(false);
  if (s.visible("Form12") && s.form("Form12")["Check1"].ticked()) {
    me["Check1"].set_value(1);
    me["Check1"].set_enabled(false);
  }
}

void calculate_p(Form& me) {
  Session& s = me.session();
  const ShearCapacityResult r = shear_capacity({.Aw = me.val("Text1"),
                                                .Fy = me.val("Text2"),
                                                .Ry = me.val("Text3"),
                                                .CvQ = me.val("Text6"),
                                                .ultimate = me["Check1"].ticked(),
                                                .splice_1401 = me["Check2"].ticked()});
  const double P = r.P / 1000;  // ton
  if (s.visible("Form1")) s.field("Form1", "Text1").set_rounded(P, 2);
  if (s.visible("Form12")) {
    Form& angle = s.form("Form12");
    angle.set_text("Text6", me.text("Text4"));
    angle.set_rounded("Text1", P, 2);
    angle["Check1"].set_value(me["Check1"].value());
  }
  if (s.visible("Form17")) s.field("Form17", "Text6").set_rounded(P, 2);
  if (s.visible("Form24")) s.field("Form24", "Text6").set_rounded(P, 2);
  me["Check1"].set_enabled(true);
  s.close("Form2");
}

void register_form2(DialogRegistry& registry) {
  DialogType type = catalog_entry(registry, "Form2");
  type.add(p_calculate_controls());
  type.on_open = open_p_calculate;
  type.on_click("Command1", [](Form& me, int) { calculate_p(me); });
  type.on_click("Command2", [](Form& me, int) { open_profile_picker(me.session(), kHelperStahl); });
  type.on_click("Command3", [](Form& me, int) { open_section_designer(me.session()); });
  registry.add(std::move(type));
}

void choose_p_source(Form& me) {
  Session& s = me.session();
  // The gravity dialog sets itself up for the beam connection when it opens, so it starts afresh.
  if (s.visible("Form1")) s.close("Form29");
  if (me["Option1"].selected()) {
    s.show("Form2");
    if (s.visible("Form12") && s.form("Form12")["Option1"].selected()) s.field("Form2", "Check1").set_value(1);
  }
  if (me["Option2"].selected()) s.show("Form29");
  s.close("Form30");
}

void register_form30(DialogRegistry& registry) {
  DialogType type = catalog_entry(registry, "Form30");
  type.add({option_button("Option1", "محاسبه بر اساس ظرفيت برشي").selected(),
            option_button("Option2", "محاسبه بر اساس بارگذاري"), button("Command1", "Calculate")});
  type.on_click("Command1", [](Form& me, int) { choose_p_source(me); });
  registry.add(std::move(type));
}

}  // namespace

void open_section_designer(Session& s) {
  s.show("Form15");
  s.field("Form15", "Command4").set_enabled(false);
}

void register_p_calculate(DialogRegistry& registry) {
  register_form2(registry);
  register_form30(registry);
}

}  // namespace qorvat::sections
