#pragma once
// The top-level window of one dialog instance. It reports the user's actions
// while its Form lives; once the runtime destroys the Form the window is
// detached and reports nothing more.

#include <QWidget>
#include <unordered_map>

#include "gui/user_events.hpp"

namespace qorvat::gui {

class DialogWindow final : public QWidget {
 public:
  DialogWindow(Form& form, UserEvents& events);

  // nullptr once detached.
  Form* form() const { return form_; }
  void detach();

  QWidget* widget_for(const Control& control) const;
  void sync(const Control& control, Property property);

  // From the widgets: the control is one of this window's Form.
  void report_click(Control* control);
  void report_double_click(Control* control);
  void report_text_edit(Control* control, const QString& text);
  void report_pick(Control* control, int list_index);
  void report_grid_click(Control* control, int row, bool double_click);
  void report_move(Control* control, int value);
  void report_mouse_move(Control* control, double x, double y);

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void fit_to_screen(QWidget& content);

  Form* form_;
  UserEvents* events_;
  std::unordered_map<const Control*, QWidget*> widgets_;
};

}  // namespace qorvat::gui
