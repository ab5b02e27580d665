#pragma once
// The prompts a routine can raise. The GUI answers them with Qt's dialogs,
// the script runner from its script; routines only see this interface.

#include <optional>
#include <string>
#include <string_view>

namespace qorvat {

inline constexpr const char* kApplicationTitle = "Qorvat";

struct FaultReport {
  std::string form;     // dialog whose routine stopped
  std::string routine;  // e.g. "Command1_Click", "Form_Load"
  std::string what;     // e.g. "Division by zero"
};

class Prompts {
 public:
  virtual ~Prompts() = default;
  // title is never empty here: the session puts in the application title.
  virtual void message_box(std::string_view text, std::string_view title) = 0;
  // The answer, or nothing when the user cancelled.
  virtual std::optional<std::string> input_box(std::string_view prompt, std::string_view title,
                                               std::string_view default_text) = 0;
  // The chosen path, or nothing when the user cancelled.
  virtual std::optional<std::string> save_dialog(std::string_view file_name, std::string_view filter) = 0;
  // A run-time fault ended a routine; shown as "Run-time error: <what>".
  virtual void fault(const FaultReport& report) = 0;
};

}  // namespace qorvat
