// Wind Load as a dialog (the road through openings, 714 and Zx Cal is the
// scenario script's): the re-runs, all opening cases, the sides that always
// keep one, the ticks of publication 714 and the messages.

#include "tests/support/session_road.hpp"

namespace qorvat {
namespace {

class WindLoadDialog : public testing::RoadTest<testing::ProgramRoad> {
 protected:
  WindLoadDialog() { click_through({"Form4.Command17", "Form77.Option2", "Form77.Command1"}); }
};

TEST_F(WindLoadDialog, RerunsOnceTheFactorsAreThere) {
  enter("Form53.Text2", "5");
  // No exposure chosen runs the mean (0.9 + 0.7) / 2: P = 0.47*0.8*2.5*0.9*0.85*101.94 = 73.305.
  expect_texts(
      {{"Form53.Text3", "0.8"}, {"Form53.Text10", "73.31"}, {"Form53.Text11", "0"}, {"Form53.Text12", "73.31"}});
  enter("Form53.Text9", "");  // without Cgi nothing re-runs
  click("Form53.Option1");
  EXPECT_EQ(text("Form53.Text3"), "0.8");
  enter("Form53.Text9", "2");
  EXPECT_EQ(text("Form53.Text3"), "0.9");
}

TEST_F(WindLoadDialog, OpeningCasesAndTheirSides) {
  enter("Form53.Text2", "20");
  click("Form53.Check1");
  enter("Form53.Text10", "");
  click("Form53.Check3");  // no opening case: Cpi stays 0 and the sides re-run nothing
  EXPECT_EQ(text("Form53.Text10"), "");
  click("Form53.Check3");  // clearing the side that is set sets it again
  EXPECT_EQ(at("Form53.Check3").value(), 1);
  struct Case {
    const char* option;
    const char* behind;
    const char* facing;
  } const cases[] = {{"Option4", "-0.15", "0"}, {"Option5", "-0.45", "0.3"}, {"Option6", "-0.7", "0.7"}};
  for (const Case& c : cases) {
    click(std::string("Form53.") + c.option);
    EXPECT_EQ(text("Form53.Text8"), c.behind) << c.option;
    click("Form53.Check2");
    EXPECT_EQ(at("Form53.Check3").value(), 0) << c.option;
    EXPECT_EQ(text("Form53.Text8"), c.facing) << c.option;
    click("Form53.Check3");
  }
  EXPECT_EQ(at("Form53.Check2").value(), 0);
  EXPECT_EQ(text("Form53.Text10"), "90.01");
}

TEST_F(WindLoadDialog, Publication714Ticks) {
  enter("Form53.Text1", "0.3");
  enter("Form53.Text2", "5");
  click("Form53.Option1");
  EXPECT_EQ(text("Form53.Text10"), "52.64");  // 0.3*0.9*2.5*0.9*0.85*101.94
  click("Form53.Check5");
  // Iw = 1.25 and Cd = 1: 1.25*0.3*0.9*2.5*0.9*101.94 = 77.41, raised to 78.
  expect_texts({{"Form53.Combo2", "1.25"}, {"Form53.Text7", "1.0"}, {"Form53.Text10", "78"}});
  EXPECT_EQ(at("Form53.Check4").value(), 1);
  click("Form53.Check4");  // cleared: Iw back to 1.0, while Cd and its tick stay
  expect_texts({{"Form53.Combo2", "1.0"}, {"Form53.Text7", "1.0"}});
  EXPECT_EQ(at("Form53.Check5").value(), 1);

  click("Form53.Check4");
  enter("Form53.Text7", "0.9");  // a Cd other than 1 clears its tick, whose clearing writes 0.85
  EXPECT_EQ(at("Form53.Check5").value(), 0);
  EXPECT_EQ(text("Form53.Text7"), "0.85");
  type("Form53.Text7", "0.9");  // typed key by key, the last key stands
  EXPECT_EQ(text("Form53.Text7"), "0.9");
  pick("Form53.Combo2", 3);  // likewise an Iw other than 1.25, whose clearing writes 1.0
  EXPECT_EQ(at("Form53.Check4").value(), 0);
  EXPECT_EQ(text("Form53.Combo2"), "1.0");
  pick("Form53.Combo2", 3);
  EXPECT_EQ(text("Form53.Combo2"), "1.2");
}

TEST_F(WindLoadDialog, Messages) {
  type("Form53.Text2", "60");
  EXPECT_TRUE(messages().empty());
  enter("Form53.Text10", "");
  enter("Form53.Text1", "0.29");
  EXPECT_EQ(messages(), std::vector<std::string>{"msgbox Qorvat\t حداقل فشار مبناي باد 0.3 کيلونيوتن بر مترمربع است"});
  EXPECT_EQ(text("Form53.Text10"), "");
  enter("Form53.Text2", "");  // Calculate itself asks for every factor
  click("Form53.Command1");
  EXPECT_EQ(messages(), std::vector<std::string>{"msgbox Qorvat\terror in input data...!"});
}

}  // namespace
}  // namespace qorvat
