// Lateral Support through a session: the input check and the angle. The road
// from Check Section through Fa Calculation is the lateral_support scenario.

#include <gtest/gtest.h>

#include <string>

#include "tests/support/session_road.hpp"

namespace qorvat {
namespace {

// A brace started as Check Section starts it for an I shape of h 40, t 1.5, Zx 1500.
struct Road : testing::ProgramRoad {
  Road() {
    s.show("Form71");
    enter({{"Form71.Text1", "3.1"},
           {"Form71.Text2", "41.4"},
           {"Form71.Text3", "41.5"},
           {"Form71.Text4", "120"},
           {"Form71.Text6", "60.81"},
           {"Form71.Text8", "43"},
           {"Form71.Text9", "2040000"}});
  }
};

TEST(LateralSupportDialog, AnyZeroOfTheSixIsRefusedButNotPu) {
  for (const char* field : {"Text3", "Text2", "Text4", "Text6", "Text9", "Text5", "Text1"}) {
    Road r;
    r.enter("Form71.Text7", "9.99");
    r.enter(std::string("Form71.") + field, "0");
    r.click("Form71.Command1");
    const bool pu = std::string(field) == "Text1";
    EXPECT_EQ(r.prompts.log.size(), pu ? 0U : 1U) << field;
    // 60.81e2 * 41.4e7 / (2040000 * 0.75 * 120 * 41.5 * 10 * 0.49999816) / 100 = 0.6608
    EXPECT_EQ(r.text("Form71.Text7"), pu ? "0.66" : "9.99") << field;
    EXPECT_EQ(r.at("Form71.Command2").enabled(), pu) << field;
  }
}

TEST(LateralSupportDialog, FlatOrUprightAngleLeavesTheLength) {
  Road r;
  const struct {
    const char* th;
    const char* L;
  } steps[] = {{"0", "60.81"}, {"30", "86"}, {"90", "86"}, {"89.99", "43"}, {"abc", "43"}, {"-45", "43"}};
  for (const auto& step : steps) {
    r.enter("Form71.Text5", step.th);
    EXPECT_EQ(r.text("Form71.Text6"), step.L) << step.th;  // 43 / sin(30 * 3.1416 / 180) = 85.9998
  }
  EXPECT_TRUE(r.prompts.log.empty());
}

}  // namespace
}  // namespace qorvat
