#pragma once
// What a beam end asks of its connection when the beam reaches its probable
// plastic moment: the moment at the column face, the shears of the capacity
// design, and the web figures the rigid connections check against.

namespace qorvat::sections {

// Cpr of the ultimate-resistance design, (Fy + Fu) / 2Fy kept within 1.1 and 1.2.
double ultimate_Cpr(double Fy, double Fu);

struct HingeShearMomentInput {
  double S = 0;   // section (or plastic) modulus, cm3
  double Fy = 0;  // kgf/cm2
  double Ry = 0;
  double alpha = 0;  // share of Mp; left out (1) in the ultimate design
  double Cpr = 0;
  double L1 = 0;  // distance of the plastic hinge from the column face, cm
  double Ln = 0;  // clear span, cm
  bool ultimate = false;
};

// The moment at the column face from the shear the two hinges carry:
// 2 alpha Cpr S Ry Fy L1 / (Ln - 2 L1), kgf.cm.
double hinge_shear_moment(const HingeShearMomentInput& in);

struct ConnectionDemandInput {
  double S = 0;   // cm3
  double Fy = 0;  // kgf/cm2
  double Ry = 0;
  double alpha = 0;
  double Cpr = 0;
  double Mw = 0;          // the face moment of the hinge shear (a gravity shear in the web-shear use), kgf.cm
  double Mg = 0;          // gravity moment, kgf.cm
  double Vw = 0;          // gravity shear, kgf
  double L1 = 0;          // cm
  double Ln = 0;          // cm
  double hb = 0;          // beam depth, cm
  double s = 0;           // web thickness, cm
  double t = 0;           // flange thickness, cm
  double Ix = 0;          // cm4
  bool ultimate = false;  // alpha taken as 1
};

struct ConnectionDemandResult {
  double Mp = 0;    // Fy S Ry Cpr, kgf.cm
  double M = 0;     // moment at the connection, kgf.cm
  double Vd = 0;    // shear of the hinges, kgf
  double Vt = 0;    // total shear, ton
  double Ve = 0;    // capacity-design shear of the connection, kgf
  double V32 = 0;   // the same with the gravity shear Vw, for the bolted flange plates, kgf
  double Vm = 0;    // web shear strength the newer rules ask the beam shear to reach, kgf
  double Iw = 0;    // second moment of the web alone, cm4
  double Mweb = 0;  // the web's share of Mp, Iw/Ix Mp, kgf.cm (0 without Ix)
};

ConnectionDemandResult connection_demand(const ConnectionDemandInput& in);

}  // namespace qorvat::sections
