// M Calculate (Form3): the probable moment and shear at a beam end, from the
// section modulus and the plastic hinge, for the rigid and web connections.
// This file holds the dialog and its switches; the calculation and its
// hand-backs are in m_calculate_hand_back.cpp.

#include <array>
#include <utility>

#include "runtime/form.hpp"
#include "sections/connection_demand.hpp"
#include "sections/section_helper_dialogs.hpp"

namespace qorvat::sections {
namespace {

// The labels that follow the ultimate-resistance switch, with their two captions.
struct SwitchedCaption {
  const char* label;
  const char* allowable;
  const char* ultimate;
};
constexpr std::array<SwitchedCaption, 6> kSwitchedCaptions{{
    {"Label1", "S (Section Module) =", "Z (Plastic Module) ="},
    {"Label7", "L1 =", "Sh ="},
    {"Label20", "Vo.L1=", "Vpr.Sh="},
    {"Label8", "Mw=", "Mwu="},
    {"Label22", "Vw=", "Vwu="},
    {"Label13", "(Wg.L1^2/2) , Wg= بارثقلي ", "(Wg.Sh^2/2) , Wg= بارثقلي ضريبدار"},
}};

// clang-format off
std::vector<ControlDecl> m_calculate_controls() {
  return {
      label("Label1", "S (Section Module) ="), text_box("Text1"), label("Label15", "cm3"),
      label("Label2", "Fy ="), text_box("Text2", "2400"), label("Label16", "kgf/cm2"),
      label("Label3", "Ry ="), text_box("Text3", "1.15"),
      label("Label4", "alpha ="), text_box("Text4", "0.66"),
      label("Label5", "Cpr ="), text_box("Text5", "1.1"),
      label("Label8", "Mw="), text_box("Text6"), label("Label10", "Kgf.cm").at(0),
      label("Label9", "Mg ="), text_box("Text7"), label("Label10", "Kgf.cm").at(1),
      label("Label13", "(Wg.L1^2/2) , Wg= بارثقلي "),
      label("Label6", "Fu="), text_box("Text8", "3600"), label("Label17", "kgf/cm2"),
      label("Label7", "L1="), text_box("Text9", "50"), label("Label18", "cm"),
      label("Label11", "Ln="), text_box("Text10", "500"), label("Label19", "cm"),
      label("Label14", "hb="), text_box("Text12"), label("Label12", "cm"),
      label("Label20", "Vo.L1="),
      label("Label22", "Vw="), text_box("Text15"), label("Label23", "kg"),
      // The rest of the rolled section, filled by the picker or by Check Section.
      text_box("Text11").hidden(), text_box("Text13").hidden(), text_box("Text14").hidden(),
      text_box("Text16").hidden(), text_box("Text17").hidden(),
      check_box("Check1", "مقاومت نهايي 92 و 01  "),
      check_box("Check2", "محاسبه خودکار"),
      label("Label21", "Mw = 2.alpha.Cpr.S.Ry.Fy.L1/(Ln-2.L1)"),
      check_box("Check3", "قاب خمشي متوسط ويرايش 1401"),
      button("Command1", "Calculate.."), button("Command2", "Stahl"), button("Command3", "Gravity Cal"),
      button("Command4", "PG"),
  };
}
// clang-format on

void write_ultimate_Cpr(Form& me) { me.set_rounded("Text5", ultimate_Cpr(me.val("Text2"), me.val("Text8")), 2); }

// Fy or Fu edited: the ultimate design follows with its Cpr. A field emptied
// on its way to a new value is left alone.
void follow_Cpr(Form& me) {
  if (me["Check1"].ticked() && me.val("Text2") != 0) write_ultimate_Cpr(me);
}

void switch_ultimate(Form& me) {
  const bool ultimate = me["Check1"].ticked();
  if (ultimate) {
    me.set_text("Text4", "1");
    const double S = me.val("Text1");
    if (S != 0) me.set_rounded("Text1", S * 1.13, 2);  // plastic modulus taken as 1.13 S
    write_ultimate_Cpr(me);
    me.set_text("Text3", "1.2");
  } else {
    me.set_rounded("Text1", me.val("Text1") / 1.13, 2);
    me.set_text("Text5", "1.1");
    me.set_text("Text3", "1.15");
  }
  me["Text4"].set_enabled(!ultimate);
  me["Text8"].set_enabled(ultimate);
  for (const auto& c : kSwitchedCaptions) me.set_text(c.label, ultimate ? c.ultimate : c.allowable);
}

void compute_face_moment(Form& me) {
  if (!me["Check2"].ticked()) return;
  const HingeShearMomentInput in{.S = me.val("Text1"),
                                 .Fy = me.val("Text2"),
                                 .Ry = me.val("Text3"),
                                 .alpha = me.val("Text4"),
                                 .Cpr = me.val("Text5"),
                                 .L1 = me.val("Text9"),
                                 .Ln = me.val("Text10"),
                                 .ultimate = me["Check1"].ticked()};
  if (in.S == 0 || in.L1 == 0 || in.alpha == 0 || in.Ry == 0 || in.Cpr == 0) {
    me.session().message_box(" ! تمام اطلاعات قبلي بايد وارد شده باشد");
    me["Check2"].set_value(0);
    return;
  }
  me.set_rounded("Text6", hinge_shear_moment(in), 2);
}

// An input of the face moment changed: the moment computed from it is stale.
void forget_face_moment(Form& me) {
  me.set_text("Text6", "");
  me["Check2"].set_value(0);
}

void open_m_calculate(Form& me) {
  Session& s = me.session();
  me["Text8"].set_enabled(false);
  me.set_text("Text11", s.form("Form10").text("Text8"));
  me["Check1"].set_value(me.val("Text11") == 1 ? 1 : 0);
  if (s.form("Form1")["Check6"].ticked()) me["Check1"].set_enabled(false);
}

void open_gravity_load(Form& me) {
  Session& s = me.session();
  Form& gravity = s.form("Form29");
  gravity.set_rounded("Text7", me.val("Text10") / 100, 2);  // cm -> m
  gravity.set_rounded("Text8", me.val("Text9") / 100, 2);
  gravity["Check1"].set_value(me["Check1"].value());
  if (s.visible("Form27")) {
    gravity["Check2"].set_visible(true);
    gravity["Check2"].set_value(1);
  }
  s.show("Form29");
}

}  // namespace

void register_m_calculate(DialogRegistry& registry) {
  DialogType type = catalog_entry(registry, "Form3");
  type.add(m_calculate_controls());
  type.on_open = open_m_calculate;
  type.on_click("Check1", [](Form& me, int) { switch_ultimate(me); });
  type.on_click("Check2", [](Form& me, int) { compute_face_moment(me); });
  type.on_click("Check3", [](Form& me, int) {
    if (me["Check3"].ticked()) {
      me.set_text("Text5", "1.1");
    } else {
      follow_Cpr(me);
    }
  });
  for (const char* field : {"Text1", "Text3", "Text4", "Text5", "Text9"}) {
    type.on_change(field, [](Form& me, int) { forget_face_moment(me); });
  }
  type.on_change("Text10", [](Form& me, int) {
    forget_face_moment(me);
    const double Ln = me.val("Text10");
    if (me["Text9"].enabled() && Ln > 0) me.set_rounded("Text9", Ln / 10, 0);
  });
  type.on_change("Text2", [](Form& me, int) { follow_Cpr(me); });
  type.on_change("Text8", [](Form& me, int) { follow_Cpr(me); });
  type.on_click("Command1", [](Form& me, int) { calculate_m(me); });
  type.on_click("Command2", [](Form& me, int) { open_profile_picker(me.session(), kHelperStahl); });
  type.on_click("Command3", [](Form& me, int) { open_gravity_load(me); });
  type.on_click("Command4", [](Form& me, int) { open_section_designer(me.session()); });
  registry.add(std::move(type));
}

}  // namespace qorvat::sections
