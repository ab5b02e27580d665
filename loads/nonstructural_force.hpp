#pragma once
// Seismic design force on a non-structural member (Standard 2800, 4th
// edition, chapter 4) and the section modulus of the wall post that holds it.

namespace qorvat::loads {

struct NonstructuralForceInput {
  double A = 0;           // design base acceleration, g
  double one_plus_S = 0;  // 1+S of the site's spectrum
  double Wp = 0;          // member weight, ton
  double Ip = 0;          // importance factor
  double Rpu = 0;         // member behaviour factor
  double ap = 0;          // amplification factor
  double Z = 0;           // height of the member's centre, m
  double H = 0;           // roof height, m
  double h = 0;           // storey height, m
};

enum class NonstructuralForceCheck { Ok, MissingInput, ZAboveH };

struct NonstructuralForceResult {
  NonstructuralForceCheck check = NonstructuralForceCheck::Ok;
  double F = 0;  // design force kept within its bounds, ton
  // The design force as the dialog has always shown it: F, except that a
  // coefficient Cn outside its bounds shows the bound itself, without Wp.
  double Vpu = 0;
  double Mu = 0;   // moment on the wall post from F, ton.m
  double Zx = 0;   // required section modulus, cm3
  double Sah = 0;  // horizontal acceleration of the level, g
  double Cn = 0;   // force coefficient, never bounded
  double Saz = 0;  // vertical acceleration of the level, g
};

NonstructuralForceResult nonstructural_force(const NonstructuralForceInput& in);

}  // namespace qorvat::loads
