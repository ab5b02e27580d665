#include "members/lateral_support_dialog.hpp"

#include <vector>

#include "members/fa_calculation.hpp"
#include "members/lateral_support.hpp"
#include "runtime/form.hpp"
#include "runtime/session.hpp"

namespace qorvat::members {
namespace {

std::vector<ControlDecl> controls() {
  // clang-format off
  return {
      label("Label1", "Pu="),    text_box("Text1"),       label("Label8", "ton"),   label("Label15", "نيروي محوري"),
      label("Label2", "Mr="),    text_box("Text2"),       label("Label9", "t.m"),   label("Label16", "لنگر تير اصلي"),
      label("Label3", "ho="),    text_box("Text3"),       label("Label10", "cm"),   label("Label17", "ارتفاع بال تا بال"),
      label("Label4", "Lb="),    text_box("Text4"),       label("Label11", "cm"),   label("Label18", "فاصله مهار ها"),
      label("Label5", "Teta="),  text_box("Text5", "45"), label("Label12", "deg"),  label("Label19", "زاويه با افق"),
      label("Label6", "L="),     text_box("Text6"),       label("Label13", "cm"),   label("Label20", "طول مهار"),
      text_box("Text8"),  // overall depth of the beam, cm
      text_box("Text9"),  // modulus of elasticity
      label("Label7", "Areq="),  text_box("Text7"),       label("Label14", "cm2"),  label("Label21", "سطح اوليه"),
      button("Command1", "Cal Areq"),
      button("Command2", "Check").disabled(),
  };
  // clang-format on
}

void calculate_area(Form& me) {
  const LateralBraceAreaResult r = lateral_brace_area({.Mr = me.val("Text2"),
                                                       .ho = me.val("Text3"),
                                                       .Lb = me.val("Text4"),
                                                       .th = me.val("Text5"),
                                                       .L = me.val("Text6"),
                                                       .E = me.val("Text9")});
  if (r.missing_input) {
    me.session().message_box("error in input data...!");
    return;
  }
  me.set_rounded("Text7", r.Areq, 2);
  me["Command2"].set_enabled(true);
}

// A new angle lays the brace anew over the beam's depth.
void follow_angle(Form& me) {
  const LateralBraceLength r = lateral_brace_length(me.val("Text8"), me.val("Text5"));
  if (r.applies) me.set_rounded("Text6", r.L, 2);
}

// The brace is checked as a pinned column of one shape over its own length.
void check_in_fa_calculation(Form& me) {
  open_fa_calculation_for_single_shape(me.session(), [&me](Form& fa) {
    fa.set_number("Text1", me.val("Text7"));  // A
    fa.set_number("Text5", 1);                // Kx
    fa.set_number("Text6", 1);                // Ky
    fa.set_number("Text7", me.val("Text6"));  // L
  });
}

}  // namespace

DialogType lateral_support_dialog(const DialogType& catalog_entry) {
  DialogType type = catalog_entry;
  type.controls.clear();
  type.handlers.clear();
  type.add(controls());
  type.on_change("Text5", [](Form& me, int) { follow_angle(me); });
  type.on_click("Command1", [](Form& me, int) { calculate_area(me); });
  type.on_click("Command2", [](Form& me, int) { check_in_fa_calculation(me); });
  return type;
}

}  // namespace qorvat::members
