#pragma once
// Web shear coefficient Cv of a plate girder web, from its slenderness hw = h / tw
// against limits of the form c (kv E / Fy)^0.5 rounded to 2 decimals, as the
// national steel regulation and AISC 360 chapter G write them.

namespace qorvat::members {

// Round(c (kv E / Fy)^0.5, 2).
double web_shear_limit(double c, double kv, double E, double Fy);
// Round(h / tw, 2), the slenderness the shear rules compare.
double web_slenderness(double h, double tw);

// Past p: p / hw up to q, then the elastic 7.55 E / (hw^2 Fy).
double cv_beyond_yield(double hw, double p, double q, double E, double Fy);

// The 1392 rule: 1 up to a = Round(2.24 s, 2) or up to p, then as cv_beyond_yield (kv = 5).
double cv_1392(double hw, double E, double Fy);

}  // namespace qorvat::members
