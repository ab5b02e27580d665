#include "members/compression_stress.hpp"

#include "members/column_curve.hpp"
#include "runtime/fault.hpp"

namespace qorvat::members {

namespace {

bool missing_input(const CompressionStressInput& in) {
  if (in.A == 0 || in.Ix == 0 || in.Iy == 0 || in.Kx == 0 || in.Ky == 0 || in.L == 0) return true;
  // The built-up member also needs the shape's own figures.
  return !in.single_shape && (in.ri == 0 || in.ey == 0 || in.b == 0);
}

void radii(const CompressionStressInput& in, CompressionStressResult& out) {
  if (in.single_shape) {
    out.rx = checked_sqrt(checked_div(in.Ix, in.A));
    out.ry = checked_sqrt(checked_div(in.Iy, in.A));
    return;
  }
  // Two shapes back to back: each centroid lies d from the axis between them.
  const double d = in.C / 2 + in.b - in.ey;
  const double Ix2 = 2 * in.Ix;
  const double Iy2 = 2 * (in.Iy + in.A * (d * d));
  out.rx = checked_sqrt(checked_div(Ix2, in.A + in.A));
  out.ry = checked_sqrt(checked_div(Iy2, in.A + in.A));
}

}  // namespace

CompressionStressResult compression_stress(const CompressionStressInput& in) {
  CompressionStressResult out;
  if (missing_input(in)) {
    out.missing_input = true;
    return out;
  }
  radii(in, out);
  out.lx = checked_div(in.Kx * in.L, out.rx);
  out.ly = checked_div(in.Ky * in.L, out.ry);
  out.lam = out.lx > out.ly ? out.lx : out.ly;

  out.stress = in.held_stress;
  if (in.ultimate) {
    out.stress = critical_compression_stress({.lam = out.lam, .Fy = in.Fy, .E = in.E, .Ry = in.Ry}).Fcr;
  } else {
    const AllowableStressResult asd = allowable_compression_stress({.lam = out.lam, .Fy = in.Fy, .E = in.E});
    if (asd.Fa) {
      out.stress = *asd.Fa;
    } else {
      out.beyond_curve = true;
    }
  }
  // Capped on Fy alone, even where Ry lifts the expected stress above it.
  if (out.stress > in.Fy) out.stress = in.Fy;

  // Stitch plates at most 3/4 of the member's slenderness times the shape's own r, and L/3.
  if (in.ri != 0) {
    out.a = 3 * out.lam * in.ri / 4;
    if (out.a > in.L / 3) out.a = in.L / 3;
  }
  return out;
}

}  // namespace qorvat::members
