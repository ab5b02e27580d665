// The profile picker against the fixture database: each caller showing gets
// exactly its fields, worked by hand from the fixture's rows.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "sections/profile_picker.hpp"
#include "tests/support/session_road.hpp"

namespace qorvat {
namespace {

using Fields = testing::Texts;

// The fixture database with the menu put away, as a caller's road starts.
struct PickerRoad : testing::CalculatorRoad {
  PickerRoad() : CalculatorRoad(QORVAT_FIXTURES "/profiles.mdb") {}

  // Shows the callers, presses the first one's "Stahl" button, picks a row and presses "Ok".
  void pick_profile(const std::vector<const char*>& callers, const char* stahl_button, int row) {
    for (const char* caller : callers) s.show(caller);
    click(std::string(callers.front()) + "." + stahl_button);
    ASSERT_TRUE(showing("Form13")) << (prompts.log.empty() ? "" : prompts.log.back());
    s.user_grid_click(at("Form13.MSFlexGrid1"), row);
    click("Form13.Command2");
  }
};

using PickerTest = testing::RoadTest<PickerRoad>;

// IPE 100 of the fixture: H 100, b 55, s 4.1, t 5.7, c 12.7, F 10.3, Ix 171, Iy 15.9.
// h = 10 cm, Sx = 171 / 5 = 34.2, Zx = 1.13 * 34.2 = 38.646.
struct BeamCase {
  const char* caller;
  const char* button;
  Fields expected;
};

const std::vector<BeamCase>& beam_cases() {
  static const std::vector<BeamCase> cases = {
      {"Form3", "Command2",
       {{"Form3.Text12", "10"}, {"Form3.Text13", "0.57"}, {"Form3.Text14", "5.5"}, {"Form3.Text16", "7.46"},
        {"Form3.Text17", "171"}, {"Form3.Text11", "0.41"}, {"Form3.Text1", "34.2"}, {"Form1.Text18", "10"},
        {"Form10.Text11", "10"}, {"Form1.Text41", "1"}}},
      {"Form8", "Command2",
       {{"Form8.Text10", "10.3"}, {"Form8.Text11", "171"}, {"Form8.Text12", "10"}, {"Form8.Text40", "5.5"}}},
      {"Form21", "Command1", {{"Form21.Text1", "38.65"}, {"Form21.Text3", "10"}}},
      {"Form22", "Command2", {{"Form22.Text1", "10"}, {"Form22.Text3", "0.41"}, {"Form22.Text2", "0.57"}}},
      {"Form34", "Command4",
       {{"Form34.Text5", "0.57"}, {"Form34.Text8", "10"}, {"Form34.Text4", "1.27"}, {"Form34.Text13", "34"}}},
      {"Form43", "Command2",
       {{"Form43.Text5", "38.65"}, {"Form43.Text1", "10"}, {"Form43.Text4", "171"}, {"Form43.Text3", "0.41"},
        {"Form43.Text2", "0.57"}, {"Form43.Text21", "10.3"}}},
  };
  return cases;
}

TEST_F(PickerTest, EachBeamCallerGetsItsFields) {
  for (const auto& c : beam_cases()) {
    PickerRoad fresh;
    fresh.pick_profile({c.caller}, c.button, 1);
    fresh.expect_texts(c.expected, c.caller);
    EXPECT_EQ(fresh.s.state("Form13"), FormState::Destroyed) << c.caller;
    EXPECT_TRUE(fresh.prompts.log.empty()) << c.caller;
  }
}

TEST_F(PickerTest, VariantsChosenByTheCallersCheckBoxes) {
  at("Form3.Check1").set_value(1);  // plastic modulus wanted
  pick_profile({"Form3"}, "Command2", 1);
  expect_texts({{"Form3.Text1", "38.65"}}, "Form3 with Check1");
  EXPECT_FALSE(at("Form3.Text12").enabled());

  // The deck's beam: b/10 - 2 = 3.5 rounds to the even 4, and Text4 follows unless Check3 is ticked.
  PickerRoad deck;
  deck.at("Form22.Check1").set_value(1);
  deck.pick_profile({"Form22"}, "Command2", 1);
  deck.expect_texts({{"Form22.Text10", "10.3"}, {"Form22.Text16", "10"}, {"Form22.Text6", "5.5"},
                     {"Form22.Text22", "171"}, {"Form22.Text21", "4"}, {"Form22.Text4", "4"}},
                    "Form22 with Check1");
  PickerRoad deck_studs;
  deck_studs.at("Form22.Check1").set_value(1);
  deck_studs.at("Form22.Check3").set_value(1);
  deck_studs.pick_profile({"Form22"}, "Command2", 1);
  deck_studs.expect_texts({{"Form22.Text21", "4"}, {"Form22.Text4", ""}}, "Form22 with Check1 and Check3");

  PickerRoad braced;
  braced.at("Form9.Check2").set_value(1);
  braced.pick_profile({"Form34"}, "Command4", 1);
  braced.expect_texts({{"Form34.Text13", "39"}}, "Form34 with Form9.Check2");
}

TEST_F(PickerTest, TwoCallersShowingBothGetTheRow) {
  pick_profile({"Form15", "Form3"}, "Command5", 1);
  expect_texts({{"Form15.Text35", "10"}, {"Form3.Text12", "10"}, {"Form3.Text1", "34.2"}}, "Form15 and Form3");
}

// Channels: UNP 60 (t 6, F 6.46), UNP 80 (t 8, F 11), a Persian-named 100 (t 8.5, F 13.5).
TEST_F(PickerTest, ChannelCallersGetReducedThicknessAndFillFaCalculation) {
  struct Case {
    const char* caller;
    const char* button;
    int row;
    Fields expected;
  };
  const Case cases[] = {
      {"Form37", "Command2", 0,
       {{"Form37.Text1", "6.46"}, {"Form37.Text7", "6"}, {"Form37.Text29", "6"}, {"Form37.Text20", "4"},
        {"Form11.Text1", ""}}},
      {"Form6", "Command2", 0,
       {{"Form6.Text1", "6.46"}, {"Form6.Text7", "6"}, {"Form6.Text29", "6"}, {"Form6.Text20", "4"},
        {"Form11.Text1", "6.46"}, {"Form11.Text2", "31.6"}, {"Form11.Text3", "4.51"}, {"Form11.Text8", "6"},
        {"Form11.Text9", "3"}, {"Form11.Text15", "6"}, {"Form11.Text20", "1.25"}}},
      {"Form9", "Command3", 1,
       {{"Form9.Text9", "8"}, {"Form9.Text20", "8"}, {"Form11.Text20", "1.47"}, {"Form11.Text9", "4.5"}}},
      {"Form9", "Command3", 2, {{"Form9.Text1", "13.5"}, {"Form9.Text20", "8"}, {"Form11.Text20", "1.59"}}},
  };
  for (const auto& c : cases) {
    PickerRoad fresh;
    fresh.pick_profile({c.caller}, c.button, c.row);
    fresh.expect_texts(c.expected, c.caller);
  }
}

TEST_F(PickerTest, BeamControlOverTheCornerConnectionTakesTheRowAlone) {
  s.show("Form6");
  pick_profile({"Form34"}, "Command4", 0);
  expect_texts({{"Form6.Text1", ""}, {"Form11.Text1", ""}, {"Form34.Text8", "8"}}, "Form34 over Form6");
}

// Ok without a row is the check_section_stahl scenario's.
TEST_F(PickerTest, CancelWritesNothingEvenWithARowPicked) {
  show("Form2");
  click("Form2.Command2");
  s.user_grid_click(at("Form13.MSFlexGrid1"), 1);
  click("Form13.Command1");
  EXPECT_EQ(s.state("Form13"), FormState::Destroyed);
  EXPECT_EQ(text("Form2.Text1"), "");
}

TEST_F(PickerTest, GridTakesTheRowsAndShapeTheCallerAsksFor) {
  show("Form6");
  click("Form6.Command2");
  const Control& grid = at("Form13.MSFlexGrid1");
  EXPECT_EQ(grid.rows(), 3);
  EXPECT_EQ(grid.cols(), 12);
  EXPECT_EQ(grid.cell(2, 0), "ناوداني 100");
  EXPECT_EQ(grid.cell(0, 10), "4.51");
  EXPECT_EQ(grid.cell(0, 11), "");  // only 11 fields are read for this caller
  EXPECT_EQ(grid.col_width(10), 550);
  EXPECT_EQ(grid.col_width(11), 0);
  EXPECT_EQ(grid.col_heading(0), "I or U");
  EXPECT_FALSE(at("Form13.Picture1").visible());
  EXPECT_TRUE(at("Form13.Picture3").visible());
}

TEST_F(PickerTest, ADatabaseThatCannotBeReadLeavesThePickerClosed) {
  s.profiles_path = std::string(QORVAT_FIXTURES) + "/partial.mdb";
  show("Form6");
  click("Form6.Command2");
  EXPECT_EQ(s.state("Form13"), FormState::Destroyed);
  ASSERT_EQ(prompts.log.size(), 1u);
  EXPECT_NE(prompts.log[0].find("has no table \"navdani\""), std::string::npos) << prompts.log[0];
}

TEST(ReducedFlangeThickness, ThinFlangesLoseTwoMillimetres) {
  const std::pair<double, double> cases[] = {{6, 4}, {6.5, 6}, {5.9, 3}, {8.5, 8}, {10, 10}, {4, 2}};
  for (const auto& [t, reduced] : cases) EXPECT_EQ(sections::reduced_flange_thickness(t), reduced) << t;
}

}  // namespace
}  // namespace qorvat
