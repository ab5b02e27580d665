#include "loads/facade_wind.hpp"

#include "runtime/fault.hpp"

namespace qorvat::loads {
namespace {

constexpr double kKiloNewtonToKgf = 101.94;  // kN/m2 to kg/m2
constexpr double kLeastBasePressure = 0.3;   // kN/m2
constexpr double kLeastPressure714 = 78;     // kg/m2

double open_exposure(double Z) {
  const double Ce = checked_pow(Z / 10, 0.2);
  return Ce < 0.9 ? 0.9 : Ce;
}

double dense_exposure(double Z) {
  const double Ce = 0.7 * checked_pow(Z / 12, 0.3);
  return Ce < 0.7 ? 0.7 : Ce;
}

}  // namespace

double exposure_factor(Exposure exposure, double Z) {
  switch (exposure) {
    case Exposure::Open: return open_exposure(Z);
    case Exposure::Dense: return dense_exposure(Z);
    case Exposure::Between: break;
  }
  return (open_exposure(Z) + dense_exposure(Z)) / 2;
}

FacadeWindResult facade_wind_pressure(const FacadeWindInput& in) {
  FacadeWindResult out;
  if (in.Z == 0 || in.q == 0 || in.Ct == 0 || in.Cg == 0 || in.Cp == 0 || in.Cd == 0) {
    out.check = FacadeWindCheck::MissingInput;
    return out;
  }
  if (in.q < kLeastBasePressure) {
    out.check = FacadeWindCheck::BasePressureTooLow;
    return out;
  }
  out.Ce = exposure_factor(in.exposure, in.Z);
  out.P = in.Iw * in.q * out.Ce * in.Ct * in.Cg * in.Cp * in.Cd * kKiloNewtonToKgf;
  if (in.publication_714 && out.P < kLeastPressure714) out.P = kLeastPressure714;
  if (in.openings) {
    out.Pi = in.Iw * in.q * out.Ce * in.Ct * in.Cgi * in.Cpi * in.Cd * kKiloNewtonToKgf;
    out.Pt = out.P - out.Pi;
  } else {
    out.Pt = out.P;
  }
  return out;
}

}  // namespace qorvat::loads
