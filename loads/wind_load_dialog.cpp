// Wind Load (Form53): the pressure on a facade element, re-run on every
// change of its inputs, and the wall post that carries it (Cal Zx).

#include <utility>

#include "loads/facade_wind.hpp"
#include "loads/nonstructural_dialog_parts.hpp"
#include "runtime/form.hpp"
#include "runtime/session.hpp"
#include "sections/section_helpers.hpp"

namespace qorvat::loads {
namespace {

constexpr const char* kPublication714 = "نشريه 714 ويرايش دوم";

Exposure chosen_exposure(const Form& me) {
  if (me["Option1"].selected()) return Exposure::Open;
  if (me["Option2"].selected()) return Exposure::Dense;
  return Exposure::Between;
}

void calculate(Form& me) {
  const FacadeWindResult r = facade_wind_pressure({.q = me.val("Text1"),
                                                   .Z = me.val("Text2"),
                                                   .Iw = me.val("Combo2"),
                                                   .Ct = me.val("Text4"),
                                                   .Cg = me.val("Text5"),
                                                   .Cp = me.val("Text6"),
                                                   .Cd = me.val("Text7"),
                                                   .Cpi = me.val("Text8"),
                                                   .Cgi = me.val("Text9"),
                                                   .exposure = chosen_exposure(me),
                                                   .openings = me["Check1"].ticked(),
                                                   .publication_714 = me["Check5"].ticked() || me["Check4"].ticked()});
  switch (r.check) {
    case FacadeWindCheck::MissingInput: me.session().message_box("error in input data...!"); return;
    case FacadeWindCheck::BasePressureTooLow:
      me.session().message_box(" حداقل فشار مبناي باد 0.3 کيلونيوتن بر مترمربع است");
      return;
    case FacadeWindCheck::Ok: break;
  }
  me.set_rounded("Text3", r.Ce, 2);
  me.set_rounded("Text10", r.P, 2);
  me.set_rounded("Text11", r.Pi, 2);
  me.set_rounded("Text12", r.Pt, 2);
}

// Every input change re-runs the pressure once the factors it multiplies are all there.
void recalculate(Form& me, bool needs_Cpi = false) {
  for (const char* key : {"Text2", "Text1", "Text4", "Text5", "Text6", "Text7", "Text9"}) {
    if (me.val(key) == 0) return;
  }
  if (needs_Cpi && me.val("Text8") == 0) return;
  calculate(me);
}

// Cpi of the opening case chosen, for openings facing the element or behind it.
void take_opening_case(Form& me) {
  struct OpeningCase {
    const char* option;
    const char* facing;
    const char* behind;
  };
  static constexpr OpeningCase kCases[] = {
      {"Option4", "0", "-0.15"}, {"Option5", "0.3", "-0.45"}, {"Option6", "0.7", "-0.7"}};
  for (const OpeningCase& c : kCases) {
    if (me[c.option].selected()) me.set_text("Text8", me["Check2"].ticked() ? c.facing : c.behind);
  }
}

// Facing and behind exclude each other, and one of them always holds:
// clearing the one that is set sets it again.
void opening_side(Form& me, const char* self, const char* other) {
  if (!me[self].ticked()) {
    if (!me[other].ticked()) me[self].set_value(1);
    return;
  }
  me[other].set_value(0);
  take_opening_case(me);
  recalculate(me, true);
}

// Publication 714 ties the importance factor and the directionality together
// and leaves the openings out.
void publication_714(Form& me, const char* self, const char* other, const char* field, const char* ticked_text,
                     const char* cleared_text) {
  if (me[self].ticked()) {
    me.set_text(field, ticked_text);
    me[other].set_value(1);
    me["Check1"].set_value(0);
  } else {
    me.set_text(field, cleared_text);
  }
  recalculate(me);
}

void importance_changed(Form& me) {
  if (me.val("Combo2") != 1.25) me["Check4"].set_value(0);
  recalculate(me);
}

void openings_clicked(Form& me) {
  const bool on = me["Check1"].ticked();
  if (on && (me["Check4"].ticked() || me["Check5"].ticked())) {
    me.session().message_box("اثر بازشو در نشريه 714 ديده نشده است");
  }
  me["Frame1"].set_enabled(on);
  recalculate(me);
}

void height_changed(Form& me) {
  if (me.val("Text2") > 60) me.session().message_box("بايد از روش ديناميکي استفاده شود");
  recalculate(me);
}

void directionality_changed(Form& me) {
  if (me.val("Text7") != 1) me["Check5"].set_value(0);
  recalculate(me);
}

}  // namespace

DialogType wind_load_dialog(DialogType type) {
  // clang-format off
  type.add({
      label("Label1", "q="),   text_box("Text1", "0.47"), label("Label2", "kN/m2"),
      label("Label3", "Z="),   text_box("Text2"), label("Label4", "m"),
      label("Label5", "Iw="),  combo_box("Combo2", {"0.8", "1.0", "1.1", "1.2"}, "1.0"),
      check_box("Check4", kPublication714),
      label("Label6", "Ce="),  text_box("Text3"),
      label("Label7", "Ct="),  text_box("Text4", "1"),
      label("Label8", "Cg="),  text_box("Text5", "2.5"),
      label("Label9", "Cp="),  text_box("Text6", "0.9"),
      label("Label10", "Cd="), text_box("Text7", "0.85"),
      check_box("Check5", kPublication714),
      option_button("Option1", "فضاي باز و ساحلي"),
      option_button("Option2", "فضاي متراکم و شهري"),
      option_button("Option3", "فضاي بينابين باز و متراکم"),
      check_box("Check1", "اثر بازشو ها لحاظ شود"),
      frame("Frame1", "Opening").disabled(),
  });
  type.add(inside("Frame1", {
      option_button("Option4", "بازشو کمتر از 0.1 نما"),
      option_button("Option5", "ساختمانهاي معمولي با پنجره هاي بازشو"),
      option_button("Option6", "بازشو هاي بزرگ"),
      check_box("Check2", "بازشو رو به نما").checked(),
      check_box("Check3", "بازشو پشت به نما"),
      label("Label11", "Cpi="), text_box("Text8", "0"),
      label("Label12", "Cgi="), text_box("Text9", "2"),
  }));
  type.add({
      button("Command1", "Calculate"),
      label("Label13", "P="),  text_box("Text10"), label("Label14", "kg/m2"),
      label("Label15", "Pi="), text_box("Text11"), label("Label16", "kg/m2"),
      label("Label17", "Pt="), text_box("Text12"), label("Label18", "kg/m2"),
      button("Command2", "Zx Cal"),
  });
  // clang-format on
  for (const char* field : {"Text1", "Text4", "Text5", "Text6", "Text8", "Text9"}) {
    type.on_change(field, [](Form& me, int) { recalculate(me); });
  }
  type.on_change("Text2", [](Form& me, int) { height_changed(me); });
  type.on_change("Text7", [](Form& me, int) { directionality_changed(me); });
  type.on_change("Combo2", [](Form& me, int) { importance_changed(me); });
  type.on_click("Combo2", [](Form& me, int) { importance_changed(me); });
  for (const char* exposure : {"Option1", "Option2", "Option3"}) {
    type.on_click(exposure, [](Form& me, int) { recalculate(me); });
  }
  for (const char* opening : {"Option4", "Option5", "Option6"}) {
    type.on_click(opening, [](Form& me, int) {
      take_opening_case(me);
      recalculate(me);
    });
  }
  type.on_click("Check1", [](Form& me, int) { openings_clicked(me); });
  type.on_click("Check2", [](Form& me, int) { opening_side(me, "Check2", "Check3"); });
  type.on_click("Check3", [](Form& me, int) { opening_side(me, "Check3", "Check2"); });
  type.on_click("Check4", [](Form& me, int) { publication_714(me, "Check4", "Check5", "Combo2", "1.25", "1.0"); });
  type.on_click("Check5", [](Form& me, int) { publication_714(me, "Check5", "Check4", "Text7", "1.0", "0.85"); });
  type.on_click("Command1", [](Form& me, int) { calculate(me); });
  type.on_click("Command2", [](Form& me, int) { sections::open_cal_zx(me.session()); });
  return type;
}

}  // namespace qorvat::loads
