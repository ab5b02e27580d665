#include "sections/shear_capacity.hpp"

#include "runtime/fault.hpp"

namespace qorvat::sections {

ShearCapacityResult shear_capacity(const ShearCapacityInput& in) {
  ShearCapacityResult r;
  r.k = in.splice_1401 ? 0.75 : 1.0;
  r.c = in.ultimate ? 0.6 : 0.4;
  // Web yielding in shear, 0.6 Fy Aw (0.4 Fy Aw allowable), times Ry and Cv.
  r.P = checked(r.k * r.c * in.Fy * in.Aw * in.Ry * in.CvQ);
  return r;
}

}  // namespace qorvat::sections
