#pragma once
// One dialog instance: its controls with their current properties. Created
// by the session on first access; the routines reach other dialogs through
// session(), the way the dialogs have always talked to each other.

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/control.hpp"
#include "runtime/dialog_type.hpp"

namespace qorvat {

class Session;

class Form {
 public:
  Form(Session& session, const DialogType& type);
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  Session& session() const { return *session_; }
  const DialogType& type() const { return *type_; }
  const std::string& name() const { return type_->name; }

  const std::string& caption() const { return caption_; }
  void set_caption(std::string caption);
  bool visible() const { return visible_; }
  int height() const { return height_; }
  void set_height(int height);

  // A control by key, "Text5" or "Text5(0)". An unknown key is a programming
  // error and throws std::out_of_range.
  Control& operator[](std::string_view key) const;
  Control& control(std::string_view name, int index) const;
  Control* find(std::string_view key) const;
  const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }
  // The selected option button of a container ("" for the dialog itself), or nullptr.
  Control* selected_option(std::string_view container) const;

  // Shorthands used throughout the routines.
  const std::string& text(std::string_view key) const { return (*this)[key].text(); }
  double val(std::string_view key) const { return (*this)[key].val(); }
  void set_text(std::string_view key, std::string_view text) { (*this)[key].set_text(text); }
  void set_number(std::string_view key, double x) { (*this)[key].set_number(x); }
  void set_rounded(std::string_view key, double x, int decimals) { (*this)[key].set_rounded(x, decimals); }

  // Lifecycle shorthands for the routines of this dialog.
  void show();
  void hide();

 private:
  friend class Session;
  Session* session_;
  const DialogType* type_;
  std::string caption_;
  bool visible_ = false;
  bool closing_ = false;
  int height_ = 0;
  std::vector<std::unique_ptr<Control>> controls_;
  std::map<std::string, Control*, std::less<>> by_key_;
};

}  // namespace qorvat
