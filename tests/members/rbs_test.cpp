// Reduced beam section: its range checks and geometry, and the round trip
// through Check Section, which narrows the flange and recalculates.

#include "members/rbs.hpp"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "check_section_road.hpp"

namespace qorvat::members {
namespace {

// The ranges of a designed beam, the cut radius and the figures of one cut are
// in the check_section_rbs scenario; here the edges of a range.
TEST(ReducedBeamSection, RangeEdgesPass) {
  const struct {
    RbsRange range;
    bool outside;
  } rows[] = {{{15, 15, 22.5}, false},   {{15, 22.5, 22.5}, false}, {{15, 14.99, 22.5}, true},
              {{15, 22.51, 22.5}, true}, {{3, 0, 7.5}, true},       {{0, 0, 7.5}, false}};
  for (const auto& row : rows) EXPECT_EQ(outside(row.range), row.outside) << row.range.value;
}

// The welded beam 2b 30, h 50 designed (t 1.71, tw 0.7, Zx 3090.22), then "RBS".
struct RbsRoad : qorvat::testing::CheckSectionRoad {
  RbsRoad() {
    design_beam();
    click("Form15.Command7");
  }
  void cut(const char* a, const char* b, const char* c) {
    enter({{"Form56.Text2", a}, {"Form56.Text5", b}, {"Form56.Text8", c}});
    click("Form56.Command1");
  }
};

TEST(ReducedBeamSection, CalNarrowsTheFlangeOnceAndKeepsTheThicknesses) {
  RbsRoad r;
  r.cut("18", "40", "5");
  r.click("Form56.Command1");  // the width comes from here: a second press narrows nothing further
  // The figures of one press, as in the check_section_rbs scenario: 2b = 30 - 10, t as it stood.
  r.expect({{"Form15.Text3", "20"}, {"Form15.Text5", "1.71"}, {"Form15.Text20", "2205.98"}}, "cut twice");
  EXPECT_TRUE(r.prompts.log.empty());
}

TEST(ReducedBeamSection, ValueOutsideItsRangeStopsEverything) {
  for (const auto& [a, b, c] : {std::tuple{"14.99", "40", "5"}, {"18", "45.42", "5"}, {"18", "40", "0"}}) {
    RbsRoad r;
    r.cut(a, b, c);
    EXPECT_EQ(r.prompts.log, std::vector<std::string>{"msgbox Qorvat\terror in input data...!"});
    r.expect({{"Form15.Text3", "30"}, {"Form56.Text10", ""}}, std::string(a) + " " + b + " " + c);
  }
  RbsRoad none;  // a range that admits no cut lets c = 0 through, to divide by it
  none.enter({{"Form56.Text7", "0"}});
  none.cut("15", "45.41", "0");
  none.expect({{"Form56.Text13", "1"}, {"Form56.Text16", ""}}, "c = 0");
  EXPECT_EQ(none.prompts.log, std::vector<std::string>{"fault Form56 Command1_Click\tDivision by zero"});
}

}  // namespace
}  // namespace qorvat::members
