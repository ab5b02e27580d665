#pragma once
// The whole program's dialogs on a session with the menu put away, the way a
// calculator's road starts, with what the helper dialog tests share.

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "runtime/session.hpp"
#include "shell/program.hpp"
#include "support/recording_prompts.hpp"

namespace qorvat {

struct HelperRoad {
  HelperRoad() : registry_(make_program_registry()), session_(registry_, prompts_) {
    session_.profiles_path = std::string(QORVAT_FIXTURES) + "/profiles.mdb";
    session_.start();
    session_.hide("Form4");
  }

  Session& s() { return session_; }
  Control& at(const std::string& key) {
    const auto dot = key.find('.');
    return session_.form(key.substr(0, dot))[key.substr(dot + 1)];
  }
  void show(const char* dialog) {
    session_.user_action([&] { session_.show(dialog); });
  }
  void enter(const std::string& key, const std::string& text) { session_.user_replace_text(at(key), text); }
  void click(const std::string& key) { session_.user_click(at(key)); }
  std::string text(const std::string& key) { return at(key).text(); }
  std::vector<std::string> messages() const { return prompts_.lines("msgbox "); }
  std::vector<std::string> faults() const { return prompts_.lines("fault "); }

  // "Form17.Text6" -> expected text, checked together.
  void expect_texts(const std::map<std::string, std::string>& expected, const std::string& road = {}) {
    for (const auto& [key, value] : expected) EXPECT_EQ(text(key), value) << road << " " << key;
  }

  DialogRegistry registry_;
  testing::RecordingPrompts prompts_;
  Session session_;
};

class HelperDialogTest : public ::testing::Test, public HelperRoad {};

}  // namespace qorvat
