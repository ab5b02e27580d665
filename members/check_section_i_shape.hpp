#pragma once
// Built-up I section of a seismic member: the thinnest flange and web that meet
// the width-thickness limits, the section's properties, its web shear
// coefficient and the bracing that the seismic rules ask for (national steel
// regulation 1401 and 1392, AISC 341-16 D1.2b). Also the bracing of a rolled
// IPE. Lengths cm, stresses kgf/cm2, forces kg.

#include "members/width_thickness_limits.hpp"

namespace qorvat::members {

struct IShapeDesignInput {
  SeismicCode code = SeismicCode::Mabhas1392;
  Ductility ductility = Ductility::High;
  double E = 0, Fy = 0;
  double two_b = 0;  // whole flange width 2b
  double h = 0;      // web height
  double Ca = 0, Ry = 0;
};

struct IShapeThicknesses {
  double lf = 0, lw = 0;  // allowed ratios of the half flange and of the web
  double t = 0, tw = 0;   // required thicknesses, already rounded to 2 decimals
};

IShapeThicknesses i_shape_required_thicknesses(const IShapeDesignInput& in);

struct IShapeSectionInput {
  SeismicCode code = SeismicCode::Mabhas1392;
  Ductility ductility = Ductility::High;
  double E = 0, Fy = 0;
  double b = 0;  // half the flange width
  double h = 0, t = 0, tw = 0;
  double Ry = 0;
};

// Cv and the resistance factor that goes with it; both 0 under AISC 341-16,
// which this calculator does not work out.
struct WebShear {
  double Cv = 0, factor = 0;
};

struct IShapeSection {
  double Zx = 0, Sx = 0, A = 0;
  WebShear shear;
  double Iy = 0, ry = 0, Lp = 0;
  double Lb = 0, Pbu = 0;  // seismic brace spacing, and brace force in kg
  double J = 0, rts = 0, Lr = 0;
  // Ix as the design and the Command8 recalculation give it, and as a typed
  // thickness gives it. The two disagree for the same section; both stand.
  double Ix = 0, Ix_typed = 0;
};

WebShear i_shape_web_shear(SeismicCode code, double E, double Fy, double h, double tw);
IShapeSection i_shape_section(const IShapeSectionInput& in);

// Brace spacing Lb = c E ry / (R Fy) and brace force Pbu = 0.06 Fy R Zx / ho of a
// seismic beam; the 1392 edition leaves R out of Lb and takes 1.15 in Pbu.
struct SeismicBracing {
  double Lb = 0, Pbu = 0;
};
SeismicBracing seismic_bracing(SeismicCode code, Ductility ductility, double E, double Fy, double R, double ry,
                               double Zx, double ho);

// Lr = (1.95 rts E / (0.7 Fy)) (x + (x^2 + 6.76 (0.7 Fy / E)^2)^0.5)^0.5, x = J / (Sx ho) (AISC 360 F2-6).
double limiting_unbraced_length(double rts, double E, double Fy, double x);

struct IpeBracingInput {
  SeismicCode code = SeismicCode::Mabhas1392;
  Ductility ductility = Ductility::High;
  double E = 0, Fy = 0;
  double ht = 0, t = 0, Sx = 0, Zx = 0, ry = 0, Iy = 0;
  double Ry = 0;          // the frame's own Ry, taken under 1401
  double Ry_I_shape = 0;  // the I shape's Ry, taken under AISC 341-16
};

struct IpeBracing {
  bool missing_input = false;  // all four results are then 0
  double Lb = 0, Pbu = 0, Lr = 0, Lp = 0;
};

IpeBracing ipe_unbraced_length(const IpeBracingInput& in);

}  // namespace qorvat::members
