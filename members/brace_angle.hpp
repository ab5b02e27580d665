#pragma once
// Angle of a brace to the horizontal from storey height and bay length.

namespace qorvat::members {

struct BraceAngleInput {
  double H = 0;          // storey height, m
  double L = 0;          // bay length, m
  bool x_brace = false;  // an X brace spans the bay; a V brace reaches mid-span
};

struct BraceAngleResult {
  bool missing_input = false;  // H or L is 0
  double Alpha = 0;            // degrees, not rounded
};

BraceAngleResult brace_angle(const BraceAngleInput& in);

}  // namespace qorvat::members
