#pragma once
// The column curve of steel compression members, shared by every calculator
// that needs the stress of a strut: the allowable stress of working-stress
// design and the critical stress of ultimate-strength design. Both are
// written as the published results were computed, constants and all.

#include <optional>

namespace qorvat::members {

struct AllowableStressInput {
  double lam = 0;  // governing slenderness KL/r
  double Fy = 0;   // kgf/cm2
  double E = 0;    // kgf/cm2
};

struct AllowableStressResult {
  double Cc = 0;  // slenderness that parts the inelastic and the elastic range
  // No value at lam == Cc nor from lam 201 up: the caller then keeps what it had.
  std::optional<double> Fa;
};

// Allowable compression stress (AISC ASD E2, national steel regulation
// 1392 allowable-stress chapter), with the factor of safety of the old
// programs: 1.67 and a squared third term.
AllowableStressResult allowable_compression_stress(const AllowableStressInput& in);

struct CriticalStressInput {
  double lam = 0;  // governing slenderness KL/r
  double Fy = 0;   // kgf/cm2
  double E = 0;    // kgf/cm2
  double Ry = 1;   // expected-strength factor; 1 for the nominal stress
  // Factors on the elastic and the inelastic branch: 0.877 and 1 give the
  // nominal stress; 0.7893 and 0.9 give it with the resistance factor folded in.
  double elastic_factor = 0.877;
  double inelastic_factor = 1;
};

struct CriticalStressResult {
  double limit = 0;  // 4.71 (E / (Fy Ry))^0.5
  double Fe = 0;     // elastic buckling stress
  bool elastic = false;
  double Fcr = 0;
};

// Critical compression stress (AISC 360 E3, national steel regulation
// 1392 and 1401 ultimate-strength chapters). No slenderness limit applies.
CriticalStressResult critical_compression_stress(const CriticalStressInput& in);

}  // namespace qorvat::members
