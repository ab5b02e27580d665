#include "members/web_shear.hpp"

#include "runtime/fault.hpp"
#include "runtime/value_rules.hpp"

namespace qorvat::members {

double web_shear_limit(double c, double kv, double E, double Fy) {
  return round_half_even(c * checked_sqrt(checked_div(kv * E, Fy)), 2);
}

double web_slenderness(double h, double tw) { return round_half_even(checked_div(h, tw), 2); }

double cv_beyond_yield(double hw, double p, double q, double E, double Fy) {
  if (hw <= q) return checked_div(p, hw);
  return checked_div(7.55 * E, hw * hw * Fy);
}

double cv_1392(double hw, double E, double Fy) {
  const double a = round_half_even(2.24 * checked_sqrt(checked_div(E, Fy)), 2);
  const double p = web_shear_limit(1.1, 5, E, Fy);
  const double q = web_shear_limit(1.37, 5, E, Fy);
  if (hw <= a || hw <= p) return 1;
  return cv_beyond_yield(hw, p, q, E, Fy);
}

}  // namespace qorvat::members
