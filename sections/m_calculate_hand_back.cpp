// M Calculate's "Calculate..": the demand at the beam end, written into each
// connection dialog that is showing, then the dialog hides.

#include <string>

#include "runtime/fault.hpp"
#include "runtime/form.hpp"
#include "runtime/value_rules.hpp"
#include "sections/connection_demand.hpp"
#include "sections/section_helper_dialogs.hpp"

namespace qorvat::sections {
namespace {

ConnectionDemandInput read_demand(const Form& me) {
  return {.S = me.val("Text1"),
          .Fy = me.val("Text2"),
          .Ry = me.val("Text3"),
          .alpha = me.val("Text4"),
          .Cpr = me.val("Text5"),
          .Mw = me.val("Text6"),
          .Mg = me.val("Text7"),
          .Vw = me.val("Text15"),
          .L1 = me.val("Text9"),
          .Ln = me.val("Text10"),
          .hb = me.val("Text12"),
          .s = me.val("Text11"),
          .t = me.val("Text13"),
          .Ix = me.val("Text17"),
          .ultimate = me["Check1"].ticked()};
}

// The newer rules want the connection shear at least up to the web's strength.
void warn_if_below_web_strength(Session& s, const ConnectionDemandResult& r) {
  if (r.Ve < r.Vm) {
    s.message_box(rounded_text(r.Vm / 1000, 2) + " " + "ton <--  برش تير از ضابطه جديد مبحث دهم کمتر شده است");
  }
}

void hand_to_beam_connection(Session& s, const Form& me, const ConnectionDemandInput& in,
                             const ConnectionDemandResult& r) {
  Form& f = s.form("Form1");
  f.set_rounded("Text17", r.M / 100000, 2);
  f.set_rounded("Text13", in.Fy, 2);
  f.set_rounded("Text1", in.ultimate ? r.Vt / 1.5 : r.Vt, 2);
  const bool intermediate_frame = me["Check3"].ticked();
  f["Label74"].set_visible(intermediate_frame);
  if (intermediate_frame) {
    f["Check5"].set_enabled(false);
    f["Check5"].set_value(0);
    f.set_number("Text21", 1);
    f.set_number("Text36", 1);
  } else {
    f["Check5"].set_enabled(true);
    f.set_number("Text21", 0.85);
    f.set_number("Text36", 0.75);
  }
  f["Check6"].set_value(me["Check1"].value());
  f["Check6"].set_enabled(false);
  s.field("Form10", "Check2").set_value(me["Check1"].value());
  if (f.val("Text18") == 0) {
    f.set_number("Text18", in.hb);
    f.set_number("Text26", in.t);  // the flange thickness, as it has always been passed
  }
}

void hand_to_welded_rigid(Session& s, const Form& me, const ConnectionDemandInput& in,
                          const ConnectionDemandResult& r) {
  Form& f = s.form("Form27");
  f.set_number("Text2", in.hb);
  f.set_number("Text18", me.val("Text14"));
  f.set_number("Text23", me.val("Text16"));
  f.set_number("Text17", in.t);
  warn_if_below_web_strength(s, r);
  f.set_rounded("Text1", r.Ve / 1000, 2);
  f.set_rounded("Text27", r.Ve / 1000, 2);
  f.set_rounded("Text32", r.Vm / 1000, 2);
  f.set_rounded("Text28", r.Mweb / 100000, 2);
  f.set_rounded("Text30", in.Fy * in.S / 100000, 2);
  f.set_number("Text4", in.Fy);
  f.set_number("Text5", in.S);
  f.set_rounded("Text6", r.Mp / 100000, 2);
  f.set_rounded("Text31", r.Mp / 100000, 2);
  f.set_rounded("Text16", me["Check3"].ticked() ? 1.0 : checked_div(1.4, in.Cpr), 2);
  f.set_text("Text8", "");
}

void hand_to_bolted_rigid(Session& s, const Form& me, const ConnectionDemandInput& in,
                          const ConnectionDemandResult& r) {
  Form& f = s.form("Form32");
  f.set_number("Text2", in.hb);
  f.set_number("Text18", me.val("Text14"));
  f.set_number("Text17", in.t);
  f.set_rounded("Text1", r.V32 / 1000, 2);
  f.set_number("Text4", in.Fy);
  f.set_number("Text5", in.S);
  const double Mu = round_half_even(r.M / 100000, 2);  // ton.m, as the field shows it
  f.set_number("Text6", Mu);
  f.set_rounded("Text8", Mu * 100 / in.hb, 2);  // flange force, ton
}

}  // namespace

void calculate_m(Form& me) {
  Session& s = me.session();
  const ConnectionDemandInput in = read_demand(me);
  if (in.S == 0 || in.hb == 0) {
    s.message_box("Error in input data..! ");
    return;
  }
  const ConnectionDemandResult r = connection_demand(in);

  if (s.visible("Form1")) hand_to_beam_connection(s, me, in, r);
  if (s.visible("Form17")) s.field("Form17", "Text6").set_rounded(r.Ve / 1000, 2);
  if (s.visible("Form24")) s.field("Form24", "Text6").set_rounded(r.Ve / 1000, 2);
  if (s.visible("Form27")) hand_to_welded_rigid(s, me, in, r);
  if (s.visible("Form32")) hand_to_bolted_rigid(s, me, in, r);
  if (s.visible("Form19")) {
    warn_if_below_web_strength(s, r);
    s.field("Form19", "Text21").set_rounded(r.Ve / 1000, 2);
  }
  me.hide();
}

}  // namespace qorvat::sections
