// The box of Check Section, worked by hand with E = 2040000 and Fy = 2400
// (s = 29.15476): the flange search, properties, shear, weld and its colour.

#include "members/check_section_box.hpp"

#include <gtest/gtest.h>

#include <string>

#include "runtime/fault.hpp"

namespace qorvat::members {
namespace {

constexpr auto k1401 = SeismicCode::Mabhas1401;
constexpr auto kAisc = SeismicCode::Aisc341_16;

TEST(CheckSectionBox, FlangeSearchStopsWithinOnePercent) {
  const struct {
    double b, lf, tf;
  } rows[] = {
      {30, 17.4929, 1.53},  // q(1.53) = Round(26.94 / 17.4929) = 1.54, and 0.99 * 1.54 <= 1.53
      {10, 17.4929, 0.51},  // q(0.50) = 0.51 > 0.5 / 0.99; q(0.51) = 0.51
      {100, 8, 9.92},       // q(9.92) = 10.02: taken before tf reaches it
  };
  for (const auto& r : rows) EXPECT_NEAR(box_flange_thickness(r.b, r.lf), r.tf, 1e-9) << r.b;
  // 1401, Ry 1.15, lf = 14.9528, b = 10.08: q(0.59) = 0.6 and q(0.60) = 0.59, so the step jumps
  // over the band and tf would grow for ever.
  try {
    box_required_thicknesses({.code = k1401, .E = 2040000, .Fy = 2400, .h = 20, .b = 10.08, .Ry = 1.15});
    ADD_FAILURE() << "no fault";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(std::string(fault.what()), fault_text::kLoopLimit);
  }
}

BoxSectionInput welded_box(SeismicCode code, double h, double tw) {
  return {.code = code, .E = 2040000, .Fy = 2400, .h = h, .b = 30, .tf = 1.53, .tw = tw, .Fue = 4200, .Q = 0.75};
}

TEST(CheckSectionBox, WeldAndShares) {
  const BoxSection r = box_section(welded_box(SeismicCode::Mabhas1392, 40, 0.56));
  EXPECT_NEAR(r.Rw, 0.131069, 1e-6);  // 2 * 40^3 * 0.56 / 12 / 45574.04
  // hw = 71.43 up to p: Cv 1, factor 1, m 0.93. V = 59996.16, Qf = 30 * 1.53 * 41.53 / 2,
  // aw = V Qf / (2 Ix 0.56) / (0.45 * 0.75 * 4200 * 0.707).
  EXPECT_NEAR(r.aw, 1.117867, 1e-6);
  EXPECT_TRUE(r.weld_too_large);
  EXPECT_NEAR(r.flange_share, 0.336018, 1e-6);  // one flange, 45.9 / 136.6
}

TEST(CheckSectionBox, ShearSlendernessByEdition) {
  // h 80, tf 1.53, tw 1. 1401 designs on h / tf = 52.29: Cv 1, factor 0.9, m 1. A typed web
  // takes h / tw = 80: Cv = 71.71 / 80. AISC: p = 74.11, Cv = 74.11 / 80, factor 1, m 0.93.
  const struct {
    SeismicCode code;
    bool web_typed;
    double hw, Cv, aw;
  } rows[] = {{k1401, false, 52.29, 1, 0.813678},
              {k1401, true, 80, 0.896375, 0.729360},
              {kAisc, false, 80, 0.926375, 0.778897}};
  for (const auto& r : rows) {
    BoxSectionInput in = welded_box(r.code, 80, 1);
    in.web_typed = r.web_typed;
    const BoxSection b = box_section(in);
    EXPECT_NEAR(b.hw, r.hw, 1e-9);
    EXPECT_NEAR(b.Cv, r.Cv, 1e-6) << r.hw;
    EXPECT_NEAR(b.aw, r.aw, 1e-6) << r.hw;
  }
}

TEST(CheckSectionBox, WeldColourThresholds) {
  const struct {
    double aw, tw;
    bool red;
  } rows[] = {
      {0.6, 0.8, false}, {0.61, 0.8, true}, {0.41, 0.61, false}, {0.42, 0.61, true},  // above 6 mm: tw - 0.2
      {0.5, 0.6, false}, {0.6, 0.6, false}, {0.61, 0.6, true},                        // up to 6 mm: tw
  };
  for (const auto& r : rows) EXPECT_EQ(weld_exceeds_plate(r.aw, r.tw), r.red) << r.aw << " " << r.tw;
}

}  // namespace
}  // namespace qorvat::members
