#include "concrete/ssi_need.hpp"

#include "runtime/fault.hpp"

namespace qorvat::concrete {

SsiNeedResult ssi_need(const SsiNeedInput& in) {
  SsiNeedResult result;
  result.r = checked_div(in.factor * in.h, in.Vs * in.T);
  result.necessary = !(result.r < 0.1);
  return result;
}

}  // namespace qorvat::concrete
