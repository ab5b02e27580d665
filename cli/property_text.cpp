#include "cli/property_text.hpp"

#include <array>

#include "runtime/value_rules.hpp"

namespace qorvat::cli {
namespace {

constexpr std::array<std::string_view, 8> kProperties = {"Text",    "Caption",   "Value",     "Enabled",
                                                          "Visible", "BackColor", "ForeColor", "ListIndex"};

std::string yes_no(bool b) { return b ? "True" : "False"; }

bool holds_text(const Control& c) {
  return c.kind() == ControlKind::TextBox || c.kind() == ControlKind::ComboBox;
}

std::string value_text(const Control& c) {
  if (c.kind() == ControlKind::OptionButton) return yes_no(c.selected());
  return std::to_string(c.value());
}

}  // namespace

bool is_control_property(std::string_view name) {
  for (auto p : kProperties) {
    if (p == name) return true;
  }
  return false;
}

std::string default_property(const Control& c) {
  if (holds_text(c)) return "Text";
  if (c.kind() == ControlKind::CheckBox || c.kind() == ControlKind::OptionButton) return "Value";
  return "Caption";
}

std::optional<std::string> control_property(const Control& c, std::string_view p) {
  if (p == "Text" || p == "Caption") return one_line(c.text());
  if (p == "Value") return value_text(c);
  if (p == "Enabled") return yes_no(c.enabled());
  if (p == "Visible") return yes_no(c.visible());
  if (p == "BackColor") return std::to_string(c.back_color());
  if (p == "ForeColor") return std::to_string(c.fore_color());
  if (p == "ListIndex") return std::to_string(c.list_index());
  return std::nullopt;
}

std::optional<std::string> form_property(const Form& form, std::string_view p) {
  if (p == "Visible") return yes_no(form.visible());
  if (p == "Caption") return one_line(form.caption());
  return std::nullopt;
}

std::string dump_header(const Form& form) {
  return form.name() + "\tCaption=" + one_line(form.caption()) + "\tVisible=" + yes_no(form.visible());
}

std::string dump_line(const Control& c) {
  std::string line = c.form().name() + "." + c.key() + "\t" + kind_name(c.kind());
  line += std::string("\t") + (holds_text(c) ? "Text=" : "Caption=") + one_line(c.text());
  line += "\tValue=" + value_text(c);
  line += "\tEnabled=" + yes_no(c.enabled());
  line += "\tVisible=" + yes_no(c.visible());
  line += "\tBackColor=" + std::to_string(c.back_color());
  line += "\tForeColor=" + std::to_string(c.fore_color());
  line += "\tListIndex=" + std::to_string(c.list_index());
  if (c.kind() == ControlKind::ComboBox) {
    line += "\tList=";
    for (std::size_t i = 0; i < c.list().size(); ++i) line += (i ? "|" : "") + one_line(c.list()[i]);
  }
  if (c.kind() == ControlKind::Grid) {
    line += "\tRows=" + std::to_string(c.rows()) + "\tCols=" + std::to_string(c.cols()) +
            "\tRow=" + std::to_string(c.row());
  }
  if (c.kind() == ControlKind::Line) {
    line += "\tX1=" + number_text(c.x1()) + "\tY1=" + number_text(c.y1()) + "\tX2=" + number_text(c.x2()) +
            "\tY2=" + number_text(c.y2());
  }
  if (!c.drawing().empty()) line += "\tDrawing=" + std::to_string(c.drawing().size());
  if (!c.container().empty()) line += "\tContainer=" + c.container();
  return line;
}

std::string one_line(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r') {
      out += "\\n";
      if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
    } else if (text[i] == '\n') {
      out += "\\n";
    } else {
      out += text[i];
    }
  }
  return out;
}

}  // namespace qorvat::cli
