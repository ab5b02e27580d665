#include "cli/script_runner.hpp"

#include <charconv>
#include <istream>
#include <ostream>

#include "cli/property_text.hpp"

namespace qorvat::cli {

// ---- prompts ---------------------------------------------------------------

void ScriptPrompts::message_box(std::string_view text, std::string_view title) {
  out_ << "msgbox " << one_line(title) << '\t' << one_line(text) << '\n';
}

std::optional<std::string> ScriptPrompts::input_box(std::string_view prompt, std::string_view title,
                                                    std::string_view /*default_text*/) {
  std::optional<std::string> answer = std::string();
  if (!input_answers.empty()) {
    answer = input_answers.front();
    input_answers.pop_front();
  }
  out_ << "inputbox " << one_line(title) << '\t' << one_line(prompt) << '\t' << one_line(answer.value_or(""))
       << '\n';
  return answer;
}

std::optional<std::string> ScriptPrompts::save_dialog(std::string_view /*file_name*/, std::string_view /*filter*/) {
  std::optional<std::string> answer;
  if (!save_answers.empty()) {
    answer = save_answers.front();
    save_answers.pop_front();
  }
  out_ << "savedialog " << one_line(answer.value_or("")) << '\n';
  return answer;
}

void ScriptPrompts::fault(const FaultReport& report) {
  out_ << "fault " << report.form << ' ' << report.routine << '\t' << one_line(report.what) << '\n';
}

// ---- runner ----------------------------------------------------------------

struct ScriptRunner::Target {
  std::string form;
  std::string control;   // control key; empty when the dialog itself is meant
  std::string property;  // empty: the default one
  std::string printed() const { return control.empty() ? form : form + "." + control; }
};

namespace {

bool is_name_char(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

const ControlDecl* declared(const DialogType& type, const std::string& key) {
  for (const auto& c : type.controls) {
    if (control_key(c.name, c.index) == key) return &c;
  }
  return nullptr;
}

std::optional<int> parse_int(const std::string& s) {
  int value = 0;
  auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), value);
  if (ec != std::errc() || end != s.data() + s.size() || s.empty()) return std::nullopt;
  return value;
}

// Splits "WORD REST" at the first blank; REST keeps everything after that one blank.
std::pair<std::string, std::string> split_word(const std::string& s) {
  const auto blank = s.find(' ');
  if (blank == std::string::npos) return {s, ""};
  return {s.substr(0, blank), s.substr(blank + 1)};
}

}  // namespace

ScriptRunner::ScriptRunner(const DialogRegistry& registry, std::ostream& out)
    : registry_(registry), out_(out), prompts_(out), session_(registry, prompts_) {
  session_.start();
}

void ScriptRunner::error(int number, const std::string& why) {
  out_ << "error line " << number << ": " << why << '\n';
  status_ = kScriptError;
}

std::optional<ScriptRunner::Target> ScriptRunner::parse_target(const std::string& text, bool allow_property,
                                                               int number) {
  const auto dot = text.find('.');
  Target t;
  t.form = text.substr(0, dot);
  const DialogType* type = registry_.find(t.form);
  if (type == nullptr) {
    error(number, "unknown dialog " + t.form);
    return std::nullopt;
  }
  if (dot == std::string::npos) {
    error(number, "expected DIALOG.CONTROL, got " + text);
    return std::nullopt;
  }
  const std::string rest = text.substr(dot + 1);
  std::size_t i = 0;
  while (i < rest.size() && is_name_char(rest[i])) ++i;
  if (i < rest.size() && rest[i] == '(') {
    const auto close = rest.find(')', i);
    if (close == std::string::npos || !parse_int(rest.substr(i + 1, close - i - 1))) {
      error(number, "bad control index in " + text);
      return std::nullopt;
    }
    i = close + 1;
  }
  t.control = rest.substr(0, i);
  if (i < rest.size()) {
    if (rest[i] != '.' || !allow_property) {
      error(number, "unexpected text after the control in " + text);
      return std::nullopt;
    }
    t.property = rest.substr(i + 1);
    if (!is_control_property(t.property)) {
      error(number, "unknown property " + t.property);
      return std::nullopt;
    }
  }
  if (declared(*type, t.control) == nullptr) {
    if (allow_property && t.property.empty() && (t.control == "Visible" || t.control == "Caption")) {
      t.property = t.control;
      t.control.clear();
      return t;
    }
    error(number, "unknown control " + t.form + "." + t.control);
    return std::nullopt;
  }
  return t;
}

Control* ScriptRunner::reachable_control(const Target& t) {
  Form* form = session_.existing(t.form);
  Control* control = form == nullptr ? nullptr : form->find(t.control);
  if (control == nullptr || !control->reachable()) {
    out_ << "refused " << t.printed() << '\n';
    return nullptr;
  }
  return control;
}

void ScriptRunner::click(const Target& t) {
  if (Control* c = reachable_control(t)) session_.user_click(*c);
}

