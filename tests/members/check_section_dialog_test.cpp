// Check Section through a session: the recalculations from typed thicknesses,
// the buttons a design opens, the switches and ties that rerun it, and the
// thresholds of the box. Figures of a plain design are in the scenarios.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "check_section_road.hpp"
#include "runtime/colors.hpp"

namespace qorvat {
namespace {

using testing::CheckSectionRoad;

TEST(CheckSectionDialog, TypedThicknessKeepsTheLimitsAndShowsItsOwnIx) {
  CheckSectionRoad r;
  r.design_beam();
  r.enter({{"Form15.Text5", "2"}});
  // b 15, h 50, t 2, tw 0.7: Zx = 60 * 52 + 437.5; Ix = 2 * 60 * 26^2 + 2 * 20 + 50^3 * 0.7 / 12.
  r.expect({{"Form15.Text7", "8.75"}, {"Form15.Text20", "3557.5"}, {"Form15.Text26", "88451.67"}}, "typed");
  r.click("Form15.Command8");  // the same section: 2 * 30 * 24^2 + 2 * 10 + 46^3 * 0.7 / 12
  r.expect({{"Form15.Text5", "2"}, {"Form15.Text26", "40257.93"}}, "Command8");
  r.enter({{"Form15.Text22", "x"}});
  r.enter({{"Form15.Text5", "0"}});  // no flange: the shear alone
  r.expect({{"Form15.Text22", "0.9"}, {"Form15.Text20", "3557.5"}}, "t = 0");
}

TEST(CheckSectionDialog, WebControlOpensBesideTheBeamConnectionOnlyFromCommand8) {
  const struct {
    const char* caller;
    bool after_design, after_command8;
  } rows[] = {{"Form4", true, true}, {"Form1", false, true}, {"Form27", false, false}, {"Form32", false, false}};
  for (const auto& row : rows) {
    CheckSectionRoad design, recalculation;
    for (CheckSectionRoad* r : {&design, &recalculation}) {
      r->s.show(row.caller);
      r->enter({{"Form15.Text3", "30"}, {"Form15.Text4", "50"}, {"Form15.Text6", "0.7"}});
    }
    design.click("Form15.Command1");
    recalculation.click("Form15.Command8");
    EXPECT_EQ(design.at("Form15.Command3").enabled(), row.after_design) << row.caller;
    EXPECT_TRUE(design.at("Form15.Command12").enabled()) << row.caller;
    EXPECT_EQ(recalculation.at("Form15.Command3").enabled(), row.after_command8) << row.caller;
    EXPECT_TRUE(recalculation.at("Form15.Command7").enabled()) << row.caller;
  }
}

TEST(CheckSectionDialog, ClassBoxesAndEditionsRerunTheIShape) {
  CheckSectionRoad r;
  r.design_beam();
  r.click("Form15.Check2");  // medium: t = Round(15 / 0.38 s) = 1.35
  r.expect({{"Form15.Check1", "0"}, {"Form15.Text5", "1.35"}}, "medium");
  r.click("Form15.Check2");  // clearing it ticks the other
  r.expect({{"Form15.Check1", "1"}, {"Form15.Text5", "1.71"}}, "high");
  r.click("Form15.Check2");
  r.enter({{"Form15.Text14", "2"}, {"Form15.Text1", "2000000"}});
  r.click("Form15.Option1");  // Ry 1.15 and high again, E kept: 0.3 (2000000 / 2760)^0.5 = 8.0757
  r.expect({{"Form15.Text14", "1.15"}, {"Form15.Check1", "1"}, {"Form15.Check2", "0"}, {"Form15.Text7", "8.08"}},
           "1401");
  r.click("Form15.Option7");  // E back, Ry 1.3: 0.32 S = 8.1825; no shear under AISC
  r.expect({{"Form15.Text1", "2040000"}, {"Form15.Text7", "8.18"}, {"Form15.Text16", "0"}, {"Form15.Text22", "0"}},
           "AISC");
  r.enter({{"Form15.Text14", "1.15"}});  // 0.32 * 27.18695
  r.expect({{"Form15.Text7", "8.7"}}, "Ry typed");
}

TEST(CheckSectionDialog, RolledBeamWithoutFiguresSaysSoAndShowsZeros) {
  CheckSectionRoad r;
  r.click("Form15.Command6");
  EXPECT_EQ(r.prompts.log, std::vector<std::string>{"msgbox Qorvat\terror in input data...!"});
  r.expect({{"Form15.Text40", "0"}, {"Form15.Text41", "0"}, {"Form15.Text42", "0"}, {"Form15.Text43", "0"}}, "");
  EXPECT_TRUE(r.at("Form15.Command11").enabled());
}

TEST(CheckSectionDialog, BoxSidesAndCaAgainstNineNinetyNine) {
  CheckSectionRoad r;
  r.enter({{"Form15.Text11", "40"}, {"Form15.Text48", "9.98"}});  // not above 9.99: no rerun of its own
  r.click("Form15.Command2");
  EXPECT_EQ(r.prompts.log, std::vector<std::string>{"msgbox Qorvat\tb & h Must be greater than 10 !"});
  r.enter({{"Form15.Text48", "9.99"}});
  r.expect({{"Form15.Text12", ""}}, "9.99 typed");
  r.click("Form15.Command2");
  r.expect({{"Form15.Text12", "0.51"}}, "9.99 accepted");
  r.enter({{"Form15.Text48", "30"}});
  r.enter({{"Form15.Text47", "0.5"}});  // a usual Ca waits for "Cal"
  r.expect({{"Form15.Text12", "1.53"}, {"Form15.Text45", "71.43"}}, "b typed");
  r.click("Form15.Command2");
  r.expect({{"Form15.Text45", "43.44"}}, "Ca calculated");  // 1.49 s
  r.enter({{"Form15.Text47", "10"}});                       // 0.77 s (2.93 - 10)
  r.expect({{"Form15.Text45", "-158.72"}}, "Ca above 9.99");
}

TEST(CheckSectionDialog, BoxTiesWebToFlangeAndWidthToHeight) {
  CheckSectionRoad r;
  r.design_box();
  r.click("Form15.Check5");  // the tie itself: the check_section_box scenario
  r.click("Form15.Check6");
  r.expect({{"Form15.Text48", "40"}}, "square");
  r.type("Form15.Text11", "50");  // meets h = 5 on the way
  r.expect({{"Form15.Text48", "50"}, {"Form15.Check5", "0"}}, "h typed");
  EXPECT_TRUE(r.at("Form15.Text46").enabled());
  r.enter({{"Form15.Text48", "45"}});
  r.expect({{"Form15.Text11", "45"}}, "b typed");
  EXPECT_EQ(r.prompts.log, std::vector<std::string>{"msgbox Qorvat\tb & h Must be greater than 10 !"});
}

TEST(CheckSectionDialog, BoxEditionsAndFrameType) {
  CheckSectionRoad r;
  r.design_box();
  r.click("Form15.Option6");
  r.expect({{"Form15.Text13", "16.04"}}, "simple braced");  // 0.55 s
  r.click("Form15.Check4");
  r.expect({{"Form15.Text13", "32.65"}}, "medium");  // 1.12 s
  EXPECT_FALSE(r.at("Form15.Option5").enabled());
  r.enter({{"Form15.Text9", "2000000"}});
  r.click("Form15.Option3");
  r.expect({{"Form15.Text15", "1.15"}, {"Form15.Text27", "1.0"}, {"Form15.Text9", "2040000"}, {"Form15.Check3", "1"}},
           "1401");
  EXPECT_FALSE(r.at("Form15.Frame3").enabled());
  r.click("Form15.Option8");
  r.expect({{"Form15.Text15", "1.3"}, {"Form15.Text45", "69.87"}}, "AISC");  // web on the I shape's Ry 1.15
  r.enter({{"Form15.Text14", "1.3"}});
  r.click("Form15.Command2");
  r.expect({{"Form15.Text45", "65.72"}}, "I shape's Ry 1.3");
  r.click("Form15.Option4");
  r.expect({{"Form15.Text27", "0.75"}}, "1392");
  EXPECT_FALSE(r.at("Form15.Text15").enabled());
  EXPECT_TRUE(r.at("Form15.Option6").enabled());
}

TEST(CheckSectionDialog, Under1401ATypedWebTakesItsOwnShearRatio) {
  CheckSectionRoad r;
  r.click("Form15.Option3");
  r.enter({{"Form15.Text11", "80"}, {"Form15.Text48", "30"}});
  r.expect({{"Form15.Text12", "1.76"}, {"Form15.Text46", "1.2"}}, "designed");
  r.enter({{"Form15.Text46", "0.9"}});  // h / tw = 88.89: Cv = 71.71 / 88.89, aw 5.33 mm
  r.expect({{"Form15.Text28", "5"}}, "web typed");
  r.enter({{"Form15.Text12", "1.76"}});  // h / tf: Cv 1, aw 6.61 mm
  r.expect({{"Form15.Text28", "7"}}, "flange typed");
  EXPECT_EQ(r.at("Form15.Text28").back_color(), colors::kGrey);
  r.pick("Form15.Combo1", 1);  // E70: aw 6.61 * 4200 / 4900
  r.expect({{"Form15.Text31", "4900"}, {"Form15.Text28", "5"}}, "E70");
}

}  // namespace
}  // namespace qorvat
