#pragma once
// Stress of a compression member of one shape, or of two shapes back to back
// with stitch plates, and the largest distance between those plates.

namespace qorvat::members {

struct CompressionStressInput {
  double A = 0;   // area of one shape, cm2
  double Ix = 0;  // inertia of one shape, cm4
  double Iy = 0;
  double C = 0;  // clear gap between the two shapes, cm
  double Kx = 0;
  double Ky = 0;
  double L = 0;   // member length, cm
  double b = 0;   // flange width of one shape, cm
  double ey = 0;  // back of the shape to its centroid, cm
  double ri = 0;  // radius of gyration of one shape for the stitch distance, cm
  double Fy = 0;
  double E = 0;
  double Ry = 0;
  bool single_shape = false;  // a column or lateral brace; else two shapes at gap C
  bool ultimate = false;      // expected critical stress Fcre instead of the allowable Fa
  // Stress of the last calculation; it stands when lam leaves the allowable-stress curve.
  double held_stress = 0;
};

struct CompressionStressResult {
  bool missing_input = false;  // a figure that may not be 0 is 0: nothing else is computed
  double rx = 0, ry = 0;
  double lx = 0, ly = 0;      // (KL/r)x, (KL/r)y
  double lam = 0;             // the larger of the two
  bool beyond_curve = false;  // no allowable stress at this lam: held_stress carried on
  double stress = 0;          // Fa or Fcre, at most Fy
  double a = 0;               // stitch-plate distance; 0 when ri is 0
};

CompressionStressResult compression_stress(const CompressionStressInput& in);

}  // namespace qorvat::members
