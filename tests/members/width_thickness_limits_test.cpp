// Width-thickness limits row by row, at and beside each Ca threshold, worked by
// hand with E = 2040000, Fy = 2400: s = 850^0.5 = 29.15476; Ry 1.15: S = 27.18695.

#include "members/width_thickness_limits.hpp"

#include <gtest/gtest.h>

namespace qorvat::members {
namespace {

constexpr auto k1401 = SeismicCode::Mabhas1401;
constexpr auto k1392 = SeismicCode::Mabhas1392;
constexpr auto kAisc = SeismicCode::Aisc341_16;
constexpr auto kHigh = Ductility::High;
constexpr auto kMedium = Ductility::Medium;
constexpr LimitBasis kBasis{2040000, 2400, 1.15};
constexpr double kClose = 5e-4;

TEST(WidthThicknessLimits, WebAndFlangeRowByRow) {
  const struct {
    SeismicCode code;
    Ductility ductility;
    double lf, Ca, lw;
  } rows[] = {
      // 1401: low formula up to 0.113, then the high one, lifted to the floor 1.56 S = 42.4116.
      {k1401, kHigh, 8.1561, 0.113, 58.7803},     // 0.3 S; 2.45 S (1 - 1.04 * 0.113)
      {k1401, kHigh, 8.1561, 0.114, 58.7808},     // 2.26 S (1 - 0.38 * 0.114)
      {k1401, kHigh, 8.1561, 0.5, 49.7684},       // above the floor: the formula stands
      {k1401, kHigh, 8.1561, 0.9, 42.4116},       // 40.43 lifted
      {k1401, kMedium, 10.3310, 0.113, 66.9918},  // 0.38 S; 3.76 S (1 - 3.05 * 0.113)
      {k1401, kMedium, 10.3310, 0.114, 66.9942},  // 2.61 S (1 - 0.49 * 0.114)
      // 1392: high formula cut down to 1.49 s = 43.4406, so just past 0.125 the limit drops.
      {k1392, kHigh, 8.7464, 0.125, 63.1255},     // 0.3 s; 2.45 s (1 - 0.93 * 0.125)
      {k1392, kHigh, 8.7464, 0.126, 43.4406},     // 0.77 s (2.93 - 0.126) = 62.95, cut
      {k1392, kHigh, 8.7464, 1.2, 38.8371},       // 0.77 s * 1.73, under the ceiling
      {k1392, kMedium, 11.0788, 0.125, 71.9394},  // 0.38 s; 3.76 s (1 - 2.75 * 0.125)
      {k1392, kMedium, 11.0788, 1.2, 36.8983},    // 1.12 s * 1.13
      // AISC 341-16: high formula on s, its ceiling 1.57 S = 42.6835 on S.
      {kAisc, kHigh, 8.6998, 0.114, 61.5866},  // 0.32 S; 2.57 S (1 - 1.04 * 0.114)
      {kAisc, kHigh, 8.6998, 0.115, 42.6835},
      {kAisc, kHigh, 8.6998, 1.5, 30.2743},       // 0.88 s * 1.18
      {kAisc, kMedium, 10.8748, 0.114, 70.3496},  // 0.4 S; 3.96 S (1 - 3.04 * 0.114)
      {kAisc, kMedium, 10.8748, 1.5, 23.3180},    // 1.29 s * 0.62
  };
  for (const auto& r : rows) {
    EXPECT_NEAR(i_flange_limit(r.code, r.ductility, kBasis), r.lf, kClose) << r.lf;
    EXPECT_NEAR(web_limit(r.code, r.ductility, kBasis, r.Ca), r.lw, kClose) << r.lf << " Ca " << r.Ca;
  }
}

TEST(WidthThicknessLimits, The1392EditionKnowsNoRy) {
  for (double Ry : {0.0, 1.15, 2.0}) {
    const LimitBasis basis{2040000, 2400, Ry};
    EXPECT_NEAR(i_flange_limit(k1392, kHigh, basis), 8.7464, kClose) << Ry;
    EXPECT_NEAR(web_limit(k1392, kMedium, basis, 0.3), 43.4406, kClose) << Ry;
    EXPECT_NEAR(box_flange_limit(k1392, kHigh, FrameType::SpecialMoment, basis), 17.4929, kClose) << Ry;
  }
}

TEST(WidthThicknessLimits, AiscHighCaFormulaTakesNoRyButItsCeilingDoes) {
  const LimitBasis more_Ry{2040000, 2400, 1.3};  // S = 25.5705, ceiling 40.1456
  EXPECT_NEAR(web_limit(kAisc, kHigh, more_Ry, 1.5), 30.2743, kClose);
  EXPECT_NEAR(web_limit(kAisc, kHigh, more_Ry, 0.5), 40.1456, kClose);
}

TEST(WidthThicknessLimits, FlangeOfTheBox) {
  const struct {
    SeismicCode code;
    Ductility ductility;
    FrameType frame;
    double lf;
  } rows[] = {
      {k1401, kHigh, FrameType::SpecialMoment, 14.9528},              // 0.55 S
      {k1392, kHigh, FrameType::SpecialMoment, 17.4929},              // 0.6 s
      {k1392, kHigh, FrameType::SimpleWithSpecialBraces, 16.0351},    // 0.55 s
      {k1392, kMedium, FrameType::SimpleWithSpecialBraces, 32.6533},  // 1.12 s, whatever the frame
      {kAisc, kHigh, FrameType::SimpleWithSpecialBraces, 17.6715},    // 0.65 S
  };
  for (const auto& r : rows) EXPECT_NEAR(box_flange_limit(r.code, r.ductility, r.frame, kBasis), r.lf, kClose);
}

}  // namespace
}  // namespace qorvat::members
