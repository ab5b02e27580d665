#pragma once
// Shared by the GUI tests: a QApplication for the whole run, prompts that
// record instead of blocking, and a guard against modal boxes.

#include <gtest/gtest.h>

#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>
#include <string_view>

#include "gui/front_end.hpp"
#include "runtime/session.hpp"
#include "shell/program.hpp"
#include "tests/support/recording_prompts.hpp"

namespace qorvat::gui::testing {

// Records like the shared test prompts, and lets a test act while a message
// box is "up", as a user clicking elsewhere meanwhile would.
class PausingPrompts final : public qorvat::testing::RecordingPrompts {
 public:
  void message_box(std::string_view text, std::string_view title) override {
    RecordingPrompts::message_box(text, title);
    if (while_message_is_up) while_message_is_up();
  }

  std::function<void()> while_message_is_up;
};

// Hands each modal dialog that comes up to `answer` (which should close it).
// Without an answer, or when the answer leaves it open, a modal dialog is a
// test failure and is closed.
class ModalWatchdog {
 public:
  explicit ModalWatchdog(std::function<void(QWidget&)> answer = {});
  int seen() const { return seen_; }

 private:
  QTimer timer_;
  std::function<void(QWidget&)> answer_;
  int seen_ = 0;
};

// Deletes the windows that were only scheduled for deletion.
void flush_deferred_deletes();

// The program's dialogs, with any the test adds to `registry` first, on a
// session shown through the front end; a modal dialog left up fails the test.
class FrontEndTest : public ::testing::Test {
 protected:
  // The front end over a fresh session; started, it shows the menu.
  void open_front_end(bool started) {
    session = std::make_unique<Session>(registry, prompts);
    gui = std::make_unique<GuiFrontEnd>(*session, [this] { ++program_ends; });
    if (started) gui->start();
  }
  void TearDown() override {
    gui.reset();
    session.reset();
    flush_deferred_deletes();
  }

  DialogRegistry registry = make_program_registry();
  PausingPrompts prompts;
  ModalWatchdog no_modal_dialogs;
  std::unique_ptr<Session> session;
  std::unique_ptr<GuiFrontEnd> gui;
  int program_ends = 0;
};

}  // namespace qorvat::gui::testing
