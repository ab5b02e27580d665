// Facade wind pressure: the three exposures at and beside their floors, the
// opening cases, the least pressure of publication 714 and the input checks.

#include <gtest/gtest.h>

#include "loads/facade_wind.hpp"
#include "runtime/fault.hpp"

namespace qorvat::loads {
namespace {

TEST(WindExposure, EachBranchAndItsFloor) {
  struct Case {
    Exposure exposure;
    double Z, Ce;
  } const cases[] = {
      // Open: (Z/10)^0.2 with floor 0.9, met at Z = 10 * 0.9^5 = 5.9049.
      {Exposure::Open, 5, 0.9},  // 0.5^0.2 = 0.8706
      {Exposure::Open, 5.9, 0.9},
      {Exposure::Open, 6, 0.9028804514474342},
      {Exposure::Open, 20, 1.148698354997035},  // 2^0.2
      // Dense: 0.7 (Z/12)^0.3 with floor 0.7, met at Z = 12.
      {Exposure::Dense, 11, 0.7},
      {Exposure::Dense, 13, 0.7170124090441509},
      // Between, also when neither other is chosen: the mean of the limited values.
      {Exposure::Between, 5, 0.8},
      {Exposure::Between, 20, (1.148698354997035 + 0.815929555483501) / 2},
  };
  for (const Case& c : cases) {
    EXPECT_NEAR(exposure_factor(c.exposure, c.Z), c.Ce, 1e-12) << static_cast<int>(c.exposure) << " Z=" << c.Z;
  }
  EXPECT_THROW(exposure_factor(Exposure::Open, -5), RuntimeFault);  // a negative base to a fractional power
}

// q = 0.47, Z = 20, open country, Cg = 2.5, Cp = 0.9, Cd = 0.85, Cgi = 2:
// P = 0.47 * 1.148698 * 2.5 * 0.9 * 0.85 * 101.94 = 105.25674; Pi = 93.5614 per unit of Cpi.
FacadeWindInput open_country(bool openings, double Cpi) {
  // clang-format off
  return {.q = 0.47, .Z = 20, .Iw = 1, .Ct = 1, .Cg = 2.5, .Cp = 0.9, .Cd = 0.85, .Cpi = Cpi, .Cgi = 2,
          .exposure = Exposure::Open, .openings = openings};
  // clang-format on
}

TEST(WindPressure, OpeningCases) {
  struct Case {
    bool openings;
    double Cpi, Pi, Pt;
  } const cases[] = {
      {false, 0.7, 0, 105.25674},  // without openings Cpi is ignored
      {true, 0, 0, 105.25674},
      {true, 0.3, 28.06846, 77.18828},
      {true, -0.45, -42.10270, 147.35944},  // suction behind the facade adds
      {true, -0.7, -65.49308, 170.74983},
  };
  for (const Case& c : cases) {
    const FacadeWindResult r = facade_wind_pressure(open_country(c.openings, c.Cpi));
    EXPECT_NEAR(r.P, 105.25674, 1e-4) << c.Cpi;
    EXPECT_NEAR(r.Pi, c.Pi, 1e-4) << c.Cpi;
    EXPECT_NEAR(r.Pt, c.Pt, 1e-4) << c.Cpi;
  }
}

TEST(WindPressure, LeastPressureOfPublication714) {
  // q = 0.3 at Z = 5: P = 0.3 * 0.9 * 2.5 * 0.9 * 0.85 * 101.94 = 52.64, raised to 78 under 714.
  FacadeWindInput in = open_country(false, 0);
  in.q = 0.3;
  in.Z = 5;
  EXPECT_NEAR(facade_wind_pressure(in).P, 52.6393, 1e-4);
  in.publication_714 = true;
  EXPECT_EQ(facade_wind_pressure(in).Pt, 78);
  FacadeWindInput above = open_country(false, 0);
  above.publication_714 = true;
  EXPECT_NEAR(facade_wind_pressure(above).P, 105.25674, 1e-4);
}

TEST(WindPressure, InputChecks) {
  struct Case {
    double FacadeWindInput::*field;
    double value;
    FacadeWindCheck check;
  } const cases[] = {
      // clang-format off
      {&FacadeWindInput::Z, 0, FacadeWindCheck::MissingInput},   {&FacadeWindInput::q, 0, FacadeWindCheck::MissingInput},
      {&FacadeWindInput::Ct, 0, FacadeWindCheck::MissingInput},  {&FacadeWindInput::Cg, 0, FacadeWindCheck::MissingInput},
      {&FacadeWindInput::Cp, 0, FacadeWindCheck::MissingInput},  {&FacadeWindInput::Cd, 0, FacadeWindCheck::MissingInput},
      {&FacadeWindInput::Cgi, 0, FacadeWindCheck::Ok},           {&FacadeWindInput::q, 0.29, FacadeWindCheck::BasePressureTooLow},
      {&FacadeWindInput::q, 0.3, FacadeWindCheck::Ok},
      // clang-format on
  };
  for (const Case& c : cases) {
    FacadeWindInput in = open_country(false, 0);
    in.*c.field = c.value;
    EXPECT_EQ(facade_wind_pressure(in).check, c.check) << c.value;
  }
}

}  // namespace
}  // namespace qorvat::loads
