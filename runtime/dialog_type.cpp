#include "runtime/dialog_type.hpp"

namespace qorvat {

const char* kind_name(ControlKind kind) {
  switch (kind) {
    case ControlKind::TextBox: return "TextBox";
    case ControlKind::Label: return "Label";
    case ControlKind::CommandButton: return "CommandButton";
    case ControlKind::CheckBox: return "CheckBox";
    case ControlKind::OptionButton: return "OptionButton";
    case ControlKind::ComboBox: return "ComboBox";
    case ControlKind::Frame: return "Frame";
    case ControlKind::PictureBox: return "PictureBox";
    case ControlKind::Image: return "Image";
    case ControlKind::Line: return "Line";
    case ControlKind::Grid: return "Grid";
    case ControlKind::Slider: return "Slider";
    case ControlKind::ScrollBar: return "ScrollBar";
  }
  return "Control";
}

namespace {
ControlDecl make(ControlKind kind, std::string name, std::string text, Color back, Color fore) {
  ControlDecl d;
  d.kind = kind;
  d.name = std::move(name);
  d.text = std::move(text);
  d.back_color = back;
  d.fore_color = fore;
  return d;
}
ControlDecl face(ControlKind kind, std::string name, std::string text = {}) {
  return make(kind, std::move(name), std::move(text), colors::kButtonFace, colors::kButtonText);
}
}  // namespace

ControlDecl text_box(std::string name, std::string default_text) {
  return make(ControlKind::TextBox, std::move(name), std::move(default_text), colors::kWindowBackground,
              colors::kWindowText);
}
ControlDecl label(std::string name, std::string caption) {
  return face(ControlKind::Label, std::move(name), std::move(caption));
}
ControlDecl button(std::string name, std::string caption) {
  return face(ControlKind::CommandButton, std::move(name), std::move(caption));
}
ControlDecl check_box(std::string name, std::string caption) {
  return face(ControlKind::CheckBox, std::move(name), std::move(caption));
}
ControlDecl option_button(std::string name, std::string caption) {
  return face(ControlKind::OptionButton, std::move(name), std::move(caption));
}
ControlDecl combo_box(std::string name, std::vector<std::string> entries, std::string text) {
  ControlDecl d = make(ControlKind::ComboBox, std::move(name), std::move(text), colors::kWindowBackground,
                       colors::kWindowText);
  d.list = std::move(entries);
  return d;
}
ControlDecl frame(std::string name, std::string caption) {
  return face(ControlKind::Frame, std::move(name), std::move(caption));
}
ControlDecl picture_box(std::string name) { return face(ControlKind::PictureBox, std::move(name)); }
ControlDecl image(std::string name) { return face(ControlKind::Image, std::move(name)); }
ControlDecl line(std::string name) {
  return make(ControlKind::Line, std::move(name), {}, colors::kButtonFace, colors::kWindowText);
}
ControlDecl grid(std::string name, int rows, int cols) {
  ControlDecl d = make(ControlKind::Grid, std::move(name), {}, colors::kWindowBackground, colors::kWindowText);
  d.rows = rows;
  d.cols = cols;
  return d;
}
ControlDecl slider(std::string name, int min, int max, int value) {
  ControlDecl d = face(ControlKind::Slider, std::move(name));
  d.min = min;
  d.max = max;
  d.value = value;
  return d;
}
ControlDecl scroll_bar(std::string name, int min, int max, int value) {
  ControlDecl d = slider(std::move(name), min, max, value);
  d.kind = ControlKind::ScrollBar;
  return d;
}

std::vector<ControlDecl> inside(const std::string& container_key, std::vector<ControlDecl> controls) {
  for (auto& c : controls) {
    if (c.container.empty()) c.container = container_key;
  }
  return controls;
}

DialogType& DialogType::add(std::vector<ControlDecl> cs) {
  for (auto& c : cs) controls.push_back(std::move(c));
  return *this;
}

DialogType& DialogType::on(std::string control, Event event, ControlRoutine routine) {
  handlers.push_back({std::move(control), event, std::move(routine)});
  return *this;
}

const ControlRoutine* DialogType::handler(const std::string& control, Event event) const {
  for (const auto& h : handlers) {
    if (h.event == event && h.control == control) return &h.routine;
  }
  return nullptr;
}

}  // namespace qorvat
