#pragma once
// The design spectrum of Standard 2800 (4th edition): the reflection factor B1
// of the soil, its modification N for long periods, and the design
// acceleration B.A = A·B1·N, at one period or over a range of periods.

#include <cstddef>
#include <optional>
#include <vector>

namespace qorvat::loads {

enum class SoilType { I, II, III, IV };
enum class Hazard { Low, Moderate, High, VeryHigh };

// The shape of the spectrum for one soil type and hazard group.
struct SpectrumParameters {
  double S = 0;
  double S0 = 0;
  double T0 = 0;  // s
  double Ts = 0;  // s
};

// The row of the soil table; none while the soil or the hazard is not chosen.
std::optional<SpectrumParameters> spectrum_parameters(std::optional<SoilType> soil, std::optional<Hazard> hazard);

// n of the modification factor N: 0.4 for low and moderate hazard, 0.7 for
// high and very high, 0 while no hazard is chosen.
double modification_exponent(std::optional<Hazard> hazard);

struct SpectralAccelerationInput {
  double A = 0;  // design base acceleration, g
  double T = 0;  // period, s
  SpectrumParameters spectrum;
  double n = 0;
};

struct SpectralAccelerationResult {
  double B1 = 0;
  double N = 0;
  double BA = 0;  // A·B1·N, g
};

SpectralAccelerationResult spectral_acceleration(const SpectralAccelerationInput& in);

struct DesignSpectrumInput {
  double A = 0;       // g
  double tstart = 0;  // s
  double tend = 0;    // s
  double xstep = 0;   // s
  SpectrumParameters spectrum;
  double n = 0;
};

// More entries than this would not fit in memory on the machines the program runs on.
inline constexpr std::size_t kMaxSpectrumEntries = 4'000'000;

// B.A over the periods tstart, tstart + xstep, ... up to tend. The array has
// tend/xstep entries (rounded to a whole number), counted from 1: element 0
// is unused and stays 0. Periods beyond the last entry are not kept, and
// entries beyond the last period stay 0.
std::vector<double> design_spectrum(const DesignSpectrumInput& in);

}  // namespace qorvat::loads
