#include "loads/design_spectrum.hpp"

#include <cmath>

#include "runtime/fault.hpp"

namespace qorvat::loads {

std::optional<SpectrumParameters> spectrum_parameters(std::optional<SoilType> soil, std::optional<Hazard> hazard) {
  if (!soil || !hazard) return std::nullopt;
  const bool low_or_moderate = *hazard == Hazard::Low || *hazard == Hazard::Moderate;
  switch (*soil) {
    case SoilType::I: return SpectrumParameters{1.5, 1.0, 0.1, 0.4};
    case SoilType::II: return SpectrumParameters{1.5, 1.0, 0.1, 0.5};
    case SoilType::III: return SpectrumParameters{1.75, 1.1, 0.15, 0.7};
    case SoilType::IV:
      return low_or_moderate ? SpectrumParameters{2.25, 1.3, 0.15, 1.0} : SpectrumParameters{1.75, 1.1, 0.15, 1.0};
  }
  return std::nullopt;
}

double modification_exponent(std::optional<Hazard> hazard) {
  if (!hazard) return 0;
  return *hazard == Hazard::Low || *hazard == Hazard::Moderate ? 0.4 : 0.7;
}

SpectralAccelerationResult spectral_acceleration(const SpectralAccelerationInput& in) {
  const auto& [S, S0, T0, Ts] = in.spectrum;
  const double T = in.T;
  SpectralAccelerationResult r;
  // B1: rising branch, plateau, then falling as 1/T. A negative period is in
  // none of the branches and gives 0.
  if (T >= 0 && T < T0) {
    r.B1 = S0 + (S - S0 + 1) * T / T0;
  } else if (T >= T0 && T <= Ts) {
    r.B1 = S + 1;
  } else if (T > Ts) {
    r.B1 = (S + 1) * Ts / T;
  }
  // N grows linearly from Ts to 4 s and stays at 1 + n beyond.
  if (T <= Ts) {
    r.N = 1;
  } else if (T < 4) {
    r.N = 1 + in.n * (T - Ts) / (4 - Ts);
  } else {
    r.N = 1 + in.n;
  }
  r.BA = checked(in.A * r.B1 * r.N);
  return r;
}

std::vector<double> design_spectrum(const DesignSpectrumInput& in) {
  const double entries = std::nearbyint(checked_div(in.tend, in.xstep));
  if (entries < 0) throw RuntimeFault("Subscript out of range");
  if (entries > static_cast<double>(kMaxSpectrumEntries)) throw RuntimeFault("Out of memory");
  const auto size = static_cast<std::size_t>(entries);
  std::vector<double> BA(size + 1, 0.0);

  // The period steps on by repeated addition, as a counting loop over
  // decimals does, so the last period may fall just short of tend or past it.
  const bool upward = in.xstep > 0;
  double T = in.tstart;
  for (std::size_t i = 1; i <= size && (upward ? T <= in.tend : T >= in.tend); ++i) {
    BA[i] = spectral_acceleration({in.A, T, in.spectrum, in.n}).BA;
    T += in.xstep;
  }
  return BA;
}

}  // namespace qorvat::loads
