#include "members/alpha_cal.hpp"

#include "members/brace_angle.hpp"

namespace qorvat::members {
namespace {

void on_open(Form& me) {
  Session& s = me.session();
  if (s.visible("Form6")) {
    me["Check1"].set_value(1);
  } else if (s.visible("Form9")) {
    me["Check1"].set_value(0);
  }
}

// The corner connection's variant follows the brace: an X brace has neither of its V-brace options.
void on_x_brace_click(Form& me) {
  Session& s = me.session();
  if (!s.visible("Form6")) return;
  if (me["Check1"].ticked()) {
    for (const char* key : {"Check3", "Check4"}) {
      s.field("Form6", key).set_value(0);
      s.field("Form6", key).set_enabled(false);
    }
    me["Label8"].set_visible(false);
  } else {
    s.field("Form6", "Check3").set_value(1);
    me["Label8"].set_visible(true);
  }
}

void calculate(Form& me) {
  const BraceAngleResult r =
      brace_angle({.H = me.val("Text1"), .L = me.val("Text2"), .x_brace = me["Check1"].ticked()});
  if (r.missing_input) {
    me.session().message_box("error in input data...!");
    return;
  }
  me.set_rounded("Text3", r.Alpha, 0);
  me["Check1"].set_enabled(false);
}

void hand_back(Form& me) {
  Session& s = me.session();
  if (s.visible("Form9")) {
    s.field("Form9", "Text18").set_text(me.text("Text3"));
    s.field("Form9", "Text23").set_text(me.text("Text1"));
    s.field("Form9", "Text27").set_text(me.text("Text2"));
  } else {
    s.field("Form6", "Text10").set_text(me.text("Text3"));
    s.field("Form6", "Text30").set_text(me.text("Text1"));
    s.field("Form6", "Text36").set_text(me["Check1"].ticked() ? "1" : "0");
  }
  s.close("Form14");
}

}  // namespace

DialogType alpha_cal_dialog(const DialogType& catalog_entry) {
  DialogType type = catalog_entry;
  type.controls.clear();
  type.handlers.clear();
  // clang-format off
  type.add({
      label("Label1", "H="),      text_box("Text1"),
      label("Label2", "L="),      text_box("Text2"),
      label("Label3", "Alpha="),  text_box("Text3"),
      check_box("Check1", "X مهاربند"),
      label("Label8", "V مهاربند  "),
      button("Command1", "Cal"),
      button("Command2", "Ok"),
  });
  // clang-format on
  type.on_open = on_open;
  type.on_click("Check1", [](Form& me, int) { on_x_brace_click(me); });
  type.on_click("Command1", [](Form& me, int) { calculate(me); });
  type.on_click("Command2", [](Form& me, int) { hand_back(me); });
  return type;
}

void open_alpha_cal_for_v_brace(Session& s) {
  s.show("Form14");
  Form& alpha = s.form("Form14");
  alpha["Check1"].set_visible(false);
  alpha["Label8"].set_visible(true);
}

}  // namespace qorvat::members
