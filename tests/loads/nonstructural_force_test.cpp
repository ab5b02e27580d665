// The force on a non-structural member: its formula, its two bounds, and the
// bare coefficient shown when Cn leaves its bounds.

#include "loads/nonstructural_force.hpp"

#include <gtest/gtest.h>

namespace qorvat::loads {
namespace {

// A = 0.35, 1+S = 2.75, Wp = 10 ton, H = 12 m, h = 3 m: A (1+S) = 0.9625, so with
// Ip = 1 the bounds are 2.8875 and 15.4 on F, 0.28875 and 1.54 on Cn.
TEST(NonstructuralForce, FormulaBoundsAndShownForce) {
  struct Case {
    const char* road;
    double Z, Rpu, ap, Ip;
    double F, Vpu, Cn;
  } const cases[] = {
      // z = 0.875: F = 0.4 * 0.9625 * 10 * 2.75 = 10.5875.
      {"mid-storey below the roof", 10.5, 1, 1, 1, 10.5875, 10.5875, 1.05875},
      {"Z = H: 1 + 2z = 3", 12, 1, 1, 1, 11.55, 11.55, 1.155},
      {"negative Z counts as the base", -2, 1, 1, 1, 3.85, 3.85, 0.385},
      // Cn = 0.385 / Rpu beside its lower bound 0.28875.
      {"Rpu 1.3 keeps Cn", 0, 1.3, 1, 1, 3.85 / 1.3, 3.85 / 1.3, 0.385 / 1.3},
      // Kept on purpose: F = 2.75 raised to 2.8875, Vpu the bare bound 0.28875, ten times less.
      {"Rpu 1.4 under the bound", 0, 1.4, 1, 1, 2.8875, 0.28875, 0.275},
      {"Rpu 3.5 under the bound", 0, 3.5, 1, 1, 2.8875, 0.28875, 0.11},
      // ap 2.5, Ip 1.4 at the roof: F = 40.425 cut to 1.6*0.35*2.75*1.4*10 = 21.56, Vpu = 2.156.
      {"over the upper bound", 12, 1, 2.5, 1.4, 21.56, 2.156, 4.0425},
  };
  for (const Case& c : cases) {
    const NonstructuralForceResult r = nonstructural_force(
        {.A = 0.35, .one_plus_S = 2.75, .Wp = 10, .Ip = c.Ip, .Rpu = c.Rpu, .ap = c.ap, .Z = c.Z, .H = 12, .h = 3});
    EXPECT_EQ(r.check, NonstructuralForceCheck::Ok) << c.road;
    EXPECT_NEAR(r.F, c.F, 1e-9) << c.road;
    EXPECT_NEAR(r.Vpu, c.Vpu, 1e-9) << c.road;
    EXPECT_NEAR(r.Cn, c.Cn, 1e-9) << c.road;
    // Mu and Zx always come from the bounded force.
    EXPECT_NEAR(r.Mu, c.F * 3 / 4, 1e-9) << c.road;
    EXPECT_NEAR(r.Zx, c.F * 3 / 4 * 100000 / 2160, 1e-6) << c.road;
    EXPECT_NEAR(r.Saz, 0.2 * 0.9625 * c.Ip, 1e-12) << c.road;
  }
  // Sah = 0.4 * 0.9625 * 2.75 at z = 0.875, whatever the member's factors.
  EXPECT_NEAR(nonstructural_force({.A = 0.35, .one_plus_S = 2.75, .Rpu = 2.5, .Z = 10.5, .H = 12}).Sah, 1.05875, 1e-12);
}

TEST(NonstructuralForce, InputChecks) {
  struct Case {
    double Rpu, H, Z;
    NonstructuralForceCheck check;
  } const cases[] = {
      {0, 12, 3, NonstructuralForceCheck::MissingInput},
      {1, 0, 5, NonstructuralForceCheck::MissingInput},  // before Z above H
      {1, 12, 12.01, NonstructuralForceCheck::ZAboveH},
      {1, 12, 12, NonstructuralForceCheck::Ok},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(nonstructural_force({.A = 0.35, .Rpu = c.Rpu, .Z = c.Z, .H = c.H}).check, c.check) << c.Rpu << c.H << c.Z;
  }
}

}  // namespace
}  // namespace qorvat::loads
