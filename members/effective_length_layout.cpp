// The Effective Length dialog drawn as the three-storey cross: node A at the
// column's top, node B at its foot, a beam on each side and a column above and
// below. Each field comes after its label.
//
// A field taking the focus selects its whole text in the desktop front end;
// a headless session has no focus, so no routine stands for it here.

#include <string>
#include <utility>

#include "members/effective_length_fields.hpp"
#include "members/effective_length_parts.hpp"

namespace qorvat::members::effective_length {
namespace {

using Cell = std::pair<const char*, ControlDecl>;

ControlDecl numbered_label(int number, const char* caption) { return label("Label" + std::to_string(number), caption); }

void append(std::vector<ControlDecl>& to, std::vector<ControlDecl> more) {
  for (auto& c : more) to.push_back(std::move(c));
}

// Labels numbered from first_label, each followed by its field.
std::vector<ControlDecl> row(int first_label, std::vector<Cell> cells) {
  std::vector<ControlDecl> out;
  for (auto& [caption, field] : cells) {
    out.push_back(numbered_label(first_label++, caption));
    out.push_back(std::move(field));
  }
  return out;
}

std::vector<ControlDecl> beam_rows(int first_label, const char* side, const BeamFields& beam, const char* length_label,
                                   const char* cor_fac, const char* stiffness) {
  const auto& [L, I, Z] = beam.section;
  std::vector<ControlDecl> out{numbered_label(first_label, side)};
  append(out, row(first_label + 1, {{length_label, text_box(L)},
                                    {"I(cm^4)=", text_box(I)},
                                    {"Z(cm^3)=", text_box(Z)},
                                    {"زاويه(درجه)", text_box(beam.angle, "0")}}));
  append(out, {frame(beam.frame, "انتهاي دور تير"), option_button(beam.continuous, "ممتد").in(beam.frame),
               option_button(beam.fixed, "گيردار").in(beam.frame), option_button(beam.simple, "ساده").in(beam.frame)});
  append(out, row(first_label + 5, {{"Cor.Fac", text_box(cor_fac)}, {"(I/L)b=", text_box(stiffness)}}));
  return out;
}

// place is the column's heading; the columns of B's upper row only repeat the studied one.
std::vector<ControlDecl> column_rows(int first_label, const char* place, const Section& section,
                                     const char* length_label, const char* fa_Fy, const char* stiffness) {
  const auto& [L, I, Z] = section;
  std::vector<ControlDecl> out{numbered_label(first_label, place)};
  append(out, row(first_label + 1, {{length_label, text_box(L)},
                                    {"I(cm^4)=", text_box(I)},
                                    {"Z(cm^3)=", text_box(Z)},
                                    {"fa/Fy=", text_box(fa_Fy, "0.2")},
                                    {"(I/L)c=", text_box(stiffness)}}));
  return out;
}

}  // namespace

// clang-format off
std::vector<ControlDecl> controls() {
  std::vector<ControlDecl> c;
  c.push_back(label("Label1", "گره A"));
  append(c, beam_rows(2, "سمت راست", kRightOfA, "L(cm)=", "Text5", "Text6"));
  append(c, beam_rows(9, "سمت چپ", kLeftOfA, "L(cm)=", "Text13", "Text14"));
  append(c, column_rows(16, "بالا", kAboveA.section, "L(cm)=", "Text40", "Text7"));
  append(c, column_rows(22, "پايين", kStudied.section, "L(cm)=", "Text41", "Text12"));
  append(c, row(28, {{"Sum(I/L)b=", text_box("Text15")},
                     {"Sum(I/L)c=", text_box("Text16")},
                     {"GA=", text_box("Text17")},
                     {"MPc/MPb=", text_box("Text48")}}));

  c.push_back(label("Label32", "گره B"));
  append(c, beam_rows(33, "سمت راست", kRightOfB, "L(cm)=", "Text20", "Text21"));
  // The bottom row says metres, but its values are taken in cm like the rest.
  append(c, beam_rows(40, "سمت چپ", kLeftOfB, "L(m)=", "Text27", "Text28"));
  // The studied column shown again above B; Text24 holds the column sum at A.
  append(c, column_rows(47, "بالا", {"Text22", "Text23", "Text44"}, "L(cm)=", "Text42", "Text24"));
  append(c, column_rows(53, "پايين", kBelowB.section, "L(m)=", "Text45", "Text31"));
  append(c, row(59, {{"Sum(I/L)b=", text_box("Text33")}, {"Sum(I/L)c=", text_box("Text34")}, {"GB=", text_box("Text32")}}));
  append(c, row(65, {{"MPc/MPb=", text_box("Text49")}}));

  append(c, {frame("Frame5", "B-گره پاي ستون"),
             option_button(kContinuousColumn, "ستون ممتد ").in("Frame5"),
             option_button(kSimpleSupport, "تکيه گاه ساده").in("Frame5"),
             option_button(kFixedSupport, "تکيه گاه گيردار").in("Frame5"),
             frame("Frame6", "شرايط اتصال"),
             option_button(kAllMembers, "هيچكدام").in("Frame6"),
             option_button(kOneUpperBeam, "تير بالا يكي").in("Frame6"),
             option_button(kNoUpperColumn, "حذف ستون آخر").in("Frame6"),
             option_button(kOneLowerBeam, "تير پايين يكي").in("Frame6"),
             option_button(kOnePlusTwo, "1+2").in("Frame6"),
             option_button(kOnePlusThree, "1+3").in("Frame6")});

  append(c, row(62, {{"Fyc(kg/cm2)=", text_box("Text50", "2400")}, {"Fyb(kg/cm2)=", text_box("Text53", "2400")}}));
  c.push_back(text_box("Text52"));  // area of the column, for Fa Calculation
  c.push_back(check_box("Check1", "joint calculation"));
  append(c, row(64, {{"K=", text_box("Text35")}}));
  c.push_back(label("Label66", "روابط پايداري سازه"));
  append(c, row(67, {{"K=", text_box("Text51")}}));
  c.push_back(label("Label68", "مبحث 10 92 و 01"));

  append(c, {button("Command1", "Calculate K"), button("Command2", "ALL Same..!"), button("Command3", "Side Same"),
             button("Command4", "Cal Fa (Fcre)")});

  // Support sketches of the foot (Image1 fixed, Image2 simple), the far-end sketches,
  // and the lines of the cross; Line15 to Line17 are the members a condition can take out.
  for (int i = 1; i <= 10; ++i) c.push_back(image("Image" + std::to_string(i)).hidden());
  for (int i = 1; i <= 17; ++i) c.push_back(line("Line" + std::to_string(i)));
  return c;
}
// clang-format on

}  // namespace qorvat::members::effective_length
