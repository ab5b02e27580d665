#pragma once
// A session worked the way a user works it, for the tests of every folder:
// controls are addressed as "Form15.Text3", texts entered or typed, buttons
// clicked, and what the user was told is read back from prompts that record.
// The road runs either over the whole program or over dialogs a test
// declares itself.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "runtime/fault.hpp"
#include "runtime/session.hpp"
#include "shell/program.hpp"
#include "tests/support/recording_prompts.hpp"

namespace qorvat::testing {

using Texts = std::map<std::string, std::string>;  // "Form15.Text3" -> text

// The message of the fault an action raised, or "no fault".
template <typename Action>
std::string fault_of(Action action) {
  try {
    action();
  } catch (const RuntimeFault& fault) {
    return fault.what();
  }
  return "no fault";
}

// An empty dialog captioned with its name, for a test to declare.
inline DialogType empty_dialog(std::string name) {
  DialogType type;
  type.caption = name;
  type.name = std::move(name);
  return type;
}

class SessionRoad {
 public:
  // Over the dialogs given; a test may declare more in `registry` before it uses them.
  explicit SessionRoad(DialogRegistry dialogs = {}) : registry(std::move(dialogs)), s(registry, prompts) {}

  Control& at(const std::string& key) {
    const auto dot = key.find('.');
    return s.form(key.substr(0, dot))[key.substr(dot + 1)];
  }
  std::string text(const std::string& key) { return at(key).text(); }
  bool showing(const std::string& dialog) const { return s.state(dialog) == FormState::Showing; }

  // As a routine of the user's would: a fault in an opening routine is reported, not thrown.
  void show(const std::string& dialog) {
    s.user_action([&] { s.show(dialog); });
  }
  void click(const std::string& key) { s.user_click(at(key)); }
  void click_through(std::initializer_list<const char*> keys) {
    for (const char* key : keys) click(key);
  }
  void enter(const std::string& key, const std::string& text) { s.user_replace_text(at(key), text); }
  void enter(const Texts& texts) {
    for (const auto& [key, text] : texts) enter(key, text);
  }
  void type(const std::string& key, const std::string& text) { s.user_type(at(key), text); }
  void pick(const std::string& key, int entry) { s.user_pick(at(key), entry); }

  // The message boxes shown since the last call.
  std::vector<std::string> messages() {
    const std::vector<std::string> all = prompts.lines("msgbox ");
    const std::size_t read = std::min(messages_read_, all.size());
    messages_read_ = all.size();
    return {all.begin() + static_cast<std::ptrdiff_t>(read), all.end()};
  }
  std::vector<std::string> faults() const { return prompts.lines("fault "); }

  void expect_texts(const Texts& expected, const std::string& road = {}) {
    for (const auto& [key, value] : expected) EXPECT_EQ(text(key), value) << road << " " << key;
  }

  DialogRegistry registry;
  RecordingPrompts prompts;
  Session s;

 private:
  std::size_t messages_read_ = 0;
};

// The whole program, started on its menu; `profiles` names the profile database.
struct ProgramRoad : SessionRoad {
  explicit ProgramRoad(std::string profiles = {}) : SessionRoad(make_program_registry()) {
    s.profiles_path = std::move(profiles);
    s.start();
  }
};

// Past the menu, which is put away as when a calculator's road starts.
struct CalculatorRoad : ProgramRoad {
  explicit CalculatorRoad(std::string profiles = {}) : ProgramRoad(std::move(profiles)) { s.hide("Form4"); }
};

// A road as the fixture of a TEST_F.
template <typename Road>
class RoadTest : public ::testing::Test, public Road {};

}  // namespace qorvat::testing
