#pragma once
// Wind pressure on a facade element at a height (national building
// regulation, part 6), with the internal pressure of openings when asked.

namespace qorvat::loads {

// The exposure options in their order; Between is also what runs when
// neither of the other two is chosen.
enum class Exposure { Open, Dense, Between };

struct FacadeWindInput {
  double q = 0;    // base wind pressure, kN/m2
  double Z = 0;    // height of the element, m
  double Iw = 0;   // importance factor
  double Ct = 0;   // topography
  double Cg = 0;   // gust
  double Cp = 0;   // external pressure
  double Cd = 0;   // directionality
  double Cpi = 0;  // internal pressure of the opening case
  double Cgi = 0;  // internal gust
  Exposure exposure = Exposure::Between;
  bool openings = false;         // the internal pressure counts
  bool publication_714 = false;  // either tick of publication 714, 2nd edition
};

enum class FacadeWindCheck { Ok, MissingInput, BasePressureTooLow };

struct FacadeWindResult {
  FacadeWindCheck check = FacadeWindCheck::Ok;
  double Ce = 0;  // exposure factor
  double P = 0;   // facade pressure, kg/m2
  double Pi = 0;  // internal pressure, kg/m2
  double Pt = 0;  // net pressure, kg/m2
};

// Ce at height Z, each exposure's value kept above its floor.
double exposure_factor(Exposure exposure, double Z);

FacadeWindResult facade_wind_pressure(const FacadeWindInput& in);

}  // namespace qorvat::loads
