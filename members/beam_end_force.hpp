#pragma once
// The flange force at a beam's end from its plastic modulus, for the bolt
// design of a flange splice or a moment connection.

namespace qorvat::members {

struct FlangeForceInput {
  double Z = 0;   // plastic modulus, cm3
  double Fy = 0;  // kgf/cm2
  double Qb = 0;  // strength reduction factor
  double h = 0;   // beam depth, cm
};

struct FlangeForceResult {
  double T = 0;  // kgf, not rounded; 0 without a depth
};

// The plastic moment Qb Fy Z taken by a couple over the beam depth.
FlangeForceResult flange_force(const FlangeForceInput& in);

}  // namespace qorvat::members
