#include "runtime/control.hpp"

#include <algorithm>

#include "runtime/fault.hpp"
#include "runtime/form.hpp"
#include "runtime/session.hpp"
#include "runtime/value_rules.hpp"

namespace qorvat {

Control::Control(Form& form, const ControlDecl& d)
    : form_(&form),
      kind_(d.kind),
      name_(d.name),
      index_(d.index),
      container_(d.container),
      text_(d.text),
      value_(d.value),
      enabled_(d.enabled),
      visible_(d.visible),
      back_color_(d.back_color),
      fore_color_(d.fore_color),
      width_(d.width),
      height_(d.height),
      left_(d.left),
      top_(d.top),
      x1_(d.x1),
      y1_(d.y1),
      x2_(d.x2),
      y2_(d.y2),
      list_(d.list),
      list_only_(d.list_only),
      min_(d.min),
      max_(d.max),
      rows_(d.rows),
      cols_(d.cols),
      cells_(static_cast<std::size_t>(std::max(0, d.rows * d.cols))),
      col_widths_(static_cast<std::size_t>(std::max(0, d.cols)), 0),
      col_headings_(static_cast<std::size_t>(std::max(0, d.cols))) {
  // A combo box whose design text is one of its entries starts on that entry.
  if (kind_ == ControlKind::ComboBox) {
    auto it = std::find(list_.begin(), list_.end(), text_);
    if (it != list_.end() && !text_.empty()) list_index_ = static_cast<int>(it - list_.begin());
  }
}

std::string control_key(std::string_view name, int index) {
  std::string key(name);
  if (index >= 0) key.append("(").append(std::to_string(index)).append(")");
  return key;
}

std::string Control::key() const { return control_key(name_, index_); }

void Control::notify(Property p) { form_->session().notify_control(*this, p); }
void Control::fire(Event e) { form_->session().fire(*this, e); }

void Control::set_text(std::string_view text) {
  if (text_ == text) return;
  text_.assign(text);
  if (kind_ == ControlKind::ComboBox) {
    auto it = std::find(list_.begin(), list_.end(), text_);
    const int match = it == list_.end() ? -1 : static_cast<int>(it - list_.begin());
    if (match != list_index_) {
      list_index_ = match;
      notify(Property::ListIndex);
    }
  }
  notify(Property::Text);
  if (kind_ == ControlKind::TextBox || kind_ == ControlKind::ComboBox) fire(Event::Change);
}

void Control::user_replace_text(std::string_view text) {
  if (text_ != text) {
    text_.assign(text);
    if (kind_ == ControlKind::ComboBox) {
      auto it = std::find(list_.begin(), list_.end(), text_);
      list_index_ = it == list_.end() ? -1 : static_cast<int>(it - list_.begin());
      notify(Property::ListIndex);
    }
    notify(Property::Text);
  }
  fire(Event::Change);
}

double Control::val() const { return qorvat::val(text_); }

void Control::set_number(double x) { set_text(number_text(checked(x))); }

void Control::set_rounded(double x, int decimals) { set_text(number_text(round_half_even(checked(x), decimals))); }

int Control::value() const {
  if (kind_ == ControlKind::OptionButton) return value_ != 0 ? -1 : 0;
  return value_;
}

void Control::set_value(int value) {
  switch (kind_) {
    case ControlKind::OptionButton: {
      if (value == 0) {
        if (value_ != 0) {
          value_ = 0;
          notify(Property::Value);
        }
        return;
      }
      if (value_ != 0) return;
      for (const auto& other : form_->controls()) {
        if (other.get() != this && other->kind_ == ControlKind::OptionButton &&
            other->container_ == container_ && other->value_ != 0) {
          other->value_ = 0;
          other->notify(Property::Value);
        }
      }
      value_ = 1;
      notify(Property::Value);
      fire(Event::Click);
      return;
    }
    case ControlKind::CheckBox:
      if (value == value_) return;
      value_ = value;
      notify(Property::Value);
      fire(Event::Click);
      return;
    case ControlKind::Slider:
    case ControlKind::ScrollBar: {
      const int clamped = std::clamp(value, std::min(min_, max_), std::max(min_, max_));
      if (clamped == value_) return;
      value_ = clamped;
      notify(Property::Value);
      fire(Event::Change);
      return;
    }
    default:
      if (value == value_) return;
      value_ = value;
      notify(Property::Value);
      return;
  }
}

void Control::set_enabled(bool on) {
  if (enabled_ == on) return;
  enabled_ = on;
  notify(Property::Enabled);
}

void Control::set_visible(bool on) {
  if (visible_ == on) return;
  visible_ = on;
  notify(Property::Visible);
}

void Control::set_back_color(Color c) {
  if (back_color_ == c) return;
  back_color_ = c;
  notify(Property::BackColor);
}

void Control::set_fore_color(Color c) {
  if (fore_color_ == c) return;
  fore_color_ = c;
  notify(Property::ForeColor);
}

void Control::set_size(int width, int height) {
  width_ = width;
  height_ = height;
  notify(Property::Size);
}

void Control::set_position(int left, int top) {
  left_ = left;
  top_ = top;
  notify(Property::Position);
}

void Control::set_line(double x1, double y1, double x2, double y2) {
  x1_ = checked(x1);
  y1_ = checked(y1);
  x2_ = checked(x2);
  y2_ = checked(y2);
  notify(Property::Position);
}

void Control::set_scale(const PictureScale& scale) {
  scale_ = {checked(scale.left), checked(scale.top), checked(scale.width), checked(scale.height)};
  notify(Property::Drawing);
}

void Control::clear_drawing() {
  drawing_.clear();
  notify(Property::Drawing);
}

void Control::draw(DrawCommand command) {
  // Nothing drawn ever holds a NaN or an infinity: that is a fault of the routine drawing it.
  for (double v : {command.x1, command.y1, command.x2, command.y2}) checked(v);
  for (const auto& [x, y] : command.points) {
    checked(x);
    checked(y);
  }
  drawing_.push_back(std::move(command));
  notify(Property::Drawing);
}

void Control::add_item(std::string item) {
  list_.push_back(std::move(item));
  notify(Property::List);
}

void Control::clear_list() {
  list_.clear();
  list_index_ = -1;
  if (kind_ == ControlKind::ComboBox && list_only_) text_.clear();
  notify(Property::List);
}

void Control::set_list_index(int i) {
  if (i < -1 || i >= static_cast<int>(list_.size())) throw RuntimeFault("Invalid property value");
  list_index_ = i;
  const std::string text = i < 0 ? std::string() : list_[static_cast<std::size_t>(i)];
  if (text_ != text) {
    text_ = text;
    notify(Property::Text);
  }
  notify(Property::ListIndex);
  fire(Event::Click);
}

void Control::set_range(int min, int max) {
  min_ = min;
  max_ = max;
  notify(Property::Value);
  set_value(value_);
}

void Control::set_grid_size(int rows, int cols) {
  rows = std::max(0, rows);
  cols = std::max(0, cols);
  std::vector<std::string> cells(static_cast<std::size_t>(rows * cols));
  for (int r = 0; r < std::min(rows, rows_); ++r) {
    for (int c = 0; c < std::min(cols, cols_); ++c) {
      cells[static_cast<std::size_t>(r * cols + c)] = std::move(cells_[static_cast<std::size_t>(r * cols_ + c)]);
    }
  }
  cells_ = std::move(cells);
  col_widths_.resize(static_cast<std::size_t>(cols), 0);
  col_headings_.resize(static_cast<std::size_t>(cols));
  rows_ = rows;
  cols_ = cols;
  if (row_ >= rows_) row_ = rows_ - 1;
  notify(Property::Grid);
}

const std::string& Control::cell(int row, int col) const {
  if (row < 0 || col < 0 || row >= rows_ || col >= cols_) throw RuntimeFault("Subscript out of range");
  return cells_[static_cast<std::size_t>(row * cols_ + col)];
}

void Control::set_cell(int row, int col, std::string text) {
  if (row < 0 || col < 0 || row >= rows_ || col >= cols_) throw RuntimeFault("Subscript out of range");
  cells_[static_cast<std::size_t>(row * cols_ + col)] = std::move(text);
  notify(Property::Grid);
}

void Control::fill_rows(const std::vector<std::vector<std::string>>& rows) {
  rows_ = static_cast<int>(rows.size());
  cells_.assign(rows.size() * static_cast<std::size_t>(cols_), std::string());
  for (std::size_t r = 0; r < rows.size(); ++r) {
    const std::size_t n = std::min(rows[r].size(), static_cast<std::size_t>(cols_));
    for (std::size_t c = 0; c < n; ++c) cells_[r * static_cast<std::size_t>(cols_) + c] = rows[r][c];
  }
  if (row_ >= rows_) row_ = rows_ - 1;
  notify(Property::Grid);
}

void Control::set_row(int row) {
  if (row < 0 || row >= rows_) throw RuntimeFault("Subscript out of range");
  row_ = row;
  notify(Property::Grid);
}

int Control::col_width(int col) const {
  if (col < 0 || col >= cols_) throw RuntimeFault("Subscript out of range");
  return col_widths_[static_cast<std::size_t>(col)];
}

void Control::set_col_width(int col, int width) {
  if (col < 0 || col >= cols_) throw RuntimeFault("Subscript out of range");
  col_widths_[static_cast<std::size_t>(col)] = width;
  notify(Property::Grid);
}

const std::string& Control::col_heading(int col) const {
  if (col < 0 || col >= cols_) throw RuntimeFault("Subscript out of range");
  return col_headings_[static_cast<std::size_t>(col)];
}

void Control::set_col_heading(int col, std::string heading) {
  if (col < 0 || col >= cols_) throw RuntimeFault("Subscript out of range");
  col_headings_[static_cast<std::size_t>(col)] = std::move(heading);
  notify(Property::Grid);
}

bool Control::reachable() const {
  if (!form_->visible()) return false;
  const Control* c = this;
  for (int hops = 0; c != nullptr && hops < 64; ++hops) {
    if (!c->visible_ || !c->enabled_) return false;
    c = c->container_.empty() ? nullptr : form_->find(c->container_);
  }
  return true;
}

}  // namespace qorvat
