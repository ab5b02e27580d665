// Stress and stitch distance of a brace or column, worked by hand.

#include "members/compression_stress.hpp"

#include <gtest/gtest.h>

#include "runtime/fault.hpp"

namespace qorvat::members {
namespace {

constexpr double kShown = 0.005;

// Two UNP 80 back to back at 1.5 cm: d = 0.75 + 4.5 - 1.45 = 3.8, Ix2 = 212,
// Iy2 = 2 (19.4 + 11 * 14.44) = 356.48; rx = (212 / 22)^0.5 = 3.1042, ry = (356.48 / 22)^0.5 = 4.0254.
CompressionStressInput two_channels(double L) {
  return {.A = 11,
          .Ix = 106,
          .Iy = 19.4,
          .C = 1.5,
          .Kx = 0.5,
          .Ky = 0.67,
          .L = L,
          .b = 4.5,
          .ey = 1.45,
          .ri = 1.47,
          .Fy = 2400,
          .E = 2100000,
          .Ry = 1.2};
}

TEST(CompressionStress, TwoShapesBackToBack) {
  const CompressionStressResult r = compression_stress(two_channels(300));
  EXPECT_NEAR(r.rx, 3.10, kShown);
  EXPECT_NEAR(r.ry, 4.03, kShown);
  EXPECT_NEAR(r.lx, 48.32, kShown);   // 0.5 * 300 / 3.1042
  EXPECT_NEAR(r.lam, 49.93, kShown);  // 0.67 * 300 / 4.0254
  // r = 0.379944, FS = 1.794434, Fa = 0.927821 * 2400 / FS.
  EXPECT_NEAR(r.stress, 1240.93, kShown);
  EXPECT_NEAR(r.a, 55.05, kShown);  // 3 * 49.933 * 1.47 / 4, under L / 3
}

TEST(CompressionStress, RefusesAZeroInWhatTheMemberNeeds) {
  using In = CompressionStressInput;
  for (double In::*f : {&In::A, &In::Ix, &In::Iy, &In::Kx, &In::Ky, &In::L, &In::ri, &In::ey, &In::b}) {
    In in = two_channels(300);
    in.*f = 0;
    EXPECT_TRUE(compression_stress(in).missing_input);
    in.single_shape = true;  // one shape needs no ri, ey, b
    EXPECT_EQ(compression_stress(in).missing_input, f != &In::ri && f != &In::ey && f != &In::b);
  }
  In in = two_channels(300);
  in.Fy = 0;  // not tested for: ends in a fault
  EXPECT_THROW(compression_stress(in), RuntimeFault);
}

TEST(CompressionStress, CapsAndHeldStress) {
  // Past the curve (ly = 0.67 * 1300 / 4.0254 = 216.38) the held stress stands, capped at Fy,
  // and the stitch distance is still worked out: 3 * 216.38 * 1.47 / 4.
  CompressionStressInput in = two_channels(1300);
  for (const auto& [held, shown] : {std::pair{0.0, 0.0}, {777.0, 777.0}, {3000.0, 2400.0}}) {
    in.held_stress = held;
    const CompressionStressResult r = compression_stress(in);
    EXPECT_TRUE(r.beyond_curve);
    EXPECT_EQ(r.stress, shown);
    EXPECT_NEAR(r.a, 238.56, kShown);
  }
  // Ry 1.2, E 2040000, lam 49.933: Fe 8075.18, 0.658^(2880 / Fe) * 2880 = 2480.64 lies below
  // Fy Ry = 2880, yet the cap is Fy.
  in = two_channels(300);
  in.ultimate = true;
  in.E = 2040000;
  EXPECT_EQ(compression_stress(in).stress, 2400);
  in.ri = 3;  // 3 * 49.933 * 3 / 4 = 112.35 stops at 300 / 3
  EXPECT_EQ(compression_stress(in).a, 100);
}

}  // namespace
}  // namespace qorvat::members
