// Brace angle of an X and a V brace, worked by hand.

#include <gtest/gtest.h>

#include "members/brace_angle.hpp"

namespace qorvat {
namespace {

TEST(BraceAngle, XSpansTheBayVReachesMidSpan) {
  const struct {
    double H, L;
    bool x_brace;
    double Alpha;
  } cases[] = {
      {3, 4, true, 36.86981},      // atan(0.75) = 0.6435011 rad, * 180 / 3.1416
      {3, 4, false, 56.30980},     // atan(3 / 2) = 0.9827937 rad
      {2.5, 2.5, true, 44.99989},  // 3.1416 for pi: 0.7853982 * 180 / 3.1416, not 45
  };
  for (const auto& c : cases) {
    EXPECT_NEAR(members::brace_angle({.H = c.H, .L = c.L, .x_brace = c.x_brace}).Alpha, c.Alpha, 0.000005) << c.L;
  }
  EXPECT_TRUE(members::brace_angle({.H = 0, .L = 4, .x_brace = true}).missing_input);
  EXPECT_TRUE(members::brace_angle({.H = 3, .L = 0, .x_brace = false}).missing_input);
}

}  // namespace
}  // namespace qorvat
