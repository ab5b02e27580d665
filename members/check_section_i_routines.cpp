// The I shape of Check Section: its design, the recalculation from thicknesses
// that stand on the dialog, the edition and class switches that rerun the
// design, and the bracing of a rolled IPE.

#include "members/check_section_i_shape.hpp"
#include "members/check_section_parts.hpp"
#include "sections/profile_picker.hpp"

namespace qorvat::members::check_section {
namespace {

IShapeSectionInput read_section(const Form& me) {
  return {.code = i_shape_code(me),
          .ductility = i_shape_ductility(me),
          .E = me.val("Text1"),
          .Fy = me.val("Text2"),
          .b = me.val("Text3") / 2,
          .h = me.val("Text4"),
          .t = me.val("Text5"),
          .tw = me.val("Text6"),
          .Ry = me.val("Text14")};
}

bool section_missing(const Form& me) {
  return me.val("Text1") == 0 || me.val("Text2") == 0 || me.val("Text3") == 0 || me.val("Text4") == 0;
}

void write_shear(Form& me, const WebShear& shear) {
  me.set_rounded("Text16", shear.Cv, 2);
  me.set_rounded("Text22", shear.factor, 2);
}

enum class IxFrom { Design, TypedThickness };

void write_section(Form& me, const IShapeSection& r, IxFrom ix) {
  me.set_rounded("Text20", r.Zx, 2);
  me.set_rounded("Text21", r.Sx, 2);
  me.set_rounded("Text23", r.A, 2);
  write_shear(me, r.shear);
  me.set_rounded("Text33", r.Lb, 2);
  me.set_rounded("Text34", r.Pbu / 1000, 2);
  me.set_rounded("Text19", r.rts, 2);
  me.set_rounded("Text18", r.Lp, 2);
  me.set_rounded("Text17", r.Lr, 2);
  me.set_rounded("Text26", ix == IxFrom::Design ? r.Ix : r.Ix_typed, 2);
}

// A thickness typed over the result: the section follows it, the limits stay.
void recalculate_typed(Form& me) {
  const IShapeSectionInput in = read_section(me);
  if (section_missing(me) || in.tw == 0) return;
  if (in.t == 0) {
    write_shear(me, i_shape_web_shear(in.code, in.E, in.Fy, in.h, in.tw));
    return;
  }
  write_section(me, i_shape_section(in), IxFrom::TypedThickness);
}

void ipe_bracing(Form& me) {
  const IpeBracing r = ipe_unbraced_length({.code = i_shape_code(me),
                                            .ductility = i_shape_ductility(me),
                                            .E = me.val("Text1"),
                                            .Fy = me.val("Text2"),
                                            .ht = me.val("Text35"),
                                            .t = me.val("Text36"),
                                            .Sx = me.val("Text37"),
                                            .Zx = me.val("Text38"),
                                            .ry = me.val("Text39"),
                                            .Iy = me.val("Text44"),
                                            .Ry = me.val("Text52"),
                                            .Ry_I_shape = me.val("Text14")});
  if (r.missing_input) me.session().message_box("error in input data...!");
  me.set_rounded("Text40", r.Lb, 2);
  me.set_rounded("Text41", r.Pbu / 1000, 2);
  me.set_rounded("Text42", r.Lr, 2);
  me.set_rounded("Text43", r.Lp, 2);
  me["Command11"].set_enabled(true);
}

void enable_lengths(Form& me) {
  for (const char* key : {"Text17", "Text18", "Text19"}) me[key].set_enabled(true);
}

void choose_1401(Form& me) {
  me["Text14"].set_enabled(true);
  me.set_text("Text14", "1.15");
  me["Check1"].set_value(1);
  me["Check2"].set_value(0);
  design_i_shape(me);
}

void choose_1392(Form& me) {
  me["Check2"].set_enabled(true);
  me.set_text("Text1", "2040000");
  enable_lengths(me);
  design_i_shape(me);
}

void choose_aisc(Form& me) {
  me["Text14"].set_enabled(true);
  me.set_text("Text14", "1.3");
  me["Check2"].set_enabled(true);
  me.set_text("Text1", "2040000");
  enable_lengths(me);
  design_i_shape(me);
}

}  // namespace

void design_i_shape(Form& me) {
  if (section_missing(me)) return;
  Session& s = me.session();
  me["Command12"].set_enabled(true);
  me["Command7"].set_enabled(true);
  if (!any_showing(s, {"Form32", "Form27", "Form1"})) me["Command3"].set_enabled(true);
  tick_high_if_no_class(me, "Check1", "Check2");

  const IShapeThicknesses limits = i_shape_required_thicknesses({.code = i_shape_code(me),
                                                                 .ductility = i_shape_ductility(me),
                                                                 .E = me.val("Text1"),
                                                                 .Fy = me.val("Text2"),
                                                                 .two_b = me.val("Text3"),
                                                                 .h = me.val("Text4"),
                                                                 .Ca = me.val("Text32"),
                                                                 .Ry = me.val("Text14")});
  // Each write reruns the typed-thickness recalculation before the design goes on.
  me.set_rounded("Text5", limits.t, 2);
  me.set_rounded("Text6", limits.tw, 2);
  me.set_rounded("Text7", limits.lf, 2);
  me.set_rounded("Text8", limits.lw, 2);
  IShapeSectionInput in = read_section(me);
  in.t = limits.t;
  write_section(me, i_shape_section(in), IxFrom::Design);
}

void recalculate_i_shape(Form& me) {
  IShapeSectionInput in = read_section(me);
  if (section_missing(me) || in.tw == 0) return;
  // Unlike the design, this one leaves the web control open beside the beam connection.
  if (!any_showing(me.session(), {"Form32", "Form27"})) me["Command3"].set_enabled(true);
  me["Command7"].set_enabled(true);
  tick_high_if_no_class(me, "Check1", "Check2");
  in.ductility = i_shape_ductility(me);
  write_section(me, i_shape_section(in), IxFrom::Design);
}

void add_i_shape_routines(DialogType& type) {
  type.on_click("Command1", [](Form& me, int) { design_i_shape(me); });
  type.on_click("Command8", [](Form& me, int) { recalculate_i_shape(me); });
  for (const char* key : {"Text5", "Text6"}) type.on_change(key, [](Form& me, int) { recalculate_typed(me); });
  type.on_change("Text14", [](Form& me, int) { design_i_shape(me); });
  type.on_click("Option1", [](Form& me, int) { choose_1401(me); });
  type.on_click("Option2", [](Form& me, int) { choose_1392(me); });
  type.on_click("Option7", [](Form& me, int) { choose_aisc(me); });
  type.on_click("Check1", [](Form& me, int) {
    keep_exclusive(me, "Check1", "Check2");
    design_i_shape(me);
  });
  type.on_click("Check2", [](Form& me, int) {
    keep_exclusive(me, "Check2", "Check1");
    design_i_shape(me);
  });
  type.on_click("Command5", [](Form& me, int) { sections::open_profile_picker(me.session(), {"ipe", 13, 13}); });
  type.on_click("Command6", [](Form& me, int) { ipe_bracing(me); });
}

}  // namespace qorvat::members::check_section
