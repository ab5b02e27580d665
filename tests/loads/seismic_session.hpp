#pragma once
// The whole program on a session, opened on Standard 2800 from the menu, as
// the seismic calculator's road starts; with what its tests share.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "loads/standard_2800_state.hpp"
#include "runtime/session.hpp"
#include "shell/program.hpp"
#include "support/recording_prompts.hpp"

namespace qorvat {

struct SeismicRoad {
  SeismicRoad() : registry_(make_program_registry()), session_(registry_, prompts_) {
    session_.start();
    click("Form4.Command12");  // Cal. " C "
  }

  Session& s() { return session_; }
  Control& at(const std::string& key) {
    const auto dot = key.find('.');
    return session_.form(key.substr(0, dot))[key.substr(dot + 1)];
  }
  void show(const char* dialog) {
    session_.user_action([&] { session_.show(dialog); });
  }
  void click(const std::string& key) { session_.user_click(at(key)); }
  void enter(const std::string& key, const std::string& text) { session_.user_replace_text(at(key), text); }
  void pick(const std::string& key, int index) { session_.user_pick(at(key), index); }
  void move_pointer(double x, double y) { session_.user_mouse_move(at("Form26.picNemodar"), x, y); }
  std::string text(const std::string& key) { return at(key).text(); }
  std::vector<std::string> messages() const { return prompts_.lines("msgbox "); }
  std::vector<std::string> faults() const { return prompts_.lines("fault "); }
  const std::vector<double>& spectrum() { return *loads::spectrum_of(session_.form("Form26")); }

  // Soil and hazard by their option keys, e.g. choose("Option1", "Option8") for soil I, very high.
  void choose(const char* soil, const char* hazard) {
    click("Form26." + std::string(soil));
    click("Form26." + std::string(hazard));
  }

  DialogRegistry registry_;
  testing::RecordingPrompts prompts_;
  Session session_;
};

class SeismicDialogTest : public ::testing::Test, public SeismicRoad {};

}  // namespace qorvat
