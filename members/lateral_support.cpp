#include "members/lateral_support.hpp"

#include <cmath>

#include "runtime/constants.hpp"
#include "runtime/fault.hpp"

namespace qorvat::members {

LateralBraceAreaResult lateral_brace_area(const LateralBraceAreaInput& in) {
  LateralBraceAreaResult r;
  if (in.ho == 0 || in.Mr == 0 || in.Lb == 0 || in.L == 0 || in.E == 0 || in.th == 0) {
    r.missing_input = true;
    return r;
  }
  // The unit factors stand as the published formula writes them: in all 10 Mr with Mr in kgf.cm.
  const double stiffness_demand = checked(in.L * 10 * 10 * in.Mr * 10000000);
  const double cos_squared = checked_pow(std::cos(degrees_to_radians(in.th)), 2);
  const double stiffness_per_area = checked(in.E * 0.75 * in.Lb * in.ho * 10 * cos_squared);
  r.Areq = checked_div(stiffness_demand, stiffness_per_area) / 100;
  return r;
}

LateralBraceLength lateral_brace_length(double d, double th) {
  if (!(th > 0 && th < 90)) return {};
  return {.applies = true, .L = checked_div(d, std::sin(degrees_to_radians(th)))};
}

}  // namespace qorvat::members
