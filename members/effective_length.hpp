#pragma once
// Effective length factor K of one column of a sway frame, from the members
// meeting at its top (node A) and its foot (node B): restraint ratios GA and
// GB as in the alignment chart of the AISC 360 commentary, K by a stepped
// search of the sway stability equation and by the closed formula of the
// national steel regulation (editions 92 and 01), and the strong-column ratio.
// Lengths cm, inertias cm4, plastic moduli cm3, stresses kg/cm2, angles degrees.

#include <string>

namespace qorvat::members {

enum class FarEnd { Continuous, Fixed, Simple };  // far end of a beam
enum class ColumnFoot { Continuous, SimpleSupport, FixedSupport };

struct Beam {
  double L = 0, I = 0, Z = 0;
  double angle = 0;
  FarEnd far_end = FarEnd::Continuous;
};

struct Column {
  double L = 0, I = 0, Z = 0;
  double fa_Fy = 0;
};

struct EffectiveLengthInput {
  Beam right_A, left_A, right_B, left_B;
  Column above_A, studied, below_B;
  double Fyc = 0, Fyb = 0;
  ColumnFoot foot = ColumnFoot::Continuous;
  bool joint_calculation = false;  // strong-column ratio wanted
};

struct EffectiveLengthResult {
  double c1 = 0, c2 = 0, c3 = 0, c4 = 0;  // Cor.Fac: right of A, left of A, right of B, left of B
  double b1 = 0, b2 = 0, b3 = 0, b4 = 0;  // (I/L)b of the same beams
  double cAup = 0, cS = 0, cBlow = 0;     // (I/L)c: above A, studied, below B
  double SbA = 0, ScA = 0, SbB = 0, ScB = 0;
  double GA = 0, GB = 0;
  double studied_L = 0;  // the length the studied column was taken with
  // Strong-column ratio MPc/MPb, only with the joint calculation; 0 at B without node B.
  double MPc_MPb_A = 0, MPc_MPb_B = 0;
  double K_stability = 0;  // stepped search; 0 when it finds no stop up to K = 10
  double K_formula = 0;
  std::string K_formula_fault;  // why the closed formula has no value (K_formula is then 0)
};

EffectiveLengthResult effective_length_factor(const EffectiveLengthInput& in);

// The residual of the sway stability equation at K (x = pi / K):
// (GA GB x^2 - 36) / (6 D) - x / tan(x), D = GA or 1 when GA is 0.
double stability_residual(double K, double GA, double GB);
// First K from 1.05 in steps of 0.01 at which the residual grows, or 0 past 10.
double k_by_stability_search(double GA, double GB);
// K = sqrt((1.6 GA GB + 4 (GA + GB) + 7.5) / (GA + GB + 7.5)); faults on a negative radicand.
double k_by_closed_formula(double GA, double GB);

}  // namespace qorvat::members
