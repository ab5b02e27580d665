#pragma once
// Welded box column of a seismic frame: the thinnest flange and web plates
// that meet the width-thickness limits, the section's properties, the web
// shear, the fillet weld between the plates and the shares of area in flanges
// and webs. Lengths cm, stresses kgf/cm2.

#include "members/width_thickness_limits.hpp"

namespace qorvat::members {

struct BoxDesignInput {
  SeismicCode code = SeismicCode::Mabhas1392;
  Ductility ductility = Ductility::High;
  FrameType frame = FrameType::SpecialMoment;
  double E = 0, Fy = 0;
  double h = 0;  // clear height between the flanges
  double b = 0;  // outer width
  double Ca = 0;
  double Ry = 0;          // the box's own Ry: flanges, and the 1401 web
  double Ry_I_shape = 0;  // the I shape's Ry, which the AISC 341-16 web takes
};

struct BoxThicknesses {
  double lf = 0, tf = 0;  // tf as the search leaves it, not rounded
  double lw = 0, tw = 0;  // tw rounded to 2 decimals
};

// The flange thickness by trial: from 0.1 in steps of 0.01 until tf lies within 1%
// of Round((b - 2 tf) / lf, 2), the clear-width ratio it gives.
double box_flange_thickness(double b, double lf);
BoxThicknesses box_required_thicknesses(const BoxDesignInput& in);

struct BoxSectionInput {
  SeismicCode code = SeismicCode::Mabhas1392;
  double E = 0, Fy = 0;
  double h = 0, b = 0, tf = 0, tw = 0;
  double Fue = 0;  // electrode strength
  double Q = 0;    // inspection factor
  // A typed web thickness: the 1401 shear slenderness is then taken over tw
  // instead of over tf, as the design and a typed flange take it.
  bool web_typed = false;
};

struct BoxSection {
  double Zx = 0, Zy = 0, Ix = 0, Iy = 0;
  double Rw = 0, Rf = 0;  // the webs' share of Ix, the flanges' share of Iy
  double hw = 0, Cv = 0, factor = 0;
  double V = 0, Qf = 0, aw = 0;  // aw in cm
  bool weld_too_large = false;
  double A = 0, flange_share = 0, web_share = 0;
};

BoxSection box_section(const BoxSectionInput& in);

// A weld thicker than the plate it joins: above tw - 0.2 for plates thicker than 6 mm, else above tw.
bool weld_exceeds_plate(double aw, double tw);

}  // namespace qorvat::members
