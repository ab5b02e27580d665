// The Effective Length dialog through a session: what the calculation refuses
// and where a fault stops it, what the connection conditions take out, what
// the copy buttons copy, and the height Fa Calculation opens with. The road
// itself, figures included, is walked by the effective_length scenarios.

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <string>
#include <vector>

#include "tests/support/session_road.hpp"

namespace qorvat {
namespace {

using Fields = testing::Texts;  // of Effective Length: "Text17" -> text
using Keys = std::array<const char*, 3>;

// The dialog opened from the menu with a frame typed in: right of A 600/12000/600 at 15
// degrees, left of A 500/10000/400, above A 300/9000/700, studied 320/12000/800, right of B
// 400/8000/500 at 60 degrees, left of B 500/5000/300, below B 400/16000/900.
struct Road : testing::ProgramRoad {
  Road() {
    ProgramRoad::click("Form4.Command1");
    click("Check1");
    type({{"Text1", "600"},    {"Text2", "12000"},  {"Text36", "600"}, {"Text54", "15"},   {"Text9", "500"},
          {"Text11", "10000"}, {"Text38", "400"},   {"Text3", "300"},  {"Text4", "9000"},  {"Text37", "700"},
          {"Text8", "320"},    {"Text10", "12000"}, {"Text39", "800"}, {"Text18", "400"},  {"Text19", "8000"},
          {"Text43", "500"},   {"Text56", "60"},    {"Text25", "500"}, {"Text26", "5000"}, {"Text47", "300"},
          {"Text29", "400"},   {"Text30", "16000"}, {"Text46", "900"}});
  }
  Form& k() { return s.form("Form5"); }
  void type(const Fields& fields) {
    for (const auto& [key, text] : fields) s.user_replace_text(k()[key], text);
  }
  void click(const char* key) { s.user_click(k()[key]); }
  void expect(const Fields& fields, const std::string& road) {
    for (const auto& [key, text] : fields) EXPECT_EQ(k().text(key), text) << road << ": " << key;
  }
};

TEST(EffectiveLengthDialog, RefusesZerosOnlyWithAllMembersPresent) {
  struct Case {
    const char* road;
    std::vector<const char*> clicks;
    Fields typed;
    bool refused;
  };
  const Case cases[] = {
      {"studied inertia", {}, {{"Text10", ""}}, true},
      {"node B beam", {}, {{"Text19", "0"}}, true},
      {"node B beam, simple support", {"Option10"}, {{"Text19", "0"}}, false},
      {"beam modulus", {}, {{"Text36", ""}}, true},
      {"beam modulus, no joint calculation", {"Check1"}, {{"Text36", ""}}, false},
      {"B's fa/Fy mirror", {}, {{"Text42", "x"}}, true},
      {"B's fa/Fy mirror, fixed support", {"Option9"}, {{"Text42", "x"}}, false},
      {"upper column, one upper beam", {"Option16"}, {{"Text3", ""}}, false},
  };
  for (const auto& c : cases) {
    Road road;
    for (const char* key : c.clicks) road.click(key);
    road.type(c.typed);
    road.click("Command1");
    if (c.refused) {
      EXPECT_EQ(road.prompts.log, std::vector<std::string>{"msgbox Qorvat\tError in input data..!"}) << c.road;
      road.expect({{"Text17", ""}, {"Text35", ""}, {"Text51", ""}}, c.road);
    } else {
      EXPECT_TRUE(road.prompts.log.empty()) << c.road;
      EXPECT_NE(road.k().text("Text51"), "") << c.road;
    }
  }
}

TEST(EffectiveLengthDialog, NoRootForTheClosedFormulaEndsTheRoutineThere) {
  Road road;
  // cS = -60000 / 320 = -187.5. GA = (30 - 187.5) / (18.66 + 20) = -4.074, GB = (40 - 187.5) / (5 + 10)
  // = -9.833: (64.09 - 55.63 + 7.5) / -6.41 has no root. The search finds f(1.09) before it.
  road.type({{"Text51", "old"}, {"Text10", "-60000"}});
  road.click("Command1");
  EXPECT_EQ(road.prompts.lines("fault "),
            std::vector<std::string>{"fault Form5 Command1_Click\tInvalid procedure call or argument"});
  road.expect({{"Text17", "-4.07"}, {"Text32", "-9.83"}, {"Text35", "1.09"}, {"Text51", "old"}}, "negative inertia");
}

TEST(EffectiveLengthDialog, ConditionsZeroAndLockTheMembersTheyTakeOut) {
  struct Case {
    const char* option;
    std::vector<const char*> zeroed, locked, open;
  };
  const Case cases[] = {
      {"Option16", {"Text9", "Text11", "Text38"}, {"Text9", "Text11", "Text38", "Frame2"}, {"Text3"}},
      {"Option17", {"Text3", "Text4", "Text37"}, {"Text3", "Text4", "Text37", "Text40"}, {"Text9"}},
      {"Option18", {"Text25", "Text26", "Text47"}, {"Text25", "Text26", "Text47", "Frame4"}, {"Text9"}},
      // The upper column is locked with its figures kept; the zeroed left beams stay open.
      {"Option20",
       {"Text9", "Text11", "Text38", "Text25", "Text26", "Text47"},
       {"Text3", "Text4", "Text37", "Text40"},
       {"Text9", "Text25"}},
      {"Option21",
       {"Text9", "Text11", "Text38", "Text25", "Text26", "Text47", "Text18", "Text19", "Text43", "Text29", "Text30",
        "Text46"},
       {"Frame2", "Frame4"},
       {"Text18", "Text3"}},
  };
  for (const auto& c : cases) {
    Road road;
    road.click(c.option);
    for (const char* key : c.zeroed) EXPECT_EQ(road.k().text(key), "0") << c.option << " " << key;
    for (const char* key : c.locked) EXPECT_FALSE(road.k()[key].enabled()) << c.option << " " << key;
    for (const char* key : c.open) EXPECT_TRUE(road.k()[key].enabled()) << c.option << " " << key;
    road.click("Option19");
    for (const char* key : c.locked) EXPECT_TRUE(road.k()[key].enabled()) << c.option << ", Option19: " << key;
  }
}

constexpr Keys kLeftA{"Text9", "Text11", "Text38"}, kRightB{"Text18", "Text19", "Text43"},
    kLeftB{"Text25", "Text26", "Text47"}, kStudied{"Text8", "Text10", "Text39"}, kBelowB{"Text29", "Text30", "Text46"},
    kAngles{"Text55", "Text56", "Text57"};
constexpr Keys kRightA{"600", "12000", "600"}, kAboveA{"300", "9000", "700"}, kStudiedAsTyped{"320", "12000", "800"},
    kZeros{"0", "0", "0"}, kAngle15{"15", "15", "15"}, kAnglesAsTyped{"0", "60", "0"};

// The member's three fields holding the three values, for any number of members.
Fields holding(std::initializer_list<std::pair<Keys, Keys>> members, Fields more = {}) {
  for (const auto& [keys, values] : members) {
    for (std::size_t i = 0; i < keys.size(); ++i) more[keys[i]] = values[i];
  }
  return more;
}

void expect_copy(const char* condition, const char* button, const Fields& expected) {
  Road road;
  road.click(condition);
  road.click(button);
  road.expect(expected, std::string(condition) + " " + button);
}

TEST(EffectiveLengthDialog, AllSameCopiesByCondition) {
  expect_copy("Option19", "Command2",
              holding({{kLeftA, kRightA},
                       {kRightB, kRightA},
                       {kLeftB, kRightA},
                       {kStudied, kAboveA},
                       {kBelowB, {"300", "9000", "900"}},
                       {kAngles, kAngle15}}));
  expect_copy("Option16", "Command2",
              holding({{kLeftA, kZeros},
                       {kRightB, kRightA},
                       {kLeftB, kRightA},
                       {kStudied, kAboveA},
                       {kBelowB, kAboveA},
                       {kAngles, kAngle15}}));
  expect_copy("Option17", "Command2",
              holding({{kLeftA, {"500", "10000", "400"}}, {kStudied, kStudiedAsTyped}, {kAngles, kAnglesAsTyped}}));
  expect_copy("Option18", "Command2",
              holding({{kLeftA, kRightA},
                       {kRightB, kRightA},
                       {kLeftB, kZeros},
                       {kStudied, kAboveA},
                       {kBelowB, kAboveA},
                       {kAngles, kAnglesAsTyped}}));
  expect_copy("Option20", "Command2",
              holding({{kLeftA, kZeros},
                       {kRightB, kRightA},
                       {kLeftB, kZeros},
                       {kStudied, kAboveA},
                       {kBelowB, kAboveA},
                       {kAngles, kAngle15}}));
  expect_copy("Option21", "Command2",
              holding({{kLeftA, {"0", "0", "600"}},
                       {kRightB, kRightA},
                       {kLeftB, {"0", "0", "600"}},
                       {kStudied, kAboveA},
                       {kBelowB, kAboveA},
                       {kAngles, kAngle15}}));
}

TEST(EffectiveLengthDialog, SideSameCopiesNodeAToNodeB) {
  // Always: right of B from right of A, below B from the studied column, and the left
  // beam of A (not a beam of B) takes the right one's angle.
  const std::pair<Keys, Keys> right{kRightB, kRightA}, below{kBelowB, kStudiedAsTyped};
  expect_copy("Option19", "Command3",
              holding({right, below, {kLeftB, {"500", "10000", "400"}}, {kAngles, {"15", "60", "60"}}}));
  expect_copy(
      "Option16", "Command3",
      holding({right, below, {kLeftA, kZeros}, {kLeftB, {"500", "5000", "300"}}, {kAngles, {"15", "60", "0"}}}));
  expect_copy("Option17", "Command3", holding({{kRightB, {"400", "8000", "500"}}, {kAngles, kAnglesAsTyped}}));
  expect_copy("Option18", "Command3", holding({right, below, {kLeftB, kZeros}, {kAngles, {"15", "60", "0"}}}));
  expect_copy("Option20", "Command3", holding({right, below, {kLeftA, kZeros}, {kAngles, {"15", "60", "60"}}}));
  expect_copy("Option21", "Command3",
              holding({{kLeftA, {"0", "0", "600"}}, {kStudied, kAboveA}, {kBelowB, kAboveA}, {kAngles, kAngle15}}));
}

TEST(EffectiveLengthDialog, FaCalculationOpensAtItsColumnHeight) {
  Road road;
  road.click("Command4");
  EXPECT_EQ(road.s.form("Form11").height(), 6750);
  EXPECT_EQ(road.s.form("Form11").text("Text5"), "0");  // no K computed yet
}

}  // namespace
}  // namespace qorvat
