#pragma once
// Shared by the GUI tests: a QApplication for the whole run, prompts that
// record instead of blocking, and a guard against modal boxes.

#include <QTimer>
#include <QWidget>
#include <functional>
#include <string_view>

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

}  // namespace qorvat::gui::testing
