#include "members/beam_end_force.hpp"

#include "runtime/fault.hpp"

namespace qorvat::members {

FlangeForceResult flange_force(const FlangeForceInput& in) {
  if (in.h == 0) return {};
  return {.T = checked_div(checked(in.Z * in.Fy * in.Qb), in.h)};
}

}  // namespace qorvat::members
