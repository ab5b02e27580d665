// The box of Check Section: its design, the recalculation from typed plate
// thicknesses, and the switches and ties that rerun them.

#include <string>

#include "members/check_section_box.hpp"
#include "members/check_section_parts.hpp"

namespace qorvat::members::check_section {
namespace {

constexpr const char* kTooSmall = "b & h Must be greater than 10 !";
// The smallest b and h the flange search can work with; 9.99 itself passes.
constexpr double kSmallestSide = 9.99;

bool box_missing(const Form& me) {
  return me.val("Text48") == 0 || me.val("Text11") == 0 || me.val("Text10") == 0 || me.val("Text9") == 0;
}

BoxSectionInput read_section(const Form& me, double tf, bool web_typed) {
  return {.code = box_code(me),
          .E = me.val("Text9"),
          .Fy = me.val("Text10"),
          .h = me.val("Text11"),
          .b = me.val("Text48"),
          .tf = tf,
          .tw = me.val("Text46"),
          .Fue = me.val("Text31"),
          .Q = me.val("Text27"),
          .web_typed = web_typed};
}

// Steps shared by the design and the recalculations: properties, shear, weld and shares.
void write_section(Form& me, KeptBox& kept, const BoxSection& r) {
  kept[me] = {r.Ix, r.Iy, r.Rw, r.Rf};
  me["Text28"].set_back_color(r.weld_too_large ? colors::kRed : colors::kGrey);
  me.set_rounded("Text50", r.flange_share, 2);
  me.set_rounded("Text51", r.web_share, 2);
  me.set_rounded("Text49", r.A, 2);
}

void write_moduli(Form& me, const BoxSection& r) {
  me.set_rounded("Text24", r.Zx, 2);
  me.set_rounded("Text25", r.Zy, 2);
  me.set_rounded("Text28", r.aw * 10, 0);  // mm
  me.set_rounded("Text29", r.Ix, 0);
  me.set_rounded("Text30", r.Iy, 0);
}

// A typed flange or web: the section follows, the limits and thicknesses stay.
void recalculate_box(Form& me, KeptBox& kept, bool web_typed) {
  const double tf = me.val("Text12");
  if (me.val("Text11") == 0 || tf == 0 || me.val("Text48") == 0 || me.val("Text10") == 0 || me.val("Text9") == 0) {
    return;
  }
  if (me["Check5"].ticked()) me.set_text("Text46", me.text("Text12"));
  const BoxSection r = box_section(read_section(me, tf, web_typed));
  write_section(me, kept, r);
  write_moduli(me, r);
}

void choose_edition(Form& me, KeptBox& kept, SeismicCode code) {
  const bool mabhas_1392 = code == SeismicCode::Mabhas1392;
  me.set_text("Text15", code == SeismicCode::Aisc341_16 ? "1.3" : "1.15");
  me["Text15"].set_enabled(!mabhas_1392);
  me.set_text("Text27", mabhas_1392 ? "0.75" : "1.0");
  if (code == SeismicCode::Mabhas1401) {
    me["Check3"].set_value(1);
    me["Check4"].set_value(0);
  } else {
    me["Check4"].set_enabled(true);
  }
  // The frame type only counts under 1392.
  for (const char* key : {"Frame3", "Option5", "Option6"}) me[key].set_enabled(mabhas_1392);
  me["Check5"].set_value(0);
  me.set_text("Text9", "2040000");
  design_box(me, kept);
}

// The ticked class box: high opens the frame type under 1392, medium closes it.
void choose_class(Form& me, KeptBox& kept, Ductility ductility) {
  const bool high = ductility == Ductility::High;
  const char* clicked = high ? "Check3" : "Check4";
  keep_exclusive(me, clicked, high ? "Check4" : "Check3");
  if (me[clicked].ticked()) {
    me["Check5"].set_value(0);
    if (!high || me["Option4"].selected()) {
      me["Option5"].set_enabled(high);
      me["Option6"].set_enabled(high);
    }
  }
  design_box(me, kept);
}

void tie_web_to_flange(Form& me) {
  if (!me["Check5"].ticked()) {
    me["Text46"].set_enabled(true);
    return;
  }
  if (me.val("Text12") == 0) return;
  me.set_text("Text46", me.text("Text12"));
  me["Text46"].set_enabled(false);
}

// While the square box is on, b and h follow each other.
void keep_square(Form& me, const char* edited, const char* other) {
  if (!me["Check6"].ticked()) return;
  me.set_text(other, me.text(edited));
  me["Check5"].set_value(0);
}

void choose_electrode(Form& me, KeptBox& kept) {
  const std::string& electrode = me.text("Combo1");
  if (electrode == "E60") me.set_text("Text31", "4200");
  if (electrode == "E70") me.set_text("Text31", "4900");
  recalculate_box(me, kept, true);
}

}  // namespace

void design_box(Form& me, KeptBox& kept) {
  if (box_missing(me)) return;
  if (me.val("Text48") < kSmallestSide || me.val("Text11") < kSmallestSide) {
    me.session().message_box(kTooSmall);
    return;
  }
  me["Check5"].set_enabled(true);
  me["Command10"].set_enabled(true);
  me["Check5"].set_value(0);
  tick_high_if_no_class(me, "Check3", "Check4");

  const BoxThicknesses plates = box_required_thicknesses(
      {.code = box_code(me),
       .ductility = box_ductility(me),
       .frame = me["Option5"].selected() ? FrameType::SpecialMoment : FrameType::SimpleWithSpecialBraces,
       .E = me.val("Text9"),
       .Fy = me.val("Text10"),
       .h = me.val("Text11"),
       .b = me.val("Text48"),
       .Ca = me.val("Text47"),
       .Ry = me.val("Text15"),
       .Ry_I_shape = me.val("Text14")});
  me.set_rounded("Text45", plates.lw, 2);
  me.set_rounded("Text46", plates.tw, 2);  // reruns the web recalculation with the flange still standing
  const BoxSection r = box_section(read_section(me, plates.tf, false));
  write_section(me, kept, r);
  me.set_rounded("Text12", plates.tf, 2);  // reruns the flange recalculation
  me.set_rounded("Text13", plates.lf, 2);
  write_moduli(me, r);
}

void add_box_routines(DialogType& type, const std::shared_ptr<KeptBox>& kept) {
  const auto design = [kept](Form& me, int) { design_box(me, *kept); };
  type.on_click("Command2", design);
  for (const char* key : {"Text9", "Text10", "Text15"}) type.on_change(key, design);
  type.on_change("Text11", [kept](Form& me, int) {
    keep_square(me, "Text11", "Text48");
    design_box(me, *kept);
  });
  // Meant for b, but Ca has it too: a Ca in its usual range waits for "Cal".
  type.on_change("Text48", [kept](Form& me, int) {
    keep_square(me, "Text48", "Text11");
    if (me.val("Text48") > kSmallestSide) design_box(me, *kept);
  });
  type.on_change("Text47", [kept](Form& me, int) {
    if (me.val("Text47") > kSmallestSide) design_box(me, *kept);
  });
  for (const char* key : {"Option5", "Option6"}) type.on_click(key, design);
  type.on_click("Option3", [kept](Form& me, int) { choose_edition(me, *kept, SeismicCode::Mabhas1401); });
  type.on_click("Option4", [kept](Form& me, int) { choose_edition(me, *kept, SeismicCode::Mabhas1392); });
  type.on_click("Option8", [kept](Form& me, int) { choose_edition(me, *kept, SeismicCode::Aisc341_16); });
  type.on_click("Check3", [kept](Form& me, int) { choose_class(me, *kept, Ductility::High); });
  type.on_click("Check4", [kept](Form& me, int) { choose_class(me, *kept, Ductility::Medium); });

  type.on_change("Text12", [kept](Form& me, int) { recalculate_box(me, *kept, false); });
  type.on_change("Text46", [kept](Form& me, int) { recalculate_box(me, *kept, true); });
  type.on_click("Check5", [](Form& me, int) { tie_web_to_flange(me); });
  type.on_click("Check6", [](Form& me, int) {
    if (me["Check6"].ticked() && me.val("Text11") != 0) me.set_text("Text48", me.text("Text11"));
  });
  // Picked from the list or typed, the electrode sets Fue and the weld follows.
  type.on_click("Combo1", [kept](Form& me, int) { choose_electrode(me, *kept); });
  type.on_change("Combo1", [kept](Form& me, int) { choose_electrode(me, *kept); });
  type.on_click("Picture1", [](Form& me, int) { me["Picture3"].set_visible(!me["Picture3"].visible()); });
}

}  // namespace qorvat::members::check_section
