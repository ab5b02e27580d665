// What Check Section hands over and back: on closing to each caller that
// shows (two at once included) and whether the menu comes back; and by its
// buttons to the column splice, effective length, fire protection and web control.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "check_section_road.hpp"

namespace qorvat {
namespace {

using testing::CheckSectionRoad;
using testing::Texts;

// Both halves designed (see the dialog tests): overall depth 50 + 2 * 1.71 = 53.42, phiCv = 1 * 0.9.
struct Caller {
  const char* form;
  std::function<void(CheckSectionRoad&)> prepare;
  Texts expected;
};

std::vector<Caller> callers() {
  const auto nothing = [](CheckSectionRoad&) {};
  return {
      {"Form3",
       nothing,
       {{"Form3.Text2", "2400"},
        {"Form3.Text12", "53.42"},
        {"Form3.Text13", "1.71"},
        {"Form3.Text17", "35814.85"},
        {"Form3.Text14", "30"},
        {"Form3.Text11", "0.7"},
        {"Form3.Text1", "2841.74"},
        {"Form3.Text3", "1.15"},
        {"Form1.Text41", "0.9"},
        {"Form1.Text18", "53.42"},
        {"Form1.Text26", "30"}}},
      // Plastic: Z goes, and Ry 1.2 of the ultimate switch is put back to 1.15.
      {"Form3",
       [](CheckSectionRoad& r) { r.click("Form3.Check1"); },
       {{"Form3.Text1", "3090.22"}, {"Form3.Text3", "1.15"}}},
      {"Form21", nothing, {{"Form21.Text2", "2400"}, {"Form21.Text1", "3090.22"}, {"Form21.Text3", "53.42"}}},
      // Area 50 * 0.7 + 2 * 1.71 * 30: both flanges at the whole width.
      {"Form43",
       nothing,
       {{"Form43.Text2", "1.71"},
        {"Form43.Text3", "0.7"},
        {"Form43.Text1", "53.42"},
        {"Form43.Text21", "137.6"},
        {"Form43.Text4", "35814.85"},
        {"Form43.Text5", "3090.22"}}},
      {"Form2", nothing, {{"Form2.Text2", "2400"}, {"Form2.Text1", "37.39"}, {"Form2.Text6", "0.9"}}},  // 53.42 * 0.7
      {"Form27", nothing, {{"Form27.Text20", "0.9"}}},
      {"Form32", nothing, {{"Form32.Text20", "0.9"}}},
      // No shear under AISC: the rigid connection keeps its own.
      {"Form27", [](CheckSectionRoad& r) { r.click("Form15.Option7"); }, {{"Form27.Text20", "1"}}},
      // Box column (the default): 1.1 * 1.15 * 2400 * 2354.23 / 1e5; depth 40 + 2 * 1.53.
      {"Form36", nothing, {{"Form36.Text49", "71.47"}, {"Form36.Text8", "40"}, {"Form36.Text9", "43.06"}}},
      // H column: 1.1 * 1.15 * 2400 * 3090.22 / 1e5.
      {"Form36",
       [](CheckSectionRoad& r) { r.click("Form36.Option1"); },
       {{"Form36.Text49", "93.82"}, {"Form36.Text8", "30"}, {"Form36.Text9", "53.42"}}},
  };
}

TEST(CheckSectionHandBacks, EachCallerThatShowsGetsTheSection) {
  for (const Caller& caller : callers()) {
    CheckSectionRoad r;
    r.s.show(caller.form);
    r.design_beam();
    r.design_box();
    caller.prepare(r);
    r.s.user_close("Form15");
    r.expect(caller.expected, caller.form);
    EXPECT_EQ(r.s.state("Form15"), FormState::Destroyed) << caller.form;
    EXPECT_EQ(r.s.state("Form4"), FormState::Hidden) << caller.form;
    EXPECT_TRUE(r.faults().empty()) << caller.form;
  }
}

TEST(CheckSectionHandBacks, TwoCallersBothGetIt) {
  CheckSectionRoad r;
  r.s.show("Form2");
  r.s.show("Form3");
  r.design_beam();
  r.s.user_close("Form15");
  r.expect({{"Form2.Text1", "37.39"}, {"Form3.Text12", "53.42"}, {"Form3.Text1", "2841.74"}}, "both");
  EXPECT_FALSE(r.at("Form3.Text12").enabled());  // the depth is locked once it came from here
}

TEST(CheckSectionHandBacks, ClosedFromTheMenuNothingIsWrittenAndTheMenuReturns) {
  CheckSectionRoad r;
  r.design_beam();
  r.design_box();
  r.click("Form15.Command10");  // fire protection shows beside it
  r.s.user_close("Form15");
  EXPECT_EQ(r.s.state("Form4"), FormState::Showing);
  EXPECT_EQ(r.s.state("Form67"), FormState::Hidden);
  // The callers were asked, so they exist now, with their defaults.
  r.expect({{"Form2.Text1", ""}, {"Form27.Text20", "1"}, {"Form43.Text21", ""}}, "untouched");
}

TEST(CheckSectionHandBacks, AnyOfTheseShowingKeepsTheMenuAway) {
  for (const char* form :
       {"Form2", "Form3", "Form21", "Form27", "Form32", "Form36", "Form6", "Form9", "Form35", "Form43"}) {
    CheckSectionRoad r;
    r.s.show(form);
    r.s.user_close("Form15");
    EXPECT_EQ(r.s.state("Form4"), FormState::Hidden) << form;
    EXPECT_EQ(r.s.state(form), FormState::Showing) << form;
  }
}

TEST(CheckSectionHandOvers, ColumnSpliceTakesTheFullFiguresAndItsElectrode) {
  CheckSectionRoad r;
  r.design_box();
  r.pick("Form35.Combo1", 0);
  r.click("Form15.Command4");
  EXPECT_EQ(r.s.state("Form15"), FormState::Hidden);
  // Ix as kept in full (shown 45574); tf 1.53 is above 1.5, so E70.
  r.expect({{"Form35.Text4", "45574.04"}, {"Form35.Text24", "1347.96"}, {"Form35.Combo1", "E70"}}, "box");
  const struct {
    const char* Fy;
    const char* electrode;
  } rows[] = {{"3000", "E60"}, {"3001", "E70"}};  // b = 10 keeps tf near 0.5
  for (const auto& row : rows) {
    CheckSectionRoad small;
    small.enter({{"Form15.Text10", row.Fy}, {"Form15.Text11", "40"}, {"Form15.Text48", "10"}});
    small.pick("Form35.Combo1", 0);
    small.click("Form15.Command4");
    small.expect({{"Form35.Combo1", row.electrode}}, row.Fy);
  }
  CheckSectionRoad blank;  // no box yet: the sizes are left as they are
  blank.click("Form15.Command4");
  blank.expect({{"Form35.Text5", ""}, {"Form35.Text6", ""}, {"Form35.Text7", ""}, {"Form35.Text4", "0"}}, "blank");
}

TEST(CheckSectionHandOvers, EffectiveLengthAndFireProtection) {
  CheckSectionRoad r;
  r.design_beam();
  r.design_box();
  r.click("Form15.Command10");
  r.expect({{"Form67.Text10", "30"}}, "b below h + 2 tf");
  r.enter({{"Form15.Text11", "20"}, {"Form15.Text48", "50"}});  // tf 2.55: 20 + 5.1 below b
  r.click("Form15.Command10");
  r.expect({{"Form67.Text10", "25.1"}}, "h + 2 tf below b");

  r.enter({{"Form15.Text11", "40"}, {"Form15.Text48", "30"}});
  r.click("Form15.Command9");
  r.expect({{"Form5.Text36", "3090.22"},
            {"Form5.Text2", "35814.85"},
            {"Form5.Text4", "45574"},
            {"Form5.Text37", "2354.23"},
            {"Form5.Text52", "136.6"}},
           "K Calc");
  EXPECT_EQ(r.s.state("Form15"), FormState::Hidden);
  EXPECT_EQ(r.s.state("Form5"), FormState::Showing);
}

}  // namespace
}  // namespace qorvat
