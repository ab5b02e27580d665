// Non Structural Force (Form41): the seismic force on a non-structural member
// and its wall post, with the way on to the wind and tank calculators.

#include <utility>

#include "loads/nonstructural_dialog_parts.hpp"
#include "loads/nonstructural_force.hpp"
#include "runtime/form.hpp"
#include "runtime/session.hpp"

namespace qorvat::loads {
namespace {

void on_open(Form& me) {
  for (const char* combo : {"Combo1", "Combo2", "Combo3"}) me[combo].set_list_index(0);
  me["Option3"].set_selected(true);
}

// The member's height is taken at mid-storey below the roof.
void place_member_below_roof(Form& me) {
  const double H = me.val("Text7");
  const double h = me.val("Text5");
  if (H != 0 && h != 0) me.set_rounded("Text6", H - h / 2, 2);
}

// An exterior wall or a lift, and an unreinforced masonry partition, have their own behaviour factors.
void member_kind(Form& me, const char* Rpu) {
  me.set_text("Combo2", Rpu);
  me.set_text("Combo3", "1.0");
}

void calculate(Form& me) {
  const NonstructuralForceResult r = nonstructural_force({.A = me.val("Text1"),
                                                          .one_plus_S = me.val("Text2"),
                                                          .Wp = me.val("Text3"),
                                                          .Ip = me.val("Combo1"),
                                                          .Rpu = me.val("Combo2"),
                                                          .ap = me.val("Combo3"),
                                                          .Z = me.val("Text6"),
                                                          .H = me.val("Text7"),
                                                          .h = me.val("Text5")});
  switch (r.check) {
    case NonstructuralForceCheck::MissingInput: me.session().message_box("error in input data...!"); return;
    case NonstructuralForceCheck::ZAboveH: me.session().message_box("Z shuld not exceed the H!"); return;
    case NonstructuralForceCheck::Ok: break;
  }
  me.set_rounded("Text8", r.Vpu, 2);
  me.set_rounded("Text4", r.Mu, 2);
  me.set_rounded("Text9", r.Zx, 0);
  me.set_rounded("Text10", r.Sah, 2);
  me.set_rounded("Text11", r.Cn, 2);
  me.set_rounded("Text12", r.Saz, 2);
}

// A and 1+S come back from the seismic calculator when it closes; the
// period and the building frames are not its business here.
void ask_seismic_values(Form& me) {
  Session& s = me.session();
  s.show("Form26");
  s.form("Form26")["Frame4"].set_enabled(false);
  s.form("Form26")["Frame5"].set_enabled(false);
}

void go_to_tank(Form& me) {
  me.session().show("Form51");
  me.hide();
}

void go_to_wind(Form& me) {
  Session& s = me.session();
  const double Z = me.val("Text6");
  s.show("Form53");
  me.hide();
  if (Z != 0) s.form("Form53").set_number("Text2", Z);
}

}  // namespace

DialogType nonstructural_force_dialog(DialogType type) {
  // clang-format off
  type.add({
      label("Label1", "A="),    text_box("Text1"), label("Label2", "g"),
      label("Label3", "1+S="),  text_box("Text2"),
      button("Command1", "Cal"),
      label("Label4", "Wp="),   text_box("Text3"), label("Label5", "ton"),
      label("Label6", "Ip="),   combo_box("Combo1", {"1.0", "1.4"}, "1.0"),
      label("Label7", "Rpu="),  combo_box("Combo2", {"1.0", "1.5", "2.5", "3.5"}, "1.0"),
      label("Label8", "ap="),   combo_box("Combo3", {"1.0", "1.25", "2.5"}, "1.0"),
      option_button("Option1", "ديوار خارجي، آسانسور"),
      option_button("Option2", "تيغه غير مسلح  بنايي"),
      option_button("Option3", "غيره"),
      label("Label9", "Z="),    text_box("Text6"), label("Label10", "m"),
      label("Label11", "H="),   text_box("Text7"), label("Label12", "m"),
      label("Label13", "h="),   text_box("Text5", "3.0"), label("Label14", "m"),
      button("Command2", "Calculate"),
      label("Label15", "Vpu="), text_box("Text8"), label("Label16", "ton"),
      label("Label17", "Mu="),  text_box("Text4"), label("Label18", "ton.m"),
      label("Label19", "Zx="),  text_box("Text9"), label("Label20", "cm3"),
      label("Label21", "Sah="), text_box("Text10"), label("Label22", "g"),
      label("Label23", "Cn="),  text_box("Text11"),
      label("Label24", "Saz="), text_box("Text12"), label("Label25", "g"),
      button("Command3", "مخازن"),
      button("Command4", "بار باد"),
  });
  // clang-format on
  type.on_open = on_open;
  type.on_change("Text5", [](Form& me, int) { place_member_below_roof(me); });
  type.on_change("Text7", [](Form& me, int) { place_member_below_roof(me); });
  type.on_click("Option1", [](Form& me, int) { member_kind(me, "2.5"); });
  type.on_click("Option2", [](Form& me, int) { member_kind(me, "1.5"); });
  type.on_click("Command2", [](Form& me, int) { calculate(me); });
  type.on_click("Command1", [](Form& me, int) { ask_seismic_values(me); });
  type.on_click("Command3", [](Form& me, int) { go_to_tank(me); });
  type.on_click("Command4", [](Form& me, int) { go_to_wind(me); });
  return type;
}

}  // namespace qorvat::loads
