#pragma once
// A facade wall post under wind, simply supported at both ends: its moment
// and the plastic modulus it needs.

namespace qorvat::sections {

struct WallPostInput {
  double p = 0;  // net wind pressure, kg/m2
  double S = 0;  // spacing of the posts, m
  double h = 0;  // span of the post, m
};

struct WallPostResult {
  double w = 0;   // factored line load, kg/m
  double M = 0;   // kg.m
  double Mu = 0;  // ton.m
  double Zx = 0;  // cm3
};

WallPostResult wall_post_modulus(const WallPostInput& in);

}  // namespace qorvat::sections
