#pragma once
// Plays a script of user actions on a headless session and writes what
// happens, one line per event. The command set is documented in docs/cli.md.

#include <deque>
#include <iosfwd>
#include <optional>
#include <string>

#include "runtime/prompts.hpp"
#include "runtime/registry.hpp"
#include "runtime/session.hpp"

namespace qorvat::cli {

// Prompts answered from the script; every prompt is written to the output.
class ScriptPrompts : public Prompts {
 public:
  explicit ScriptPrompts(std::ostream& out) : out_(out) {}

  void message_box(std::string_view text, std::string_view title) override;
  std::optional<std::string> input_box(std::string_view prompt, std::string_view title,
                                       std::string_view default_text) override;
  std::optional<std::string> save_dialog(std::string_view file_name, std::string_view filter) override;
  void fault(const FaultReport& report) override;

  std::deque<std::optional<std::string>> input_answers;  // nullopt: cancel
  std::deque<std::optional<std::string>> save_answers;

 private:
  std::ostream& out_;
};

enum ExitStatus { kPassed = 0, kExpectationFailed = 1, kScriptError = 2 };

class ScriptRunner {
 public:
  ScriptRunner(const DialogRegistry& registry, std::ostream& out);

  Session& session() { return session_; }
  // Plays every line; returns the exit status.
  int run(std::istream& script);
  // Plays one line (numbered for messages). Returns false once the program has ended.
  bool run_line(const std::string& line, int number);
  int status() const { return status_; }

 private:
  struct Target;
  void error(int number, const std::string& why);
  std::optional<Target> parse_target(const std::string& text, bool allow_property, int number);
  void click(const Target& t);
  void edit(const std::string& command, const Target& t, const std::string& text, int number);
  void pick(const Target& t, const std::string& arg, bool grid_row, int number);
  void read(const Target& t, const std::string* expected);
  void dump(const std::string& form_name, int number);
  void on_form(const std::string& command, const std::string& form_name, int number);
  Control* reachable_control(const Target& t);

  const DialogRegistry& registry_;
  std::ostream& out_;
  ScriptPrompts prompts_;
  Session session_;
  int status_ = kPassed;
  bool end_written_ = false;
};

}  // namespace qorvat::cli
