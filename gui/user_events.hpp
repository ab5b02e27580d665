#pragma once
// What the user does to a dialog's window, in the runtime's terms. The
// dialog windows report here; the front end passes it on to the session.

#include <string_view>

#include "runtime/control.hpp"
#include "runtime/form.hpp"

namespace qorvat::gui {

class UserEvents {
 public:
  virtual ~UserEvents() = default;
  virtual void clicked(Control& control) = 0;
  virtual void double_clicked(Control& control) = 0;
  virtual void text_edited(Control& control, std::string_view text) = 0;
  virtual void picked(Control& control, int list_index) = 0;
  virtual void grid_clicked(Control& control, int row) = 0;
  virtual void moved(Control& control, int value) = 0;
  // The pointer moved over the control, at (x, y) in the control's own scale.
  virtual void mouse_moved(Control& control, double x, double y) = 0;
  virtual void close_requested(Form& form) = 0;
  virtual void activated(Form& form) = 0;
};

}  // namespace qorvat::gui
