#include "members/effective_length.hpp"

#include <cmath>

#include "runtime/constants.hpp"
#include "runtime/fault.hpp"

namespace qorvat::members {
namespace {

double correction_factor(FarEnd far_end) {
  switch (far_end) {
    case FarEnd::Fixed: return 0.667;
    case FarEnd::Simple: return 0.5;
    case FarEnd::Continuous: break;
  }
  return 1;
}

// A removed member has length 0: taken as 1 so its zero inertia gives a zero stiffness.
double usable_length(double L) { return L == 0 ? 1 : L; }

double one_if_zero(double x) { return x == 0 ? 1 : x; }

double cos_squared(double degrees) {
  const double c = std::cos(degrees_to_radians(degrees));
  return c * c;
}

double beam_stiffness(const Beam& beam, double c) {
  return checked_div(beam.I, usable_length(beam.L)) * c * cos_squared(beam.angle);
}

double column_stiffness(const Column& column) { return checked_div(column.I, usable_length(column.L)); }

// Plastic moment share of a column under its axial ratio, and of a beam.
double column_share(const Column& column, double Fyc) { return column.Z * (1 - column.fa_Fy) * Fyc; }

void restraint_ratios(const EffectiveLengthInput& in, EffectiveLengthResult& r) {
  r.c1 = correction_factor(in.right_A.far_end);
  r.c2 = correction_factor(in.left_A.far_end);
  r.c3 = correction_factor(in.right_B.far_end);
  r.c4 = correction_factor(in.left_B.far_end);

  r.b1 = beam_stiffness(in.right_A, r.c1);
  r.b2 = beam_stiffness(in.left_A, r.c2);
  r.cAup = column_stiffness(in.above_A);
  r.cS = column_stiffness(in.studied);
  r.studied_L = usable_length(in.studied.L);
  r.SbA = one_if_zero(r.b2 + r.b1);
  r.ScA = r.cS + r.cAup;
  r.GA = checked_div(r.ScA, r.SbA);

  switch (in.foot) {
    case ColumnFoot::SimpleSupport: r.GB = 10; break;
    case ColumnFoot::FixedSupport: r.GB = 1; break;
    case ColumnFoot::Continuous:
      r.b3 = beam_stiffness(in.right_B, r.c3);
      r.b4 = beam_stiffness(in.left_B, r.c4);
      r.cBlow = column_stiffness(in.below_B);
      r.SbB = one_if_zero(r.b4 + r.b3);
      r.ScB = r.cBlow + r.cS;
      r.GB = checked_div(r.ScB, r.SbB);
      break;
  }
}

void strong_column_ratio(const EffectiveLengthInput& in, EffectiveLengthResult& r) {
  // The studied column's share at B takes its own fa/Fy, as at A.
  const double at_A = column_share(in.above_A, in.Fyc) + column_share(in.studied, in.Fyc);
  const double beams_A = in.right_A.Z * in.Fyb + in.left_A.Z * in.Fyb;
  r.MPc_MPb_A = checked_div(at_A, one_if_zero(beams_A));
  if (in.foot != ColumnFoot::Continuous) return;
  const double at_B = column_share(in.studied, in.Fyc) + column_share(in.below_B, in.Fyc);
  const double beams_B = in.right_B.Z * in.Fyb + in.left_B.Z * in.Fyb;
  r.MPc_MPb_B = checked_div(at_B, one_if_zero(beams_B));
}

}  // namespace

double stability_residual(double K, double GA, double GB) {
  // The denominator is 6 GA alone, not 6 (GA + GB): the published K values were found with it.
  const double D = one_if_zero(GA);
  const double x = kPi / K;
  return checked_div(GA * GB * x * x - 36, 6 * D) - checked_div(x, std::tan(x));
}

double k_by_stability_search(double GA, double GB) {
  // Stops one step past the smallest residual, at the first K where it grows again.
  // K advances by repeated addition, carrying its binary drift as the published values do.
  LoopGuard guard(1000);
  double last = stability_residual(1.01, GA, GB);
  for (double K = 1.05; K <= 10; K += 0.01) {
    guard.step();
    const double now = stability_residual(K, GA, GB);
    if (std::fabs(now) > std::fabs(last)) return K;
    last = now;
  }
  return 0;
}

double k_by_closed_formula(double GA, double GB) {
  return checked_pow(checked_div(1.6 * GA * GB + 4 * (GA + GB) + 7.5, GA + GB + 7.5), 0.5);
}

EffectiveLengthResult effective_length_factor(const EffectiveLengthInput& in) {
  EffectiveLengthResult r;
  restraint_ratios(in, r);
  if (in.joint_calculation) strong_column_ratio(in, r);
  r.K_stability = k_by_stability_search(r.GA, r.GB);
  // Negative stiffnesses can leave the closed formula without a value; what came
  // before it still stands, so the fault travels with the result.
  try {
    r.K_formula = k_by_closed_formula(r.GA, r.GB);
  } catch (const RuntimeFault& fault) {
    r.K_formula_fault = fault.what();
  }
  return r;
}

}  // namespace qorvat::members
