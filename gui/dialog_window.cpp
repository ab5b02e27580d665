#include "gui/dialog_window.hpp"

#include <QCloseEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>

#include "gui/dialog_builder.hpp"
#include "gui/picture_widget.hpp"
#include "gui/qt_convert.hpp"
#include "gui/widget_sync.hpp"

namespace qorvat::gui {

DialogWindow::DialogWindow(Form& form, UserEvents& events) : form_(&form), events_(&events) {
  setObjectName(to_qstring(form.name()));
  setWindowTitle(to_qstring(form.caption()));
  BuiltDialog built = build_dialog(form, *this);
  widgets_ = std::move(built.widgets);
  for (const auto& control : form.controls()) sync_widget_fully(*widgets_.at(control.get()), *control);

  // Long dialogs scroll rather than run off the screen.
  auto* scroll = new QScrollArea;
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setWidget(built.content);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(scroll);
  fit_to_screen(*built.content);
}

void DialogWindow::fit_to_screen(QWidget& content) {
  // Wide enough for the title even when the dialog has few controls.
  static constexpr QSize kSmallest(360, 120);
  const QSize wanted =
      (content.sizeHint() + QSize(style()->pixelMetric(QStyle::PM_ScrollBarExtent), 0)).expandedTo(kSmallest);
  const QScreen* shown_on = screen();
  if (shown_on == nullptr) {
    resize(wanted);
    return;
  }
  const QRect room = shown_on->availableGeometry();
  resize(std::min(wanted.width(), room.width() * 9 / 10), std::min(wanted.height(), room.height() * 9 / 10));
}

void DialogWindow::detach() {
  // Pictures read their control as they paint; the window may still paint before it goes.
  for (auto& [control, widget] : widgets_) {
    if (auto* picture = dynamic_cast<PictureWidget*>(widget)) picture->detach();
  }
  form_ = nullptr;
  widgets_.clear();
}

QWidget* DialogWindow::widget_for(const Control& control) const {
  auto it = widgets_.find(&control);
  return it == widgets_.end() ? nullptr : it->second;
}

void DialogWindow::sync(const Control& control, Property property) {
  if (QWidget* widget = widget_for(control)) sync_widget(*widget, control, property);
}

void DialogWindow::report_click(Control* control) {
  if (form_ == nullptr) return;
  const ControlKind kind = control->kind();
  events_->clicked(*control);
  // Qt has already toggled the box; the runtime decides what it shows.
  if (form_ != nullptr && (kind == ControlKind::CheckBox || kind == ControlKind::OptionButton)) {
    sync(*control, Property::Value);
  }
}

void DialogWindow::report_double_click(Control* control) {
  if (form_ != nullptr) events_->double_clicked(*control);
}

void DialogWindow::report_text_edit(Control* control, const QString& text) {
  if (form_ == nullptr) return;
  events_->text_edited(*control, to_utf8(text));
}

void DialogWindow::report_pick(Control* control, int list_index) {
  if (form_ != nullptr) events_->picked(*control, list_index);
}

void DialogWindow::report_grid_click(Control* control, int row, bool double_click) {
  if (form_ != nullptr) events_->grid_clicked(*control, row);
  if (double_click && form_ != nullptr) events_->double_clicked(*control);
}

void DialogWindow::report_move(Control* control, int value) {
  if (form_ != nullptr) events_->moved(*control, value);
}

void DialogWindow::report_mouse_move(Control* control, double x, double y) {
  if (form_ != nullptr) events_->mouse_moved(*control, x, y);
}

bool DialogWindow::event(QEvent* event) {
  // A hidden window can still receive the activation it asked for before it was hidden.
  if (event->type() == QEvent::WindowActivate && form_ != nullptr && isVisible()) events_->activated(*form_);
  return QWidget::event(event);
}

void DialogWindow::closeEvent(QCloseEvent* event) {
  // The runtime decides: it hides or destroys the dialog through the observer.
  event->ignore();
  if (form_ != nullptr) events_->close_requested(*form_);
}

}  // namespace qorvat::gui
