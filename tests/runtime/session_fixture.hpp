#pragma once
// A session over dialogs the test declares itself, with prompts that record,
// and what the runtime tests share.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "runtime/fault.hpp"
#include "runtime/registry.hpp"
#include "runtime/session.hpp"
#include "tests/support/recording_prompts.hpp"

namespace qorvat {

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

// An empty dialog captioned with its name.
inline DialogType dialog(std::string name) {
  DialogType type;
  type.caption = name;
  type.name = std::move(name);
  return type;
}

class SessionTest : public ::testing::Test {
 protected:
  // Declare the dialogs first; the session is made on first use.
  DialogRegistry registry;
  testing::RecordingPrompts prompts;
  // What the routines did, in the order they did it.
  std::vector<std::string> trace;

  Session& session() {
    if (!session_) session_ = std::make_unique<Session>(registry, prompts);
    return *session_;
  }
  Control& control(const char* dialog, const char* key) { return session().form(dialog)[key]; }
  std::vector<std::string> faults() const { return prompts.lines("fault "); }

 private:
  std::unique_ptr<Session> session_;
};

}  // namespace qorvat
