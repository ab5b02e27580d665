#pragma once
// Whether soil-structure interaction must be considered: the ratio of the
// effective height to the distance a shear wave travels in one period.

namespace qorvat::concrete {

struct SsiNeedInput {
  double T = 0;       // fundamental period, s
  double factor = 0;  // effective height as a part of the height ("Eff. Heigh")
  double h = 0;       // height h', m
  double Vs = 0;      // shear-wave speed of the soil, m/s
};

struct SsiNeedResult {
  double r = 0;            // factor·h'/(Vs·T)
  bool necessary = false;  // r of 0.1 or more
};

SsiNeedResult ssi_need(const SsiNeedInput& in);

}  // namespace qorvat::concrete
