// T (Vu) calculate: the flange force worked by hand, which bolt design gets
// it, and where its profile and section come from.

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/session_road.hpp"

namespace qorvat {
namespace {

struct Road : testing::ProgramRoad {
  explicit Road(const std::vector<const char*>& callers) {
    for (const char* caller : callers) s.show(caller);
    s.show("Form21");
  }
};

TEST(BeamEndForceDialog, OnlyTheFirstBoltDesignShowingGetsTheForce) {
  const struct {
    std::vector<const char*> callers;
    const char* h;
    const char* slip_critical;
    const char* bearing;
    FormState after;
  } cases[] = {
      // 484 * 2400 * 0.9 / 27 = 38720 kgf
      {{"Form24", "Form17"}, "27", "38.72", "", FormState::Destroyed},
      {{"Form24"}, "27", "", "38.72", FormState::Destroyed},
      {{"Form24"}, "", "", "0", FormState::Destroyed},  // no depth: 0, and no complaint
      {{}, "27", "", "", FormState::Showing},
  };
  for (const auto& c : cases) {
    Road r(c.callers);
    r.enter({{"Form21.Text1", "484"}, {"Form21.Text3", c.h}});
    r.click("Form21.Command2");
    EXPECT_EQ(r.s.state("Form21"), c.after) << c.callers.size() << c.h;
    EXPECT_EQ(r.text("Form17.Text6"), c.slip_critical) << c.callers.size() << c.h;
    EXPECT_EQ(r.text("Form24.Text6"), c.bearing) << c.callers.size() << c.h;
    EXPECT_TRUE(r.prompts.log.empty());
  }
}

TEST(BeamEndForceDialog, StahlOpensIpeBeamsAndPgCheckSectionWithoutSplice) {
  Road r({"Form24"});
  r.click("Form21.Command1");
  EXPECT_EQ(r.s.state("Form13"), FormState::Showing);
  EXPECT_EQ(r.at("Form13.MSFlexGrid1").cols(), 13);
  r.click("Form21.Command3");
  EXPECT_EQ(r.s.state("Form15"), FormState::Showing);
  EXPECT_FALSE(r.at("Form15.Command4").enabled());
}

}  // namespace
}  // namespace qorvat
