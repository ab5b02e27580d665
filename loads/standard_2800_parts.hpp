#pragma once
// The routines of Standard 2800 (Form26), shared between its files.

#include <optional>

#include "loads/design_spectrum.hpp"
#include "loads/standard_2800_state.hpp"
#include "runtime/registry.hpp"

namespace qorvat::loads {

void register_standard_2800(DialogRegistry& registry);

// The options as the engineering functions take them.
std::optional<SoilType> soil_of(const Form& me);
std::optional<Hazard> hazard_of(const Form& me);
// S, S0, T0, Ts from the options; kept as they were when no row applies.
void take_spectrum_parameters(const Form& me, Standard2800State& state);

void clear_outputs(Form& me);     // B.A, C and K
void calculate_c(Form& me);       // "Calculate C"
void calculate_period(Form& me);  // "Cal"
void show_diagram(Form& me);      // "Show Diagram"
void export_spectrum(Form& me);   // "Export B.A"

// The cursor on a computed period: Line2 at x = T/step, Line3 at B.A, and the read-out.
void place_cursor(Form& me, double T, double BA);
void follow_pointer(Form& me);  // mouse over the plot
void change_x_scale(Form& me);  // Slider1
void scroll_plot(Form& me);     // HScroll1

}  // namespace qorvat::loads
