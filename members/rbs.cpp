#include "members/rbs.hpp"

#include "runtime/fault.hpp"
#include "runtime/value_rules.hpp"

namespace qorvat::members {

bool outside(const RbsRange& range) { return range.minimum > range.value || range.maximum < range.value; }

RbsRanges rbs_ranges(double bf, double d) {
  const auto range = [](double lo, double hi) { return RbsRange{round_half_even(lo, 2), 0, round_half_even(hi, 2)}; };
  return {range(bf * 0.5, bf * 0.75), range(0.65 * d, 0.85 * d), range(bf * 0.1, bf * 0.25)};
}

double reduced_flange_width(double bf, double c) { return bf - 2 * c; }

double rbs_centre_from_face(double a, double b) { return b / 2 + a; }

double rbs_drift_increase(double c, double c_max) { return checked_div(0.1 * c, c_max) + 1; }

double rbs_cut_radius(double b, double c) { return checked_div(b * b + 4 * c * c, 8 * c); }

}  // namespace qorvat::members
