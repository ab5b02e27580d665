#pragma once
// Check Section opened from the main menu, for the dialog tests: fields are
// addressed as "Form15.Text3", entered and clicked as a user would.

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "runtime/session.hpp"
#include "shell/program.hpp"
#include "support/recording_prompts.hpp"

namespace qorvat::testing {

using Texts = std::map<std::string, std::string>;

struct CheckSectionRoad {
  CheckSectionRoad() : registry(make_program_registry()), s(registry, prompts) {
    s.start();
    click("Form4.Command7");
  }
  Control& at(const std::string& key) {
    const auto dot = key.find('.');
    return s.form(key.substr(0, dot))[key.substr(dot + 1)];
  }
  const std::string& text(const std::string& key) { return at(key).text(); }
  // A check box by its value, any other control by its text.
  std::string shown(const std::string& key) {
    const Control& c = at(key);
    return c.kind() == ControlKind::CheckBox ? std::to_string(c.value()) : c.text();
  }
  void enter(const Texts& texts) {
    for (const auto& [key, value] : texts) s.user_replace_text(at(key), value);
  }
  void click(const std::string& key) { s.user_click(at(key)); }
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

  DialogRegistry registry;
  RecordingPrompts prompts;
  Session s;
};

}  // namespace qorvat::testing
