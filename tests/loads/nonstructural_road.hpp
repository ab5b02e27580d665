#pragma once
// The whole program on a session, walked the way the user reaches the
// non-structural load calculators: menu, selector, calculator.

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "runtime/session.hpp"
#include "shell/program.hpp"
#include "support/recording_prompts.hpp"

namespace qorvat {

class NonstructuralRoad : public ::testing::Test {
 protected:
  // Menu "Non Structural Force", then the selector's option for the calculator.
  explicit NonstructuralRoad(const char* option) : registry_(make_program_registry()), s_(registry_, prompts_) {
    s_.start();
    click("Form4.Command17");
    click(std::string("Form77.") + option);
    click("Form77.Command1");
  }

  Control& at(const std::string& key) {
    const auto dot = key.find('.');
    return s_.form(key.substr(0, dot))[key.substr(dot + 1)];
  }
  void enter(const std::string& key, const std::string& text) { s_.user_replace_text(at(key), text); }
  void type(const std::string& key, const std::string& text) { s_.user_type(at(key), text); }
  void click(const std::string& key) { s_.user_click(at(key)); }
  void pick(const std::string& key, int entry) { s_.user_pick(at(key), entry); }
  std::string text(const std::string& key) { return at(key).text(); }
  bool showing(const char* dialog) { return s_.state(dialog) == FormState::Showing; }
  // The messages shown since the last call, emptied.
  std::vector<std::string> messages() {
    std::vector<std::string> out = prompts_.lines("msgbox ");
    prompts_.log.clear();
    return out;
  }
  void expect_texts(const std::map<std::string, std::string>& expected, const std::string& road = {}) {
    for (const auto& [key, value] : expected) EXPECT_EQ(text(key), value) << road << " " << key;
  }

  DialogRegistry registry_;
  testing::RecordingPrompts prompts_;
  Session s_;
};

}  // namespace qorvat
