#pragma once
// The shear a beam web delivers to its connection, from its shear area.

namespace qorvat::sections {

struct ShearCapacityInput {
  double Aw = 0;             // shear area of the web, cm2
  double Fy = 0;             // kgf/cm2
  double Ry = 0;             // expected-strength factor
  double CvQ = 0;            // web shear factor
  bool ultimate = false;     // 0.6 Fy (ultimate resistance) rather than the allowable 0.4 Fy
  bool splice_1401 = false;  // the 1401 splice equivalent takes 0.75 of it
};

struct ShearCapacityResult {
  double k = 0;  // 0.75 for the splice equivalent, else 1
  double c = 0;  // 0.6 or 0.4
  double P = 0;  // kgf
};

ShearCapacityResult shear_capacity(const ShearCapacityInput& in);

}  // namespace qorvat::sections
