#pragma once
// The base shear coefficient C of Standard 2800 (4th edition) with its lower
// limit, the exponent K that distributes the shear over the height, and the
// empirical fundamental period of the building.

namespace qorvat::loads {

struct SeismicCoefficientInput {
  double BA = 0;  // design acceleration A·B at the period, g
  double A = 0;   // design base acceleration, g
  double I = 0;   // importance factor
  double Ru = 0;  // behaviour factor
  double T = 0;   // period, s
};

struct SeismicCoefficientResult {
  double C = 0;
  bool minimum_governs = false;  // C was raised to 0.12·A·I
  double K = 0;
};

SeismicCoefficientResult seismic_coefficient(const SeismicCoefficientInput& in);

enum class PeriodFormula {
  MomentFrameOrEccentricSteelBraces,  // T = 0.08 H^0.75
  ConcreteMomentFrame,                // T = 0.05 H^0.9
  DualWallOrConcentricBraces,         // T = 0.05 H^0.75
};

struct BuildingPeriodInput {
  double H = 0;  // building height, m
  PeriodFormula formula = PeriodFormula::MomentFrameOrEccentricSteelBraces;
  bool raised = false;  // the period taken a quarter longer
};

struct BuildingPeriodResult {
  double T = 0;  // s
};

BuildingPeriodResult building_period(const BuildingPeriodInput& in);

}  // namespace qorvat::loads
