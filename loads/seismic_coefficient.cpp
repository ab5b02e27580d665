#include "loads/seismic_coefficient.hpp"

#include "runtime/fault.hpp"

namespace qorvat::loads {

SeismicCoefficientResult seismic_coefficient(const SeismicCoefficientInput& in) {
  SeismicCoefficientResult r;
  r.C = checked(checked_div(in.BA * in.I, in.Ru));
  // Standard 2800: the base shear coefficient is not less than 0.12·A·I.
  const double minimum = 0.12 * in.A * in.I;
  if (r.C < minimum) {
    r.C = minimum;
    r.minimum_governs = true;
  }
  if (in.T > 2.5) {
    r.K = 2;
  } else if (in.T < 0.5) {
    r.K = 1;
  } else {
    r.K = 0.5 * in.T + 0.75;
  }
  return r;
}

BuildingPeriodResult building_period(const BuildingPeriodInput& in) {
  double T = 0;
  switch (in.formula) {
    case PeriodFormula::MomentFrameOrEccentricSteelBraces: T = 0.08 * checked_pow(in.H, 0.75); break;
    case PeriodFormula::ConcreteMomentFrame: T = 0.05 * checked_pow(in.H, 0.9); break;
    case PeriodFormula::DualWallOrConcentricBraces: T = 0.05 * checked_pow(in.H, 0.75); break;
  }
  if (in.raised) T = 1.25 * T;
  return {T};
}

}  // namespace qorvat::loads
