#include "sections/connection_demand.hpp"

#include <algorithm>

#include "runtime/fault.hpp"

namespace qorvat::sections {
namespace {

// 0.6 * 0.75 as the double it has always been computed to, one step below 0.45:
// the figures compared with it depend on that last bit.
constexpr double kWebShearFactor = 0.44999999999999996;

// a / (Ln - 2 L1), and 0 when there is no span at all.
double over_clear_span(double a, double Ln, double L1) { return Ln == 0 ? 0 : checked_div(a, Ln - 2 * L1); }

}  // namespace

double ultimate_Cpr(double Fy, double Fu) { return std::clamp(checked_div(Fy + Fu, 2 * Fy), 1.1, 1.2); }

double hinge_shear_moment(const HingeShearMomentInput& in) {
  const double alpha = in.ultimate ? 1.0 : in.alpha;
  return checked_div(2 * alpha * in.Cpr * in.S * in.Ry * in.Fy * in.L1, in.Ln - 2 * in.L1);
}

ConnectionDemandResult connection_demand(const ConnectionDemandInput& in) {
  ConnectionDemandResult r;
  const double alpha = in.ultimate ? 1.0 : in.alpha;
  r.Mp = checked(in.Fy * in.S * in.Ry * in.Cpr);
  r.M = checked(alpha * r.Mp + in.Mg + in.Mw + in.Vw * in.L1);
  // Vd first: a span of exactly 2 L1 faults here, as it always has.
  const double alpha_part = over_clear_span(2 * alpha * r.Mp, in.Ln, in.L1);
  const double gravity_part = over_clear_span(2 * in.Vw * in.L1, in.Ln, in.L1);
  r.Vd = alpha_part + gravity_part;
  r.Vt = (in.Vw + r.Vd) / 1000;
  const double hinge_part = over_clear_span(2 * r.Mp, in.Ln, in.L1);
  // Capacity design shear, AISC 341: the gravity shear plus 2 Mpr / Lh; alpha stays out of it.
  r.Ve = in.Ln == 0 ? 0 : in.Mw + hinge_part + gravity_part;
  r.V32 = in.Ln == 0 ? 0 : in.Vw + hinge_part + gravity_part;
  r.Vm = checked(in.Fy * kWebShearFactor * in.hb * in.s);
  r.Iw = checked(checked_pow(in.hb - 2 * in.t, 3) * in.s / 12);
  r.Mweb = in.Ix == 0 ? 0 : checked(checked_div(r.Iw, in.Ix) * r.Mp);
  return r;
}

}  // namespace qorvat::sections
