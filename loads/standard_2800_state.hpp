#pragma once
// What Standard 2800 (Form26) keeps beside its fields while an instance
// lives: the spectrum parameters last taken from the options, whether a
// diagram was made, and the spectrum array that the cursor and the export read.

#include <vector>

#include "loads/design_spectrum.hpp"
#include "runtime/form.hpp"

namespace qorvat::loads {

// Where the diagram lies in the plot's own coordinates, for the axis strips.
struct PlotExtent {
  bool drawn = false;
  double left = 0, width = 0;  // x: one unit per step
  double top = 0;              // y: 1.2 times the largest |B.A|
  double xstep = 0;            // s per x unit, for the period labels
};

struct Standard2800State {
  SpectrumParameters spectrum;  // S, S0, T0, Ts; 0 until an option row applies
  bool diagram = false;
  std::vector<double> BA;  // B.A by step, from index 1; element 0 unused
  PlotExtent plot;
};

// The state of this instance; a fresh one for an instance not seen before.
Standard2800State& standard_2800_state(const Form& form);
void reset_standard_2800_state(const Form& form);
void forget_standard_2800_state(const Form& form);

// The spectrum array of a living Standard 2800 dialog (element 0 unused), or
// nullptr when the instance keeps none.
const std::vector<double>* spectrum_of(const Form& form);

}  // namespace qorvat::loads
