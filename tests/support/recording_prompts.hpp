#pragma once
// Prompts for tests: answers come from queues and every prompt is written
// down, so a test reads what the user would have seen instead of clicking
// through modal dialogs.

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/prompts.hpp"

namespace qorvat::testing {

class RecordingPrompts : public Prompts {
 public:
  // One line per prompt, in order:
  //   "msgbox TITLE\tTEXT", "input TITLE\tPROMPT", "save FILE\tFILTER", "fault FORM ROUTINE\tWHAT"
  std::vector<std::string> log;
  // Answers handed out in order; an empty queue answers as a cancel would.
  std::deque<std::optional<std::string>> input_answers;
  std::deque<std::optional<std::string>> save_answers;

  void message_box(std::string_view text, std::string_view title) override {
    log.push_back("msgbox " + std::string(title) + "\t" + std::string(text));
  }

  std::optional<std::string> input_box(std::string_view prompt, std::string_view title,
                                       std::string_view /*default_text*/) override {
    log.push_back("input " + std::string(title) + "\t" + std::string(prompt));
    return next(input_answers);
  }

  std::optional<std::string> save_dialog(std::string_view file_name, std::string_view filter) override {
    log.push_back("save " + std::string(file_name) + "\t" + std::string(filter));
    return next(save_answers);
  }

  void fault(const FaultReport& report) override {
    log.push_back("fault " + report.form + " " + report.routine + "\t" + report.what);
  }

  // The lines of one kind, e.g. lines("fault ").
  std::vector<std::string> lines(std::string_view prefix) const {
    std::vector<std::string> out;
    for (const auto& line : log) {
      if (line.starts_with(prefix)) out.push_back(line);
    }
    return out;
  }

 private:
  static std::optional<std::string> next(std::deque<std::optional<std::string>>& answers) {
    if (answers.empty()) return std::nullopt;
    auto answer = std::move(answers.front());
    answers.pop_front();
    return answer;
  }
};

}  // namespace qorvat::testing
