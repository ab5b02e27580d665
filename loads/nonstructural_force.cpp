#include "loads/nonstructural_force.hpp"

namespace qorvat::loads {

NonstructuralForceResult nonstructural_force(const NonstructuralForceInput& in) {
  NonstructuralForceResult out;
  if (in.Rpu == 0 || in.H == 0) {
    out.check = NonstructuralForceCheck::MissingInput;
    return out;
  }
  if (in.Z > in.H) {
    out.check = NonstructuralForceCheck::ZAboveH;
    return out;
  }
  // A member below the base counts as at the base.
  const double z = in.Z < 0 ? 0 : in.Z / in.H;
  const double A = in.A;
  const double S1 = in.one_plus_S;

  // Fp = 0.4 A ap (1+S) Wp Ip (1 + 2 z/H) / Rpu, within 0.3 and 1.6 A (1+S) Ip Wp.
  double F = 0.4 * A * in.ap * S1 * in.Wp * in.Ip * (1 + 2 * z) / in.Rpu;
  if (F < 0.3 * A * S1 * in.Ip * in.Wp) F = 0.3 * A * S1 * in.Ip * in.Wp;
  if (F > 1.6 * A * S1 * in.Ip * in.Wp) F = 1.6 * A * S1 * in.Ip * in.Wp;
  out.F = F;
  // The post spans one storey, simply supported, with the force at mid-height.
  out.Mu = F * in.h / 4;
  out.Zx = out.Mu * 100000 / 2160;

  out.Sah = 0.4 * A * S1 * (1 + 2 * z);
  out.Cn = 0.4 * A * in.ap * S1 * in.Ip * (1 + 2 * z) / in.Rpu;
  // The shown force has always been the bare bound when Cn leaves its bounds.
  out.Vpu = F;
  if (out.Cn < 0.3 * A * S1 * in.Ip) out.Vpu = 0.3 * A * S1 * in.Ip;
  if (out.Cn > 1.6 * A * S1 * in.Ip) out.Vpu = 1.6 * A * S1 * in.Ip;
  out.Saz = 0.2 * A * S1 * in.Ip;
  return out;
}

}  // namespace qorvat::loads
