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

TEST(ReducedBeamSection, RangeLimitsPassAndGeometry) {
  const struct {
    RbsRange range;
    bool outside;
  } rows[] = {{{15, 15, 22.5}, false},   {{15, 22.5, 22.5}, false}, {{15, 14.99, 22.5}, true},
              {{15, 22.51, 22.5}, true}, {{3, 0, 7.5}, true},       {{0, 0, 7.5}, false}};
  for (const auto& row : rows) EXPECT_EQ(outside(row.range), row.outside) << row.range.value;
  const RbsRanges r = rbs_ranges(30, 53.42);  // b from 0.65 * 53.42 = 34.723 to 0.85 * 53.42 = 45.407
  EXPECT_EQ(r.b.minimum, 34.72);
  EXPECT_EQ(r.b.maximum, 45.41);
  EXPECT_EQ(rbs_cut_radius(40, 5), 42.5);  // (1600 + 100) / 40
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
  // 2b = 30 - 10, t and tw as they stood: Zx = 2 * 10 * 1.71 * 51.71 + 437.5, and the design's Ix
  // 2 * 17.1 * 24.145^2 + 2 * 10 * 1.71^3 / 12 + 46.58^3 * 0.7 / 12.
  r.expect({{"Form15.Text3", "20"},
            {"Form15.Text5", "1.71"},
            {"Form15.Text20", "2205.98"},
            {"Form15.Text26", "25841.71"},
            {"Form56.Text10", "2205.98"},
            {"Form56.Text11", "0.71"},
            {"Form56.Text13", "1.07"}},  // 0.1 * 5 / 7.5 + 1
           "cut");
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
