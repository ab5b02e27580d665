#include "members/check_section_i_shape.hpp"

#include <algorithm>
#include <cmath>

#include "members/web_shear.hpp"
#include "runtime/fault.hpp"
#include "runtime/value_rules.hpp"

namespace qorvat::members {
namespace {

double sq(double x) { return x * x; }
double cube(double x) { return checked(std::pow(x, 3)); }

}  // namespace

IShapeThicknesses i_shape_required_thicknesses(const IShapeDesignInput& in) {
  const LimitBasis basis{in.E, in.Fy, in.Ry};
  IShapeThicknesses r;
  r.lf = i_flange_limit(in.code, in.ductility, basis);
  r.lw = web_limit(in.code, in.ductility, basis, in.Ca);
  r.t = round_half_even(checked_div(in.two_b / 2, r.lf), 2);
  r.tw = round_half_even(checked_div(in.h, r.lw), 2);
  return r;
}

WebShear i_shape_web_shear(SeismicCode code, double E, double Fy, double h, double tw) {
  if (code == SeismicCode::Aisc341_16) return {};
  const double hw = web_slenderness(h, tw);
  double Cv = 1;
  if (code == SeismicCode::Mabhas1392) {
    Cv = cv_1392(hw, E, Fy);
  } else if (hw > web_shear_limit(1.1, 5.34, E, Fy)) {
    // The limit is compared rounded, but divided unrounded.
    Cv = checked_div(1.1 * checked_sqrt(checked_div(5.34 * E, Fy)), hw);
  }
  return {std::min(Cv, 1.0), 0.9};
}

SeismicBracing seismic_bracing(SeismicCode code, Ductility ductility, double E, double Fy, double R, double ry,
                               double Zx, double ho) {
  const bool high = ductility == Ductility::High;
  const double c = code == SeismicCode::Aisc341_16 ? (high ? 0.095 : 0.19) : (high ? 0.086 : 0.17);
  SeismicBracing r;
  if (code == SeismicCode::Mabhas1392) {
    r.Lb = checked_div(c * E * ry, Fy);
    R = 1.15;
  } else {
    r.Lb = checked_div(c * E * ry, R * Fy);
  }
  r.Pbu = checked_div(0.06 * Fy * R * Zx, ho);
  return r;
}

double limiting_unbraced_length(double rts, double E, double Fy, double x) {
  const double ratio = checked_div(0.7 * Fy, E);
  return checked_div(1.95 * rts * E, 0.7 * Fy) * checked_sqrt(x + checked_sqrt(sq(x) + 6.76 * sq(ratio)));
}

IShapeSection i_shape_section(const IShapeSectionInput& in) {
  const double b = in.b, h = in.h, t = in.t, tw = in.tw, E = in.E, Fy = in.Fy;
  IShapeSection r;
  r.Zx = 2 * b * t * (h + t) + 0.25 * tw * sq(h);
  r.Sx = checked_div((1.0 / 12) * (2 * b * cube(h + 2 * t) - 2 * (b - tw / 2) * cube(h)), (h + 2 * t) / 2);
  r.A = 4 * b * t + h * tw;
  r.shear = i_shape_web_shear(in.code, E, Fy, h, tw);

  r.Iy = cube(2 * b) * t / 6 + h * cube(tw) / 12;
  r.ry = checked_sqrt(checked_div(r.Iy, r.A));
  r.Lp = 1.76 * r.ry * checked_sqrt(checked_div(E, Fy));
  const SeismicBracing brace = seismic_bracing(in.code, in.ductility, E, Fy, in.Ry, r.ry, r.Zx, h + t);
  r.Lb = brace.Lb;
  r.Pbu = brace.Pbu;

  r.J = (2.0 / 3 + 2.0 / 3) * b * cube(t) + (1.0 / 3) * h * cube(tw);
  r.rts = checked_div(2 * b, checked_sqrt(12 * (1 + checked_div(h * tw, 12 * b * t))));
  r.Lr = limiting_unbraced_length(r.rts, E, Fy, checked_div(r.J, r.Sx * (h + t)));

  r.Ix = 2 * (b * t * sq((h - t) / 2)) + 2 * (b * cube(t) / 12) + cube(h - 2 * t) * tw / 12;
  r.Ix_typed = 2 * (2 * b * t * sq((h + t) / 2)) + 2 * (2 * b * cube(t) / 12) + cube(h) * tw / 12;
  return r;
}

IpeBracing ipe_unbraced_length(const IpeBracingInput& in) {
  IpeBracing r;
  if (in.ht == 0 || in.t == 0 || in.Sx == 0 || in.Zx == 0 || in.ry == 0 || in.Iy == 0 || in.Fy == 0 || in.E == 0) {
    r.missing_input = true;
    return r;
  }
  r.Lp = 1.76 * in.ry * checked_sqrt(checked_div(in.E, in.Fy));
  const double ho = in.ht - in.t;
  const double R = in.code == SeismicCode::Aisc341_16 ? in.Ry_I_shape : in.Ry;
  const SeismicBracing brace = seismic_bracing(in.code, in.ductility, in.E, in.Fy, R, in.ry, in.Zx, ho);
  r.Lb = brace.Lb;
  r.Pbu = brace.Pbu;
  // No torsion constant here: x stays 0 and Lr hangs on rts, E and Fy alone.
  const double rts = checked_sqrt(checked_div(in.Iy * ho, 2 * in.Sx));
  r.Lr = limiting_unbraced_length(rts, in.E, in.Fy, 0);
  return r;
}

}  // namespace qorvat::members
