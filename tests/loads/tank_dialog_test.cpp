// Tank's Force as a dialog (the road through both shapes and the forces is
// the scenario script's): the requests for spectral values, the floor
// spectrum, the refusals and the sheet.

#include "tests/support/session_road.hpp"

namespace qorvat {
namespace {

class TankDialog : public testing::RoadTest<testing::ProgramRoad> {
 protected:
  TankDialog() {
    click_through({"Form4.Command17", "Form77.Option3", "Form77.Command1"});
    // A 10 x 5 m tank with 4 m of water: Tc(x) = 3.87 s, Tc(y) = 2.54 s.
    enter("Form51.Text1", "10");
    enter("Form51.Text2", "5");
    enter("Form51.Text3", "4");
    click("Form51.Command1");
  }
};

TEST_F(TankDialog, SpectralValuesFromStandard2800) {
  struct Case {
    const char* button;
    const char* period;
    const char* marker;
  } const cases[] = {{"Command2", "0.3", "0"}, {"Command3", "3.87", "1"}, {"Command4", "2.54", "2"}};
  for (const Case& c : cases) {
    click(std::string("Form51.") + c.button);
    EXPECT_FALSE(at("Form26.Combo2").visible()) << c.button;
    for (const char* key : {"Form26.Picture1", "Form26.Frame5", "Form26.Command5"}) {
      EXPECT_FALSE(at(key).enabled()) << c.button << key;
    }
    EXPECT_TRUE(at("Form26.Frame4").enabled()) << c.button;
    expect_texts({{"Form26.Text5", c.period}, {"Form51.Text21", c.marker}}, c.button);
    s.user_close("Form26");
    EXPECT_TRUE(showing("Form51"));
  }
}

TEST_F(TankDialog, FloorSpectrumInsteadOfStandard2800) {
  click("Form51.Check1");
  EXPECT_TRUE(showing("Form52"));
  expect_texts({{"Form52.Text3", "3.87"}, {"Form52.Text4", "2.54"}});
  for (int tick : {1, 0}) {
    for (const char* request : {"Form51.Command2", "Form51.Command3", "Form51.Command4"}) {
      EXPECT_EQ(at(request).enabled(), tick == 0) << request;
    }
    click("Form51.Check1");
  }
}

TEST_F(TankDialog, RefusalsFaultsAndTheSheet) {
  enter("Form51.Text2", "");
  enter("Form51.Text7", "1");
  click("Form51.Command1");
  EXPECT_EQ(messages(), std::vector<std::string>{"msgbox Qorvat\terror in input data...!"});
  EXPECT_EQ(text("Form51.Text7"), "1");
  enter("Form51.Text22", "0");
  enter("Form51.Text18", "0.96");
  click("Form51.Command5");  // Ri = 0 ends the routine with a fault
  EXPECT_EQ(prompts.lines("fault "), std::vector<std::string>{"fault Form51 Command5_Click\tDivision by zero"});

  click("Form51.Command6");
  EXPECT_TRUE(at("Form51.Picture2").visible());
  click("Form51.Command6");
  EXPECT_FALSE(at("Form51.Picture2").visible());
}

}  // namespace
}  // namespace qorvat
