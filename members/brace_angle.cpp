#include "members/brace_angle.hpp"

#include <cmath>

#include "runtime/constants.hpp"
#include "runtime/fault.hpp"

namespace qorvat::members {

BraceAngleResult brace_angle(const BraceAngleInput& in) {
  BraceAngleResult out;
  if (in.H == 0 || in.L == 0) {
    out.missing_input = true;
    return out;
  }
  const double m = in.x_brace ? 1 : 0.5;
  out.Alpha = radians_to_degrees(std::atan(checked_div(in.H, in.L * m)));
  return out;
}

}  // namespace qorvat::members
