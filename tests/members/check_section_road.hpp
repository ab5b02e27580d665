#pragma once
// Check Section opened from the main menu, for the dialog tests.

#include <string>

#include "tests/support/session_road.hpp"

namespace qorvat::testing {

struct CheckSectionRoad : ProgramRoad {
  CheckSectionRoad() { click("Form4.Command7"); }
  // A check box by its value, any other control by its text.
  std::string shown(const std::string& key) {
    const Control& c = at(key);
    return c.kind() == ControlKind::CheckBox ? std::to_string(c.value()) : c.text();
  }
  void expect(const Texts& texts, const std::string& why) {
    for (const auto& [key, value] : texts) EXPECT_EQ(shown(key), value) << why << ": " << key;
  }
  // The welded beam 2b = 30, h = 50 and the box b = 30, h = 40, both designed under 1392.
  void design_beam() {
    enter({{"Form15.Text3", "30"}, {"Form15.Text4", "50"}});
    click("Form15.Command1");
  }
  void design_box() {
    enter({{"Form15.Text11", "40"}, {"Form15.Text48", "30"}});
    click("Form15.Command2");
  }
};

}  // namespace qorvat::testing
