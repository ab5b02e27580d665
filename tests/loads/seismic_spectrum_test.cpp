// The design spectrum: B1 and N of each soil row at and beside T0, Ts and
// 4 s, and the array over a range of periods.

#include <gtest/gtest.h>

#include <string>

#include "loads/design_spectrum.hpp"
#include "runtime/fault.hpp"

namespace qorvat::loads {
namespace {

using enum SoilType;
using enum Hazard;

// Worked by hand: below T0 B1 = S0 + (S - S0 + 1)·T/T0; from T0 to Ts B1 = S + 1; past Ts
// B1 = (S + 1)·Ts/T. N = 1 up to Ts, 1 + n·(T - Ts)/(4 - Ts) below 4, 1 + n from 4 on.
TEST(SpectralAcceleration, AtAndBesideTheCorners) {
  struct Case {
    SoilType soil;
    Hazard hazard;
    double T, B1, N;
  };
  // clang-format off
  const Case cases[] = {
      {I, Moderate, 0.05, 1.75, 1},  {I, Moderate, 0.1, 2.5, 1},     {I, Moderate, 0.4, 2.5, 1},
      {I, Moderate, 0.5, 2.0, 1.0111111111111111},                   {I, Moderate, 4, 0.25, 1.4},
      {I, VeryHigh, 3.9, 0.25641025641025639, 1.6805555555555556},  {I, VeryHigh, 4, 0.25, 1.7},
      {II, High, 0.5, 2.5, 1},       {II, High, 0.6, 2.0833333333333333, 1.02},
      {III, Moderate, 0.1, 2.2, 1},  {III, Moderate, 0.7, 2.75, 1},  {III, Moderate, 0.8, 2.40625, 1.0121212121212122},
      {IV, Low, 0.1, 2.6, 1},        {IV, Low, 1.1, 2.9545454545454546, 1.0133333333333334},
      {IV, VeryHigh, 1.0, 2.75, 1},  {IV, VeryHigh, 5, 0.55, 1.7},
  };
  // clang-format on
  for (const Case& c : cases) {
    const auto r =
        spectral_acceleration({0.3, c.T, *spectrum_parameters(c.soil, c.hazard), modification_exponent(c.hazard)});
    EXPECT_NEAR(r.B1, c.B1, 1e-12) << static_cast<int>(c.soil) << " T=" << c.T;
    EXPECT_NEAR(r.N, c.N, 1e-12) << static_cast<int>(c.soil) << " T=" << c.T;
    EXPECT_NEAR(r.BA, 0.3 * c.B1 * c.N, 1e-12);
  }
  // Soil I, very high, 0.5 s: B.A = 0.35·2·(1 + 0.7·0.1/3.6) = 0.713611.
  EXPECT_NEAR(spectral_acceleration({0.35, 0.5, *spectrum_parameters(I, VeryHigh), 0.7}).BA, 0.7136111111, 1e-10);
  // Without both a soil and a hazard no row applies (the dialog keeps its last values).
  EXPECT_FALSE(spectrum_parameters(I, std::nullopt).has_value());
  EXPECT_FALSE(spectrum_parameters(std::nullopt, High).has_value());
  // A negative period is in no branch of B1.
  EXPECT_EQ(spectral_acceleration({0.35, -0.2, *spectrum_parameters(I, Low), 0.4}).BA, 0.0);
}

TEST(DesignSpectrum, OneEntryPerStepFromIndexOne) {
  const SpectrumParameters soil_one = *spectrum_parameters(I, VeryHigh);
  const auto BA = design_spectrum({0.35, 0.01, 4, 0.01, soil_one, 0.7});
  ASSERT_EQ(BA.size(), 401u);
  EXPECT_EQ(BA[0], 0.0);
  EXPECT_NEAR(BA[1], 0.35 * 1.15, 1e-12);  // 0.01 s: B1 = 1 + 1.5·0.01/0.1
  // The 400th period adds 0.01 399 times and lands a hair under 4 s: 0.35·0.25·1.7.
  EXPECT_NEAR(BA[400], 0.14875, 1e-12);
  // From 0 there are 401 periods for 400 entries; from 2 s 201 periods fill them.
  EXPECT_NEAR(design_spectrum({0.35, 0, 4, 0.01, soil_one, 0.7})[1], 0.35, 1e-12);  // B1 = S0
  const auto from_two = design_spectrum({0.35, 2, 4, 0.01, soil_one, 0.7});
  EXPECT_GT(from_two[201], 0.0);
  EXPECT_EQ(from_two[202], 0.0);
  // 0.5/0.2 = 2.5 entries round to the even 2.
  EXPECT_EQ(design_spectrum({0.35, 0.2, 0.5, 0.2, soil_one, 0.7}).size(), 3u);
}

TEST(DesignSpectrum, AbsurdSizesFault) {
  auto fault = [](double tend, double xstep) {
    try {
      design_spectrum({0.35, 0.01, tend, xstep, {}, 0});
    } catch (const RuntimeFault& f) {
      return std::string(f.what());
    }
    return std::string("no fault");
  };
  EXPECT_EQ(fault(4, 0.00001), "no fault");  // 400,000 entries
  EXPECT_EQ(fault(4, 1e-9), "Out of memory");
  EXPECT_EQ(fault(-4, 0.01), "Subscript out of range");
  EXPECT_EQ(fault(4, 0), "Division by zero");
}

}  // namespace
}  // namespace qorvat::loads
