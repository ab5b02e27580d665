// Starting area and length of a lateral brace, worked by hand with 3.1416 for pi.

#include <gtest/gtest.h>

#include "members/lateral_support.hpp"
#include "runtime/value_rules.hpp"

namespace qorvat {
namespace {

using members::lateral_brace_area;

TEST(LateralBraceArea, ShownToTwoDecimals) {
  const struct {
    double Mr, ho, Lb, th, L;
    const char* Areq;
  } cases[] = {
      // cos^2(45 * 3.1416 / 180) = 0.49999816: 400e2 * 37.81e7 / (2040000 * 0.75 * 200 * 30 * 10 * 0.49999816)
      // / 100 = 3.295001. With pi itself it would be 3.294989 and show 3.29.
      {37.81, 30, 200, 45, 400, "3.3"},
      // cos^2(60 deg) = 0.2500028: 49.65e2 * 41.4e7 / (2040000 * 0.75 * 120 * 41.5 * 10 * 0.2500028) / 100.
      {41.4, 41.5, 120, 60, 49.65, "1.08"},
      // 90 degrees is not refused: cos(1.5708) = -3.67e-6 leaves a finite, huge area.
      {20, 30, 200, 90, 300, "48441570101.9"},
  };
  for (const auto& c : cases) {
    const auto r = lateral_brace_area({.Mr = c.Mr, .ho = c.ho, .Lb = c.Lb, .th = c.th, .L = c.L, .E = 2040000});
    EXPECT_FALSE(r.missing_input);
    EXPECT_EQ(rounded_text(r.Areq, 2), c.Areq) << c.th;
  }
}

TEST(LateralBraceLength, OnlyStrictlyBetweenFlatAndUpright) {
  const struct {
    double d, th;
    const char* L;  // nullptr: the length is left alone
  } cases[] = {
      {13.58, 45, "19.2"},  // 13.58 / sin(0.7854) = 19.204985; the true 45 degrees would show 19.21
      {30, 60, "34.64"},   {30, 89.99, "30"},  {30, 0.01, "171886.94"}, {30, 0, nullptr},
      {30, 90, nullptr},   {30, -30, nullptr}, {30, 120, nullptr},
  };
  for (const auto& c : cases) {
    const auto r = members::lateral_brace_length(c.d, c.th);
    EXPECT_EQ(r.applies ? rounded_text(r.L, 2) : "left", c.L != nullptr ? c.L : "left") << c.th;
  }
}

}  // namespace
}  // namespace qorvat
