// Closing Check Section hands the section to every calculator that opened it
// and still shows, whether the user closed with the window control or not.
// Which dialog comes back afterwards is the navigation rule's business.

#include "members/check_section_parts.hpp"

namespace qorvat::members::check_section {
namespace {

// Web height plus both flanges, and the web's shear coefficient times its factor.
struct IShapeFigures {
  double depth = 0, phiCv = 0;
};

IShapeFigures figures(const Form& me) {
  return {me.val("Text4") + 2 * me.val("Text5"), me.val("Text16") * me.val("Text22")};
}

void copy(Form& to, const char* to_key, const Form& from, const char* from_key) {
  to.set_text(to_key, from.text(from_key));
}

void to_m_calculate(Session& s, const Form& me, const IShapeFigures& f) {
  Form& m = s.form("Form3");
  copy(m, "Text2", me, "Text2");
  m.set_rounded("Text12", f.depth, 2);
  m["Text12"].set_enabled(false);
  copy(m, "Text13", me, "Text5");
  copy(m, "Text17", me, "Text26");
  copy(m, "Text14", me, "Text3");
  copy(m, "Text11", me, "Text6");
  const bool plastic = m["Check1"].ticked();
  copy(m, "Text1", me, plastic ? "Text20" : "Text21");
  if (plastic && me.val("Text20") != 0) m.set_text("Text3", "1.15");
  Form& beam_connection = s.form("Form1");
  if (f.phiCv != 0) beam_connection.set_rounded("Text41", f.phiCv, 2);
  beam_connection.set_rounded("Text18", f.depth, 2);
  copy(beam_connection, "Text26", me, "Text3");
}

void to_flange_force(Session& s, const Form& me, const IShapeFigures& f) {
  Form& t = s.form("Form21");
  copy(t, "Text2", me, "Text2");
  copy(t, "Text1", me, "Text20");
  t.set_rounded("Text3", f.depth, 2);
}

void to_link_beam(Session& s, const Form& me, const IShapeFigures& f) {
  Form& link = s.form("Form43");
  copy(link, "Text2", me, "Text5");
  copy(link, "Text3", me, "Text6");
  link.set_rounded("Text1", f.depth, 2);
  // Both flanges at the whole width 2b, and the web.
  link.set_rounded("Text21", me.val("Text4") * me.val("Text6") + 2 * me.val("Text5") * me.val("Text3"), 2);
  copy(link, "Text4", me, "Text26");
  copy(link, "Text5", me, "Text20");
}

void to_p_calculate(Session& s, const Form& me, const IShapeFigures& f) {
  Form& p = s.form("Form2");
  copy(p, "Text2", me, "Text2");
  p.set_rounded("Text1", f.depth * me.val("Text6"), 2);
  p.set_rounded("Text6", f.phiCv, 2);
}

// The column's plastic moment in ton.m: 1.1 Ry Fy Z of the half the base plate's column type names.
void to_base_plate(Session& s, const Form& me, const IShapeFigures& f) {
  Form& plate = s.form("Form36");
  if (plate["Option1"].selected()) {
    plate.set_rounded("Text49", 1.1 * me.val("Text14") * me.val("Text2") * me.val("Text20") / 100000, 2);
    copy(plate, "Text8", me, "Text3");
    plate.set_rounded("Text9", f.depth, 2);
  }
  if (plate["Option2"].selected()) {
    plate.set_rounded("Text49", 1.1 * me.val("Text15") * me.val("Text10") * me.val("Text24") / 100000, 2);
    copy(plate, "Text8", me, "Text11");
    plate.set_rounded("Text9", me.val("Text11") + 2 * me.val("Text12"), 2);
  }
}

}  // namespace

void hand_back(Form& me) {
  Session& s = me.session();
  const IShapeFigures f = figures(me);
  if (s.visible("Form3")) to_m_calculate(s, me, f);
  if (s.visible("Form21")) to_flange_force(s, me, f);
  if (s.visible("Form43")) to_link_beam(s, me, f);
  if (s.visible("Form2")) to_p_calculate(s, me, f);
  for (const char* rigid : {"Form27", "Form32"}) {
    if (s.visible(rigid) && me.val("Text16") != 0) s.field(rigid, "Text20").set_rounded(f.phiCv, 2);
  }
  if (s.visible("Form36")) to_base_plate(s, me, f);
  s.hide("Form67");
}

}  // namespace qorvat::members::check_section
