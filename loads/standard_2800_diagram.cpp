// The spectrum diagram of Standard 2800 (Form26): the array behind it, the
// curve, the axis strips, the horizontal zoom and the cursor.

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "loads/standard_2800_parts.hpp"
#include "runtime/fault.hpp"
#include "runtime/session.hpp"
#include "runtime/value_rules.hpp"

namespace qorvat::loads {
namespace {

constexpr int kPlotTwips = 9090;  // the plot's width at scale 1X, also the width of the window onto it

// The smallest of 1, 2, 5 times a power of ten, from `smallest` up, that is at least `at_least`.
double tick_spacing(double at_least, double smallest) {
  constexpr double kSteps[] = {1, 2, 5};
  double decade = smallest;
  for (int k = 0; k < 60; ++k, decade *= 10) {
    for (double step : kSteps) {
      if (decade * step >= at_least) return decade * step;
    }
  }
  return decade;
}

void draw_text(Control& picture, double x, double y, std::string text) {
  picture.draw({DrawCommand::Kind::Text, x, y, 0, 0, std::move(text), {}, colors::kBlack});
}

void draw_line(Control& picture, double x1, double y1, double x2, double y2) {
  picture.draw({DrawCommand::Kind::Line, x1, y1, x2, y2, {}, {}, colors::kBlack});
}

// B.A on the left strip, from 0 to the top of the plot.
void draw_y_strip(Control& strip, const PlotExtent& plot) {
  strip.set_scale({0, plot.top, 1, -plot.top});
  const double every = tick_spacing(plot.top / 8, 0.1);  // labels carry one decimal
  for (int k = 0; k <= 100 && k * every <= plot.top; ++k) {
    const double y = k * every;
    draw_line(strip, 0.75, y, 1, y);
    draw_text(strip, 0.05, y, format_pattern(y, "0.0"));
  }
}

// Whole seconds under the part of the plot the window shows; a second is 1/step x units.
void draw_x_strip(Control& strip, const PlotExtent& plot, int zoom, int scroll) {
  const double units_per_twip = plot.width / (static_cast<double>(kPlotTwips) * zoom);
  const double left = plot.left + 100.0 * scroll * units_per_twip;
  const double width = kPlotTwips * units_per_twip;
  strip.set_scale({left, 0, width, 1});
  if (!(plot.xstep > 0)) return;
  const double every = tick_spacing(width * plot.xstep / 8, 1);
  const double first = std::ceil(left * plot.xstep / every);
  for (int k = 0; k <= 100; ++k) {
    const double seconds = (first + k) * every;
    const double x = seconds / plot.xstep;
    if (x > left + width) break;
    draw_line(strip, x, 0, x, 0.25);
    draw_text(strip, x, 0.3, number_text(seconds));
  }
}

void draw_axis_strips(Form& me) {
  const PlotExtent& plot = standard_2800_state(me).plot;
  Control& y_strip = me["PicySxale"];
  Control& x_strip = me["hr"];
  y_strip.clear_drawing();
  x_strip.clear_drawing();
  if (!plot.drawn) return;
  draw_y_strip(y_strip, plot);
  draw_x_strip(x_strip, plot, me["Slider1"].value(), me["HScroll1"].value());
}

// The curve in red, one point per step. A point stands at x = start·100 + i - 1
// whatever the step: the factor 100 has always been fixed.
void draw_diagram(Form& me, Standard2800State& state, double tstart, double xstep) {
  Control& plot = me["picNemodar"];
  state.plot = {};
  // Whatever cannot be drawn is left out; the rest of the drawing goes on.
  try {
    plot.clear_drawing();
    const std::size_t n = state.BA.empty() ? 0 : state.BA.size() - 1;
    double peak = 0;
    for (std::size_t i = 1; i <= n; ++i) peak = std::max(peak, std::fabs(state.BA[i]));
    const double left = checked(tstart * 100);
    const double top = checked(1.2 * peak);
    if (n > 0 && top > 0) {
      plot.set_scale({left, top, static_cast<double>(n), -top});
      state.plot = {true, left, static_cast<double>(n), top, xstep};
    }
    DrawCommand curve{DrawCommand::Kind::Polyline, 0, 0, 0, 0, {}, {}, colors::kRed};
    curve.points.reserve(n);
    for (std::size_t i = 1; i <= n; ++i) curve.points.emplace_back(left + static_cast<double>(i - 1), state.BA[i]);
    if (curve.points.size() >= 2) plot.draw(std::move(curve));
  } catch (const RuntimeFault&) {
  }
  draw_axis_strips(me);
}

void enable_after_diagram(Form& me) {
  Session& s = me.session();
  if (!s.visible("Form41")) me["Command4"].set_enabled(true);
  const bool footing = s.visible("Form7");
  const bool nonstructural = s.visible("Form41");
  if (!footing && !nonstructural) {
    for (const char* key : {"Command5", "Command3", "Text4"}) me[key].set_enabled(true);
  }
  if (s.visible("Form51")) {
    for (const char* key : {"Text4", "Command3", "Frame5"}) me[key].set_enabled(false);
  }
}

// Both lines across the whole plot, and the read-out.
void move_cursor(Form& me, double x, double y, double T, double BA) {
  const PictureScale& scale = me["picNemodar"].scale();
  me["Line2"].set_line(x, scale.top, x, scale.top + scale.height);
  me["Line3"].set_line(scale.left, y, scale.left + scale.width, y);
  me["Label7"].set_text("T(Period): " + format_pattern(T, "0.00") + ", B.A: " + format_pattern(BA, "0.00") + "  ");
}

}  // namespace

void show_diagram(Form& me) {
  const double xstep = me.val("xstep");
  const double tend = me.val("tend");
  const double tstart = me.val("tstart");
  if (xstep == 0 || tend == 0 || tstart == 0) {
    me.session().message_box("error in input data...!");
    return;
  }
  me["Slider1"].set_enabled(true);
  me["Command1"].set_enabled(false);
  Standard2800State& state = standard_2800_state(me);
  state.diagram = true;
  take_spectrum_parameters(me, state);
  state.BA =
      design_spectrum({me.val("Text1"), tstart, tend, xstep, state.spectrum, modification_exponent(hazard_of(me))});
  clear_outputs(me);
  me["xnext"].set_enabled(true);
  draw_diagram(me, state, tstart, xstep);
  me["Command1"].set_enabled(true);
  enable_after_diagram(me);
}

void place_cursor(Form& me, double T, double BA) { move_cursor(me, checked_div(T, me.val("xstep")), BA, T, BA); }

// The cursor follows the pointer only while no period and no B.A are shown.
void follow_pointer(Form& me) {
  const Standard2800State& state = standard_2800_state(me);
  if (me.val("Text3") != 0 || me.val("Text5") != 0 || !state.diagram || state.BA.empty()) return;
  const double x = me["picNemodar"].pointer_x();
  const double index = std::nearbyint(x);  // a fractional index rounds to the even whole number
  if (!(index >= 1 && index <= static_cast<double>(state.BA.size() - 1))) return;
  const double BA = state.BA[static_cast<std::size_t>(index)];
  move_cursor(me, x, BA, me.val("xstep") * x, BA);
}

void change_x_scale(Form& me) {
  const int zoom = me["Slider1"].value();
  Control& plot = me["picNemodar"];
  plot.set_size(kPlotTwips * zoom, plot.height());
  me["Label6"].set_text("X Axis Scale :" + std::to_string(zoom) + "X");
  Control& scroll = me["HScroll1"];
  scroll.set_enabled(zoom > 1);
  scroll.set_range(0, static_cast<int>(round_half_even((zoom - 1) * 9165 / 100.0, 0)));
  draw_axis_strips(me);
}

void scroll_plot(Form& me) {
  Control& plot = me["picNemodar"];
  plot.set_position(-100 * me["HScroll1"].value(), plot.top());
  draw_axis_strips(me);
}

}  // namespace qorvat::loads
