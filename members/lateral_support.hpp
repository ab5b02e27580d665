#pragma once
// Lateral bracing of a beam flange by a diagonal brace: the brace's starting
// area and its length at an angle.

namespace qorvat::members {

struct LateralBraceAreaInput {
  double Mr = 0;  // moment of the main beam, t.m
  double ho = 0;  // distance between flange centroids, cm
  double Lb = 0;  // brace spacing along the beam, cm
  double th = 0;  // angle of the brace to the horizontal, degrees
  double L = 0;   // brace length, cm
  double E = 0;   // modulus of elasticity, kgf/cm2
};

struct LateralBraceAreaResult {
  bool missing_input = false;  // one of the inputs is 0
  double Areq = 0;             // cm2, not rounded
};

// The diagonal's axial stiffness E A cos^2 / L set equal to the nodal brace
// stiffness 10 Mr / (0.75 Lb ho) of AISC 360-10 Appendix 6 (Cd = 1).
LateralBraceAreaResult lateral_brace_area(const LateralBraceAreaInput& in);

// Length of a brace at angle th (degrees) that spans the depth d; nothing
// for an angle that is not strictly between 0 and 90.
struct LateralBraceLength {
  bool applies = false;
  double L = 0;  // cm, not rounded
};
LateralBraceLength lateral_brace_length(double d, double th);

}  // namespace qorvat::members
