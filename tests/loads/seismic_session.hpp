#pragma once
// Standard 2800 opened from the menu's Cal. " C ", as the seismic
// calculator's road starts, with the steps its tests share.

#include <string>
#include <vector>

#include "loads/standard_2800_state.hpp"
#include "tests/support/session_road.hpp"

namespace qorvat {

struct SeismicRoad : testing::ProgramRoad {
  SeismicRoad() { click("Form4.Command12"); }

  // Soil and hazard by their option keys, e.g. choose("Option1", "Option8") for soil I, very high.
  void choose(const char* soil, const char* hazard) {
    click(std::string("Form26.") + soil);
    click(std::string("Form26.") + hazard);
  }
  void move_pointer(double x, double y) { s.user_mouse_move(at("Form26.picNemodar"), x, y); }
  const std::vector<double>& spectrum() { return *loads::spectrum_of(s.form("Form26")); }
};

using SeismicDialogTest = testing::RoadTest<SeismicRoad>;

}  // namespace qorvat
