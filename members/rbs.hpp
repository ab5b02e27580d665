#pragma once
// Reduced beam section (AISC 358 chapter 5): the admissible ranges of the
// radius cut and its geometry. a: distance of the cut from the column face,
// b: its length, c: its depth; all in cm.

namespace qorvat::members {

// minimum < value < maximum as the dialog lays a row out.
struct RbsRange {
  double minimum = 0, value = 0, maximum = 0;
};

// A value equal to a limit of its range passes.
bool outside(const RbsRange& range);

struct RbsRanges {
  RbsRange a, b, c;
};

// The ranges a section of flange width bf and total depth d admits: a from 0.5 to
// 0.75 bf, b from 0.65 to 0.85 d, c from 0.1 to 0.25 bf, each rounded to 2 decimals.
RbsRanges rbs_ranges(double bf, double d);

// The flange width left at the cut: bf - 2 c.
double reduced_flange_width(double bf, double c);
// Distance of the reduced section's centre from the column face: b / 2 + a.
double rbs_centre_from_face(double a, double b);
// Increase factor of the storey drift: 0.1 c / c_max + 1.
double rbs_drift_increase(double c, double c_max);
// Radius of the cut: (b^2 + 4 c^2) / (8 c).
double rbs_cut_radius(double b, double c);

}  // namespace qorvat::members
