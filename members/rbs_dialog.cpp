#include "members/rbs_dialog.hpp"

#include <string>
#include <utility>
#include <vector>

#include "members/rbs.hpp"
#include "runtime/fault.hpp"
#include "runtime/form.hpp"
#include "runtime/session.hpp"

namespace qorvat::members {
namespace {

struct RangeRow {
  const char* minimum;
  const char* value;
  const char* maximum;
};
constexpr RangeRow kA{"Text1", "Text2", "Text3"};
constexpr RangeRow kB{"Text4", "Text5", "Text6"};
constexpr RangeRow kC{"Text7", "Text8", "Text9"};

// clang-format off
std::vector<ControlDecl> controls() {
  std::vector<ControlDecl> c;
  int next_label = 1;
  const auto numbered = [&next_label](const char* caption) {
    return label("Label" + std::to_string(next_label++), caption);
  };
  for (const auto& [caption, row] : {std::pair{"a (cm)", kA}, {"b (cm)", kB}, {"c (cm)", kC}}) {
    c.push_back(numbered(caption));
    c.push_back(text_box(row.minimum));
    c.push_back(numbered("<"));
    c.push_back(text_box(row.value));
    c.push_back(numbered("<"));
    c.push_back(text_box(row.maximum));
  }
  c.push_back(numbered("bf="));  c.push_back(text_box("Text15"));
  c.push_back(numbered("Zx="));  c.push_back(text_box("Text14"));
  c.push_back(numbered("اساس مقطع پلاستيک کاهش يافته"));           c.push_back(text_box("Text10"));
  c.push_back(numbered("نسبت مقاومت مقطع کاهش يافته"));            c.push_back(text_box("Text11"));
  c.push_back(numbered("فاصله مرکز مقطع کاهش يافته از بر ستون"));   c.push_back(text_box("Text12"));
  c.push_back(numbered("ضريب افزايش تغيير مکان جانبي نسبي"));       c.push_back(text_box("Text13"));
  c.push_back(numbered("شعاع مقطع کاهش يافته "));                   c.push_back(text_box("Text16"));
  c.push_back(button("Command1", "Cal"));
  return c;
}
// clang-format on

RbsRange read(const Form& me, const RangeRow& row) {
  return {me.val(row.minimum), me.val(row.value), me.val(row.maximum)};
}

// "Cal": the flange of Check Section is narrowed by the cut, Check Section
// recomputes with its thicknesses as they stand, and its plastic modulus comes back.
void calculate(Form& me) {
  Session& s = me.session();
  const RbsRange a = read(me, kA), b = read(me, kB), c = read(me, kC);
  for (const RbsRange* row : {&a, &b, &c}) {
    if (outside(*row)) {
      s.message_box("error in input data...!");
      return;
    }
  }
  Form& check = s.form("Form15");
  // Taken from this dialog's own width, so a second press narrows nothing further.
  check.set_rounded("Text3", reduced_flange_width(me.val("Text15"), c.value), 2);
  s.fire(check["Command8"], Event::Click);
  me.set_text("Text10", check.text("Text20"));
  me.set_rounded("Text11", checked_div(me.val("Text10"), me.val("Text14")), 2);
  me.set_rounded("Text12", rbs_centre_from_face(a.value, b.value), 2);
  me.set_rounded("Text13", rbs_drift_increase(c.value, c.maximum), 2);
  me.set_rounded("Text16", rbs_cut_radius(b.value, c.value), 2);
}

}  // namespace

DialogType rbs_dialog(const DialogType& catalog_entry) {
  DialogType type = catalog_entry;
  type.controls.clear();
  type.handlers.clear();
  type.add(controls());
  type.on_click("Command1", [](Form& me, int) { calculate(me); });
  return type;
}

}  // namespace qorvat::members
