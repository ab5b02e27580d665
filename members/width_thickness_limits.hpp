#pragma once
// Width-thickness limits of the plates of seismic members: the national steel
// regulation, editions 1401 and 1392, and AISC 341-16 table D1.1, for highly
// and moderately ductile members. Ratios are width over thickness, with
// S = (E / (Ry Fy))^0.5 and s = (E / Fy)^0.5 as their scale.

namespace qorvat::members {

enum class SeismicCode { Mabhas1401, Mabhas1392, Aisc341_16 };
enum class Ductility { High, Medium };
// Frame type of the 1392 box flange: special moment frame, or simple frame with special braces.
enum class FrameType { SpecialMoment, SimpleWithSpecialBraces };

struct LimitBasis {
  double E = 0, Fy = 0, Ry = 0;
};

// lf of the half flange of an I section.
double i_flange_limit(SeismicCode code, Ductility ductility, const LimitBasis& basis);
// lw of a web (I or box) under the axial load ratio Ca.
double web_limit(SeismicCode code, Ductility ductility, const LimitBasis& basis, double Ca);
// lf of the clear width of a box flange.
double box_flange_limit(SeismicCode code, Ductility ductility, FrameType frame, const LimitBasis& basis);

}  // namespace qorvat::members
