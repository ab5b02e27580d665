// P Calculate, P selection and Cal Zx as dialogs: what they take from their
// callers on opening and what they hand back to every caller showing.

#include "tests/support/session_road.hpp"

namespace qorvat {
namespace {

using testing::CalculatorRoad;
using HelperDialogTest = testing::RoadTest<CalculatorRoad>;

TEST(PCalculateOpening, FollowsTheCallers) {
  struct Case {
    const char* showing;  // besides P Calculate
    const char* text39;   // the beam connection's marker, read even when it is not showing
    int angle_check1, check1;
    bool enabled;
  } const cases[] = {{"", "0", 0, 0, true},
                     {"Form1", "0", 0, 0, false},
                     {"", "1", 0, 0, false},
                     {"Form12", "0", 1, 1, false},
                     {"Form12", "0", 0, 0, true}};
  for (const Case& c : cases) {
    CalculatorRoad road;
    road.enter("Form1.Text39", c.text39);
    road.at("Form12.Check1").set_value(c.angle_check1);
    if (*c.showing) road.show(c.showing);
    road.show("Form2");
    EXPECT_EQ(road.text("Form2.Text5"), c.text39) << c.showing;
    EXPECT_EQ(road.at("Form2.Check1").value(), c.check1) << c.showing << c.text39;
    EXPECT_EQ(road.at("Form2.Check1").enabled(), c.enabled) << c.showing << c.text39;
  }
}

TEST_F(HelperDialogTest, PSelectionThenHandBackToBothCallers) {
  show("Form1");
  show("Form12");
  at("Form12.Option1").set_value(1);
  click("Form1.Command3");   // "P cal"
  click("Form30.Command1");  // on its first option
  EXPECT_EQ(s.state("Form30"), FormState::Destroyed);
  EXPECT_EQ(at("Form2.Check1").value(), 1);
  enter("Form2.Text1", "4.1");
  enter("Form2.Text4", "10");
  click("Form2.Command1");
  // 0.6 * 2400 * 4.1 = 5904 kgf.
  expect_texts({{"Form1.Text1", "5.9"}, {"Form12.Text1", "5.9"}, {"Form12.Text6", "10"}});
  EXPECT_EQ(at("Form12.Check1").value(), 1);
  EXPECT_EQ(s.state("Form2"), FormState::Destroyed);

  CalculatorRoad bolts;
  bolts.show("Form17");
  bolts.show("Form24");
  bolts.show("Form2");
  bolts.enter("Form2.Text1", "4.1");
  bolts.click("Form2.Command1");
  bolts.expect_texts({{"Form17.Text6", "3.94"}, {"Form24.Text6", "3.94"}});
}

TEST_F(HelperDialogTest, PSelectionOfTheGravityLoad) {
  enter("Form29.Text7", "9");                // an earlier gravity load, hidden
  for (const char* fresh : {"", "Form1"}) {  // with the beam connection showing it starts afresh
    if (*fresh) show(fresh);
    show("Form30");
    click("Form30.Option2");
    click("Form30.Command1");
    EXPECT_TRUE(s.visible("Form29"));
    EXPECT_EQ(text("Form29.Text7"), *fresh ? "" : "9");
  }
  EXPECT_EQ(s.state("Form2"), FormState::Destroyed);
}

TEST_F(HelperDialogTest, PgOpensCheckSectionWithoutItsSpliceButton) {
  show("Form2");
  click("Form2.Command3");
  EXPECT_TRUE(s.visible("Form15"));
  EXPECT_FALSE(at("Form15.Command4").enabled());
}

TEST_F(HelperDialogTest, CalZxFromTheWindPressure) {
  show("Form53");
  enter("Form53.Text12", "85.5");
  click("Form53.Command2");  // "Zx Cal"
  enter("Form58.Text1", "1.2");
  enter("Form58.Text2", "3");
  click("Form58.Command1");
  // w = 85.5 * 1.6 * 1.2 = 164.16; M = 164.16 * 9 / 8 = 184.68 kg.m; Zx = 18468 / 2160 = 8.55.
  expect_texts({{"Form58.Text5", "85.5"}, {"Form58.Text3", "0.18"}, {"Form58.Text4", "9"}});
}

}  // namespace
}  // namespace qorvat
