// The base shear coefficient with its minimum, the exponent K at its limits,
// and the empirical period.

#include "loads/seismic_coefficient.hpp"

#include <gtest/gtest.h>

#include "runtime/fault.hpp"

namespace qorvat::loads {
namespace {

TEST(SeismicCoefficient, MinimumGovernsAtLongPeriods) {
  // Soil I, very high, 3 s: B.A = 0.35·(2.5·0.4/3)·(1 + 0.7·2.6/3.6) = 0.175648.
  const double BA = 0.35 * (1.0 / 3.0) * (1 + 0.7 * 2.6 / 3.6);
  const auto low = seismic_coefficient({BA, 0.35, 1, 7.5, 3});  // 0.02342 < 0.12·0.35·1
  EXPECT_TRUE(low.minimum_governs);
  EXPECT_DOUBLE_EQ(low.C, 0.042);
  const auto over = seismic_coefficient({BA, 0.35, 1, 4, 3});  // 0.043912, just over
  EXPECT_FALSE(over.minimum_governs);
  EXPECT_NEAR(over.C, 0.0439120, 1e-6);
  EXPECT_FALSE(seismic_coefficient({0.315, 0.35, 1, 7.5, 1}).minimum_governs);  // exactly 0.042
  EXPECT_DOUBLE_EQ(seismic_coefficient({BA, 0.35, 1.4, 7.5, 3}).C, 0.12 * 0.35 * 1.4);
}

TEST(SeismicCoefficient, ExponentKIsContinuousAtItsLimits) {
  struct Case {
    double T, K;
  } const cases[] = {{0.49, 1}, {0.5, 1}, {0.51, 1.005}, {1, 1.25}, {2.49, 1.995}, {2.5, 2}, {2.51, 2}};
  for (const Case& c : cases) EXPECT_DOUBLE_EQ(seismic_coefficient({0.5, 0.35, 1, 5, c.T}).K, c.K) << c.T;
}

TEST(BuildingPeriod, ThreeFormulas) {
  // H = 16 m: 16^0.75 = 8, 16^0.9 = 12.125733.
  EXPECT_DOUBLE_EQ(building_period({16, PeriodFormula::MomentFrameOrEccentricSteelBraces, false}).T, 0.64);
  EXPECT_NEAR(building_period({16, PeriodFormula::ConcreteMomentFrame, false}).T, 0.6062866, 1e-7);
  EXPECT_DOUBLE_EQ(building_period({16, PeriodFormula::DualWallOrConcentricBraces, false}).T, 0.4);
  EXPECT_DOUBLE_EQ(building_period({16, PeriodFormula::DualWallOrConcentricBraces, true}).T, 0.5);
  EXPECT_THROW(building_period({-3, PeriodFormula::ConcreteMomentFrame, false}), RuntimeFault);
}

}  // namespace
}  // namespace qorvat::loads
