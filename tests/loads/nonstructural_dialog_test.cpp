// Non Structural Force as a dialog (the road through Calculate and Standard
// 2800 is the scenario script's): the member height, the member kinds, the
// refusals and the ways on to the tank and the wind.

#include "tests/support/session_road.hpp"

namespace qorvat {
namespace {

class NonstructuralForceDialog : public testing::RoadTest<testing::ProgramRoad> {
 protected:
  NonstructuralForceDialog() { click_through({"Form4.Command17", "Form77.Option1", "Form77.Command1"}); }
};

TEST_F(NonstructuralForceDialog, MemberHeightAndKinds) {
  enter("Form41.Text7", "12");
  EXPECT_EQ(text("Form41.Text6"), "10.5");  // 12 - 3.0/2
  enter("Form41.Text5", "3.5");
  EXPECT_EQ(text("Form41.Text6"), "10.25");
  enter("Form41.Text6", "7");
  enter("Form41.Text5", "");  // h = 0: Z stays as typed
  enter("Form41.Text7", "20");
  EXPECT_EQ(text("Form41.Text6"), "7");

  pick("Form41.Combo3", 2);
  click("Form41.Option2");
  expect_texts({{"Form41.Combo2", "1.5"}, {"Form41.Combo3", "1.0"}}, "masonry partition");
  pick("Form41.Combo2", 3);
  click("Form41.Option3");
  expect_texts({{"Form41.Combo2", "3.5"}, {"Form41.Combo3", "1.0"}}, "other: nothing changes");
}

TEST_F(NonstructuralForceDialog, RefusalsAndANegativeHeight) {
  for (const auto& [field, value] : {std::pair{"Form41.Combo2", ""}, {"Form41.Text7", "0"}}) {
    enter("Form41.Text7", "12");
    enter(field, value);
    click("Form41.Command2");
    EXPECT_EQ(messages(), std::vector<std::string>{"msgbox Qorvat\terror in input data...!"}) << field;
    EXPECT_EQ(text("Form41.Text8"), "") << field;
    enter("Form41.Combo2", "1.0");
  }
  // Below the base counts as the base, without a word: 0.4 * 0.35 * 2.75 * 10 = 3.85.
  enter("Form41.Text1", "0.35");
  enter("Form41.Text2", "2.75");
  enter("Form41.Text3", "10");
  enter("Form41.Text7", "12");
  enter("Form41.Text6", "-2");
  click("Form41.Command2");
  EXPECT_TRUE(messages().empty());
  EXPECT_EQ(text("Form41.Text8"), "3.85");
}

TEST_F(NonstructuralForceDialog, OnToTheTankAndTheWind) {
  click("Form41.Command4");  // no height: nothing handed over, nothing runs
  EXPECT_EQ(s.state("Form41"), FormState::Hidden);
  expect_texts({{"Form53.Text2", ""}, {"Form53.Text10", ""}});
  s.user_close("Form53");
  show("Form41");
  click("Form41.Command3");
  EXPECT_TRUE(showing("Form51"));
  EXPECT_EQ(s.state("Form41"), FormState::Hidden);
  s.user_close("Form51");
  EXPECT_TRUE(showing("Form77"));
  show("Form41");
  s.user_close("Form41");
  EXPECT_TRUE(showing("Form77"));
  EXPECT_EQ(s.state("Form41"), FormState::Destroyed);
}

}  // namespace
}  // namespace qorvat
