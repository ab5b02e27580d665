#pragma once
// Seismic forces of a liquid tank (ACI 350.3): the liquid split into an
// impulsive and a convective part with their periods, weights and heights,
// and the forces that spectral values give them.

namespace qorvat::loads {

enum class TankShape { Rectangular, Cylindrical };

struct TankInput {
  TankShape shape = TankShape::Rectangular;
  double L = 0;   // rectangular: length along x, m
  double B = 0;   // rectangular: length along y, m
  double D = 0;   // cylindrical: diameter, m
  double HL = 0;  // liquid height, m
  double ML = 0;  // liquid density, kg/m3
};

// One direction of shaking.
struct TankDirection {
  double Tc = 0;  // convective period, s
  double Wi = 0;  // impulsive weight, ton
  double Wc = 0;  // convective weight, ton
  double hi = 0;  // height of the impulsive weight, m
  double hc = 0;  // height of the convective weight, m
};

struct TankResult {
  bool missing_input = false;
  double Wt = 0;  // weight of the liquid, ton
  TankDirection x, y;
};

TankResult tank_liquid_split(const TankInput& in);

struct TankForceInput {
  double Sa_i = 0;  // impulsive spectral value, Sa(i)
  double Sc_x = 0;  // convective spectral values, Sc(x) and Sc(y)
  double Sc_y = 0;
  double Wix = 0, Wiy = 0, Wcx = 0, Wcy = 0;  // ton
  double Ri = 0;                              // behaviour factors, impulsive and convective
  double Rc = 0;
  double b = 0;  // ratio of vertical to horizontal acceleration
};

struct TankForceResult {
  double Pi_x = 0, Pi_y = 0, Pc_x = 0, Pc_y = 0;  // ton
  double alfa = 0;                                // vertical acceleration coefficient
};

TankForceResult tank_seismic_forces(const TankForceInput& in);

}  // namespace qorvat::loads
