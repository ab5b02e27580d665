#include "members/check_section_box.hpp"

#include <algorithm>
#include <cmath>

#include "members/web_shear.hpp"
#include "runtime/constants.hpp"
#include "runtime/fault.hpp"
#include "runtime/value_rules.hpp"

namespace qorvat::members {
namespace {

double sq(double x) { return x * x; }
double cube(double x) { return checked(std::pow(x, 3)); }

// A box needs no more than about ten thousand steps of 0.01 cm before the ratio goes negative.
constexpr std::size_t kFlangeSearchSteps = 100'000;

double box_shear_coefficient(SeismicCode code, double hw, double E, double Fy) {
  switch (code) {
    case SeismicCode::Mabhas1392: return cv_1392(hw, E, Fy);
    case SeismicCode::Mabhas1401: {
      const double p = web_shear_limit(1.1, 5, E, Fy);
      if (hw <= p) return 1;
      return cv_beyond_yield(hw, p, web_shear_limit(1.37, 5, E, Fy), E, Fy);
    }
    case SeismicCode::Aisc341_16: {
      const double a = round_half_even(2.24 * checked_sqrt(checked_div(E, Fy)), 2);
      const double p = web_shear_limit(1.1, 5.34, E, Fy);
      if (hw <= a || hw <= p) return 1;
      return checked_div(p, hw);
    }
  }
  return 1;
}

}  // namespace

double box_flange_thickness(double b, double lf) {
  LoopGuard guard(kFlangeSearchSteps);
  double tf = 0.1;
  double q = 0;
  while (tf < 0.99 * q || tf > 1.01 * q) {
    guard.step();
    tf += 0.01;
    q = round_half_even(checked_div(b - 2 * tf, lf), 2);
  }
  return tf;
}

BoxThicknesses box_required_thicknesses(const BoxDesignInput& in) {
  BoxThicknesses r;
  r.lf = box_flange_limit(in.code, in.ductility, in.frame, {in.E, in.Fy, in.Ry});
  r.tf = box_flange_thickness(in.b, r.lf);
  // The AISC web reads its Ry from the I shape; the flange above keeps the box's own.
  const double web_Ry = in.code == SeismicCode::Aisc341_16 ? in.Ry_I_shape : in.Ry;
  r.lw = web_limit(in.code, in.ductility, {in.E, in.Fy, web_Ry}, in.Ca);
  r.tw = round_half_even(checked_div(in.h, r.lw), 2);
  return r;
}

BoxSection box_section(const BoxSectionInput& in) {
  const double h = in.h, b = in.b, tf = in.tf, tw = in.tw, E = in.E, Fy = in.Fy;
  BoxSection r;
  const double depth = h + 2 * tf;
  r.Zx = b * sq(depth) / 4 - (b - 2 * tw) * sq(depth / 2 - tf);
  r.Zy = depth * sq(b) / 4 - h * sq(b / 2 - tw);
  r.Ix = b * cube(depth) / 12 - cube(h) * (b - 2 * tw) / 12;
  r.Iy = cube(b) * depth / 12 - h * cube(b - 2 * tw) / 12;
  r.Rw = checked_div(2 * cube(h) * tw / 12, r.Ix);
  r.Rf = checked_div(2 * cube(b) * tf / 12, r.Iy);

  const bool mabhas_1401 = in.code == SeismicCode::Mabhas1401;
  // Under 1401 the design divides h by the flange thickness, not the web's.
  r.hw = web_slenderness(h, mabhas_1401 && !in.web_typed ? tf : tw);
  r.Cv = std::min(box_shear_coefficient(in.code, r.hw, E, Fy), 1.0);
  r.factor = mabhas_1401 ? 0.9 : 1;

  const double m = mabhas_1401 ? 1 : 0.93;
  r.V = 0.6 * (2 * h * tw * m) * Fy * r.Cv * r.factor;
  r.Qf = b * tf * (h + tf) / 2;
  r.aw = checked_div(checked_div(r.V * r.Qf, (r.Ix + r.Ix) * tw), 0.45 * in.Q * in.Fue * kWeldThroatCm);
  r.weld_too_large = weld_exceeds_plate(r.aw, tw);

  r.A = 2 * b * tf + 2 * h * tw;
  r.flange_share = checked_div(b * tf, r.A);
  r.web_share = checked_div(h * tw, r.A);
  return r;
}

bool weld_exceeds_plate(double aw, double tw) { return tw > 0.6 ? aw > tw - 0.2 : aw > tw; }

}  // namespace qorvat::members