void ScriptRunner::edit(const std::string& command, const Target& t, const std::string& text, int number) {
  const ControlDecl* decl = declared(*registry_.find(t.form), t.control);
  if (decl->kind != ControlKind::TextBox && decl->kind != ControlKind::ComboBox) {
    error(number, command + " needs a text field or combo box: " + t.printed());
    return;
  }
  Control* c = reachable_control(t);
  if (c == nullptr) return;
  if (c->list_only()) {
    out_ << "refused " << t.printed() << '\n';
    return;
  }
  if (command == "set") {
    session_.user_replace_text(*c, text);
  } else {
    session_.user_type(*c, text);
  }
}

void ScriptRunner::pick(const Target& t, const std::string& arg, bool grid_row, int number) {
  const auto n = parse_int(arg);
  if (!n) {
    error(number, "expected a number, got '" + arg + "'");
    return;
  }
  Control* c = reachable_control(t);
  if (c == nullptr) return;
  if (grid_row) {
    if (c->kind() != ControlKind::Grid) return error(number, "not a grid: " + t.printed());
    if (*n < 0 || *n >= c->rows()) return error(number, "no row " + arg + " in " + t.printed());
    session_.user_grid_click(*c, *n);
  } else {
    if (c->kind() != ControlKind::ComboBox) return error(number, "not a combo box: " + t.printed());
    if (*n < 0 || *n >= static_cast<int>(c->list().size())) {
      return error(number, "no entry " + arg + " in " + t.printed());
    }
    session_.user_pick(*c, *n);
  }
}

void ScriptRunner::read(const Target& t, const std::string* expected) {
  std::string property = t.property;
  std::optional<std::string> value;
  // Reading follows the runtime's rules: it creates a destroyed dialog.
  session_.user_action([&] {
    Form& form = session_.form(t.form);
    if (t.control.empty()) {
      value = form_property(form, property);
    } else {
      const Control& c = form[t.control];
      if (property.empty()) property = default_property(c);
      value = control_property(c, property);
    }
  });
  if (!value) return;  // the opening routine faulted; the fault is already written
  const std::string name = t.printed() + "." + property;
  if (expected == nullptr) {
    out_ << name << '=' << *value << '\n';
  } else if (*value != *expected) {
    out_ << "FAIL " << name << " expected " << *expected << " got " << *value << '\n';
    if (status_ == kPassed) status_ = kExpectationFailed;
  }
}

void ScriptRunner::dump(const std::string& form_name, int /*number*/) {
  session_.user_action([&] {
    Form& form = session_.form(form_name);
    out_ << dump_header(form) << '\n';
    for (const auto& c : form.controls()) out_ << dump_line(*c) << '\n';
  });
}

void ScriptRunner::on_form(const std::string& command, const std::string& form_name, int number) {
  if (!registry_.contains(form_name)) return error(number, "unknown dialog " + form_name);
  if (command == "state") {
    static constexpr const char* kNames[] = {"destroyed", "hidden", "showing"};
    out_ << form_name << '=' << kNames[static_cast<int>(session_.state(form_name))] << '\n';
  } else if (command == "dump") {
    dump(form_name, number);
  } else if (session_.state(form_name) != FormState::Showing) {
    out_ << "refused " << form_name << '\n';
  } else if (command == "close") {
    session_.user_close(form_name);
  } else {
    session_.user_activate(form_name);
  }
}

bool ScriptRunner::run_line(const std::string& raw, int number) {
  std::string line = raw;
  if (!line.empty() && line.back() == '\r') line.pop_back();
  if (line.find_first_not_of(" \t") == std::string::npos || line[0] == '#') return true;

  const auto [command, rest] = split_word(line);
  if (command == "input") {
    prompts_.input_answers.emplace_back(rest);
  } else if (command == "input-cancel") {
    prompts_.input_answers.emplace_back(std::nullopt);
  } else if (command == "save") {
    prompts_.save_answers.emplace_back(rest);
  } else if (command == "save-cancel") {
    prompts_.save_answers.emplace_back(std::nullopt);
  } else if (command == "state" || command == "dump" || command == "close" || command == "activate") {
    on_form(command, rest, number);
  } else if (command == "click" || command == "get") {
    if (auto t = parse_target(rest, command == "get", number)) {
      command == "click" ? click(*t) : read(*t, nullptr);
    }
  } else if (command == "set" || command == "type" || command == "pick" || command == "grid" ||
             command == "expect") {
    const auto [target_text, argument] = split_word(rest);
    if (auto t = parse_target(target_text, command == "expect", number)) {
      if (command == "expect") {
        read(*t, &argument);
      } else if (command == "pick" || command == "grid") {
        pick(*t, argument, command == "grid", number);
      } else {
        edit(command, *t, argument, number);
      }
    }
  } else {
    error(number, "unknown command " + command);
  }

  if (session_.ended() && !end_written_) {
    out_ << "end\n";
    end_written_ = true;
  }
  return !session_.ended();
}

int ScriptRunner::run(std::istream& script) {
  std::string line;
  int number = 0;
  while (std::getline(script, line)) {
    if (!run_line(line, ++number)) break;
  }
  out_.flush();
  return status_;
}

}  // namespace qorvat::cli
