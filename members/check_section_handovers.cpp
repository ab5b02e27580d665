// The buttons of Check Section that open another calculator with the section
// built here: web control, column splice, effective length, fire protection,
// reduced beam section and lateral support.

#include <algorithm>
#include <cmath>

#include "members/check_section_parts.hpp"
#include "members/rbs.hpp"

namespace qorvat::members::check_section {
namespace {

// The brace at 45 degrees, entered as 45 * 3.1416 in degrees over 180.
const double kSin45 = std::sin(141.372 / 180);

void copy(Form& to, const char* to_key, const Form& from, const char* from_key) {
  to.set_text(to_key, from.text(from_key));
}

void web_control(Form& me) {
  me.session().show("Form34");
  me.hide();
}

void column_splice(Form& me, KeptBox& kept) {
  Session& s = me.session();
  s.show("Form35");
  Form& splice = s.form("Form35");
  copy(splice, "Text36", me, "Text50");
  copy(splice, "Text35", me, "Text51");
  copy(splice, "Text10", me, "Text10");
  copy(splice, "Text37", me, "Text10");
  // The splice names the axes the other way round.
  copy(splice, "Text24", me, "Text25");
  copy(splice, "Text9", me, "Text24");
  const KeptBoxValues& full = kept[me];
  splice.set_rounded("Text4", full.Ix, 2);
  splice.set_rounded("Text3", full.Iy, 2);
  splice.set_rounded("Text2", full.Rw, 2);
  splice.set_rounded("Text1", full.Rf, 2);
  const double h = me.val("Text11"), b = me.val("Text48"), tf = me.val("Text12"), Fy = me.val("Text10");
  if (h != 0) splice.set_rounded("Text5", h + 2 * tf, 2);
  if (b != 0) splice.set_number("Text6", b);
  if (tf != 0) {
    splice.set_rounded("Text7", tf + 2, 2);
    splice.set_rounded("Text17", tf - 0.2, 2);
  }
  if (Fy > 3000 || tf > 1.5) splice["Combo1"].set_list_index(1);  // E70
  me.hide();
}

void effective_length(Form& me) {
  Session& s = me.session();
  s.show("Form5");
  Form& k = s.form("Form5");
  copy(k, "Text36", me, "Text20");
  copy(k, "Text2", me, "Text26");
  copy(k, "Text4", me, "Text29");
  copy(k, "Text37", me, "Text24");
  copy(k, "Text52", me, "Text49");
  me.hide();
}

void fire_protection(Form& me) {
  Session& s = me.session();
  s.show("Form67");
  // The smaller of width and depth goes across; the test stays this way round.
  const double b = me.val("Text48"), depth = me.val("Text11") + 2 * me.val("Text12");
  Control& side = s.field("Form67", "Text10");
  if (b < depth) {
    side.set_number(b);
  } else {
    side.set_rounded(depth, 2);
  }
}

void reduced_beam_section(Form& me) {
  Session& s = me.session();
  s.show("Form56");
  Form& rbs = s.form("Form56");
  const double bf = me.val("Text3");
  const RbsRanges ranges = rbs_ranges(bf, me.val("Text4") + 2 * me.val("Text5"));
  rbs.set_rounded("Text15", bf, 2);
  rbs.set_number("Text1", ranges.a.minimum);
  rbs.set_number("Text3", ranges.a.maximum);
  rbs.set_number("Text4", ranges.b.minimum);
  rbs.set_number("Text6", ranges.b.maximum);
  rbs.set_number("Text7", ranges.c.minimum);
  rbs.set_number("Text9", ranges.c.maximum);
  rbs.set_rounded("Text14", me.val("Text20"), 2);
}

// What the lateral support needs of the beam: Pu, E, d, ho, Lb, Mr and the brace length.
// d is copied from a field where the beam has one, and worked out otherwise.
struct BraceFill {
  const char* Pu;
  const char* d_field;
  double d, ho;
  const char* Lb;
  double Mr, L;
};

void lateral_support(Form& me, const BraceFill& f) {
  Session& s = me.session();
  s.show("Form71");
  Form& brace = s.form("Form71");
  copy(brace, "Text1", me, f.Pu);
  copy(brace, "Text9", me, "Text1");
  if (f.d_field != nullptr) {
    copy(brace, "Text8", me, f.d_field);
  } else {
    brace.set_rounded("Text8", f.d, 2);
  }
  brace.set_rounded("Text3", f.ho, 2);
  copy(brace, "Text4", me, f.Lb);
  brace.set_rounded("Text2", f.Mr, 2);
  brace.set_rounded("Text6", f.L, 2);
}

void brace_built_up_beam(Form& me) {
  const double h = me.val("Text4"), t = me.val("Text5");
  lateral_support(me, {.Pu = "Text34",
                       .d_field = nullptr,
                       .d = h + 2 * t,
                       .ho = h + t,
                       .Lb = "Text33",
                       .Mr = me.val("Text14") * me.val("Text20") * me.val("Text2") / 100000,
                       .L = (2 * t + h) / kSin45});
}

void brace_rolled_beam(Form& me) {
  const double ht = me.val("Text35");
  lateral_support(me, {.Pu = "Text41",
                       .d_field = "Text35",
                       .d = ht,
                       .ho = ht - me.val("Text36"),
                       .Lb = "Text40",
                       .Mr = me.val("Text52") * me.val("Text38") * me.val("Text2") / 100000,
                       .L = ht / kSin45});
}

}  // namespace

void add_handovers(DialogType& type, const std::shared_ptr<KeptBox>& kept) {
  type.on_click("Command3", [](Form& me, int) { web_control(me); });
  type.on_click("Command4", [kept](Form& me, int) { column_splice(me, *kept); });
  type.on_click("Command9", [](Form& me, int) { effective_length(me); });
  type.on_click("Command10", [](Form& me, int) { fire_protection(me); });
  type.on_click("Command7", [](Form& me, int) { reduced_beam_section(me); });
  type.on_click("Command12", [](Form& me, int) { brace_built_up_beam(me); });
  type.on_click("Command11", [](Form& me, int) { brace_rolled_beam(me); });
}

}  // namespace qorvat::members::check_section
