// Effective length factor against values worked by hand, with the old search
// and its stop rule pinned down.

#include "members/effective_length.hpp"

#include <gtest/gtest.h>

#include <cmath>

#include "runtime/fault.hpp"
#include "runtime/value_rules.hpp"

namespace qorvat::members {
namespace {

double shown(double x) { return round_half_even(x, 2); }

// f(K) = (GA GB x^2 - 36) / (6 D) - x / tan x, x = 3.1416 / K; the search stops
// at the first K whose |f| exceeds the one before.
TEST(EffectiveLengthK, BothFormulasOverTheTable) {
  struct Case {
    double GA, GB, K_stability, K_formula;
  };
  const Case cases[] = {
      // Closed: (1.6 + 8 + 7.5) / 9.5 = 1.8, sqrt 1.3416. f(1.19) = -0.024, f(1.2) = -0.323.
      {1, 1, 1.2, 1.34},
      // Closed: (16 + 44 + 7.5) / 18.5 = 3.6486, sqrt 1.9101. The search divides by 6 GA (kept, see
      // below): with 6 (GA + GB) it would give 1.91 here.
      {1, 10, 1.73, 1.91},
      // Closed: (160 + 80 + 7.5) / 27.5 = 9, sqrt 3.
      {10, 10, 3.54, 3},
      // Closed: (1.6 + 40.4 + 7.5) / 17.6 = 2.8125, sqrt 1.6771. With 6 (GA + GB) the search would give 1.71.
      {0.1, 10, 1.06, 1.68},
      // Closed: (16000 + 800 + 7.5) / 207.5 = 81, sqrt 9; the search runs out at 10.
      {100, 100, 0, 9},
      // Closed: (9.6 + 20 + 7.5) / 12.5 = 2.968, sqrt 1.7228. f(1.56) = -0.017, f(1.57) = -0.080.
      {2, 3, 1.57, 1.72},
      // Closed: (0.4 + 4 + 7.5) / 8.5 = 1.4, sqrt 1.1832. f(1.09) = -0.447, f(1.1) = -1.593.
      {0.5, 0.5, 1.1, 1.18},
      // Closed: (8 + 24 + 7.5) / 13.5 = 2.9259, sqrt 1.7105. f(1.67) = -0.007, f(1.68) = -0.040.
      {5, 1, 1.68, 1.71},
      // GA 0 divides by 1: f = -6 - x / tan x; f(1.16) = -0.146, f(1.17) = -0.532. Closed: 7.5 / 7.5.
      {0, 0, 1.17, 1},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(shown(k_by_stability_search(c.GA, c.GB)), c.K_stability) << c.GA << ", " << c.GB;
    EXPECT_EQ(shown(k_by_closed_formula(c.GA, c.GB)), c.K_formula) << c.GA << ", " << c.GB;
  }
}

// Kept as the program has always computed it: 6 GA alone, not 6 (GA + GB); the
// table above shows what it makes of GA 1, GB 10 and GA 0.1, GB 10.
TEST(EffectiveLengthK, DenominatorIsSixTimesGaAlone) {
  // GA 1, GB 1, x = 3.1416 / 1.5 = 2.0944: (4.3865 - 36) / 6 - 2.0944 / tan(2.0944) = -5.2689 + 1.2092.
  EXPECT_NEAR(stability_residual(1.5, 1, 1), -4.0597, 1e-4);
}

// Kept: one step past the smallest residual, not the smallest itself, and K
// reached by adding 0.01 again and again.
TEST(EffectiveLengthK, StopsOneStepPastTheSmallestResidual) {
  EXPECT_LT(std::abs(stability_residual(1.19, 1, 1)), std::abs(stability_residual(1.2, 1, 1)));  // yet K is 1.2
  EXPECT_EQ(k_by_stability_search(10, 10), 3.539999999999968);  // 1.05 + 249 additions, not 3.54
}

TEST(EffectiveLengthK, SearchBoundsAtBothEnds) {
  // |f(1.05)| = 78.66 already exceeds |f(1.01)| = 1.60: the smallest K the search gives.
  EXPECT_EQ(shown(k_by_stability_search(0.06, 1)), 1.05);
  EXPECT_EQ(shown(k_by_stability_search(0.1, 1)), 1.06);
  // The last K tried is 1.05 + 895 additions = 9.99999999999983; reckoned as 1.05 + 895 * 0.01 it
  // would be 10.000000000000002, past the bound, and 64.3 would find no stop. Slightly stiffer, none is found.
  EXPECT_EQ(shown(k_by_stability_search(64.3, 64.3)), 10);
  EXPECT_EQ(k_by_stability_search(64.4, 64.4), 0);
}

TEST(EffectiveLengthK, ClosedFormulaFaultsWithoutARoot) {
  // GA -20, GB 1: (-32 - 76 + 7.5) / -11.5 = 8.739, sqrt 2.956. GA -5, GB 1: (-8 - 16 + 7.5) / 3.5 < 0.
  EXPECT_EQ(shown(k_by_closed_formula(-20, 1)), 2.96);
  EXPECT_THROW(k_by_closed_formula(-5, 1), RuntimeFault);
  EXPECT_THROW(k_by_closed_formula(-7.5, 0), RuntimeFault);  // denominator 0
}

// The frame worked through by hand, node by node.
EffectiveLengthInput worked_frame() {
  EffectiveLengthInput in;
  in.right_A = {600, 12000, 600, 0, FarEnd::Continuous};  // b1 = 20
  in.left_A = {500, 10000, 400, 0, FarEnd::Fixed};        // b2 = 20 * 0.667 = 13.34
  in.above_A = {300, 9000, 700, 0.2};                     // 30
  in.studied = {300, 12000, 800, 0.3};                    // 40
  in.right_B = {400, 8000, 500, 60, FarEnd::Continuous};  // 20 cos2(60.0002 deg) = 4.99996
  in.left_B = {500, 5000, 300, 0, FarEnd::Simple};        // 10 * 0.5 = 5
  in.below_B = {400, 16000, 900, 0.2};                    // 40
  in.Fyc = 3000;
  in.Fyb = 2400;
  return in;
}

TEST(EffectiveLengthFrame, RestraintRatiosOfTheWorkedFrame) {
  const EffectiveLengthResult r = effective_length_factor(worked_frame());
  EXPECT_EQ(r.c2, 0.667);
  EXPECT_EQ(r.c4, 0.5);
  EXPECT_DOUBLE_EQ(r.SbA, 33.34);
  EXPECT_DOUBLE_EQ(r.ScA, 70);
  EXPECT_NEAR(r.GA, 70 / 33.34, 1e-12);
  EXPECT_NEAR(r.b3, 4.9999576, 1e-6);  // 3.1416 is not pi, so not quite 5
  EXPECT_NEAR(r.GB, 80 / 9.9999576, 1e-6);
  EXPECT_EQ(shown(r.K_stability), 2.11);  // f(2.1) = 0.014, f(2.11) = -0.024
  EXPECT_EQ(shown(r.K_formula), 2.06);    // (26.875 + 40.398 + 7.5) / 17.5996 = 4.2486
  EXPECT_EQ(r.MPc_MPb_A, 0);              // no joint calculation asked
}

TEST(EffectiveLengthFrame, StrongColumnRatioAtBothNodes) {
  EffectiveLengthInput in = worked_frame();
  in.joint_calculation = true;
  // A: (700 * 0.8 + 800 * 0.7) * 3000 / (1000 * 2400) = 1.4; B: (560 + 720) * 3000 / (800 * 2400) = 2.
  EffectiveLengthResult r = effective_length_factor(in);
  EXPECT_DOUBLE_EQ(r.MPc_MPb_A, 1.4);
  EXPECT_DOUBLE_EQ(r.MPc_MPb_B, 2);
  // No beam moduli: the denominators become 1. No node B: 0 there.
  in.right_A.Z = in.left_A.Z = 0;
  in.foot = ColumnFoot::FixedSupport;
  r = effective_length_factor(in);
  EXPECT_DOUBLE_EQ(r.MPc_MPb_A, 3360000);
  EXPECT_EQ(r.MPc_MPb_B, 0);
}

TEST(EffectiveLengthFrame, SupportAtTheFootSetsGbWhateverNodeBHolds) {
  EffectiveLengthInput in = worked_frame();
  in.foot = ColumnFoot::SimpleSupport;
  EXPECT_EQ(effective_length_factor(in).GB, 10);
  in.foot = ColumnFoot::FixedSupport;
  const EffectiveLengthResult r = effective_length_factor(in);
  EXPECT_EQ(r.GB, 1);
  EXPECT_EQ(r.b3 + r.b4 + r.cBlow + r.SbB + r.ScB, 0);
}

TEST(EffectiveLengthFrame, RemovedMembersDivideByOne) {
  EffectiveLengthInput in;  // everything 0
  const EffectiveLengthResult r = effective_length_factor(in);
  EXPECT_EQ(r.SbA, 1);
  EXPECT_EQ(r.SbB, 1);
  EXPECT_EQ(r.GA, 0);
  EXPECT_EQ(r.studied_L, 1);
  EXPECT_EQ(shown(r.K_stability), 1.17);
  EXPECT_EQ(r.K_formula, 1);
  // A beam at 90 degrees keeps a trace of stiffness: cos(1.5708) = -3.67e-6.
  in.right_A = {600, 12000, 0, 90, FarEnd::Continuous};
  const double b1 = effective_length_factor(in).b1;
  EXPECT_GT(b1, 0);
  EXPECT_LT(b1, 1e-9);
}

}  // namespace
}  // namespace qorvat::members
