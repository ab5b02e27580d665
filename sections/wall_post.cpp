#include "sections/wall_post.hpp"

#include "runtime/fault.hpp"

namespace qorvat::sections {

WallPostResult wall_post_modulus(const WallPostInput& in) {
  WallPostResult r;
  r.w = checked(in.p * 1.6 * in.S);  // wind load factor 1.6
  r.M = checked(r.w * checked_pow(in.h, 2) / 8);
  r.Mu = r.M / 1000;
  // Zx = Mu / (0.9 Fy) with Fy = 2400 kgf/cm2, the moment taken to kg.cm.
  r.Zx = r.M * 100 / 2160;
  return r;
}

}  // namespace qorvat::sections
