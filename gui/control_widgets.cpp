#include "gui/control_widgets.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QTableWidget>

#include "gui/click_filter.hpp"
#include "gui/dialog_window.hpp"
#include "gui/layout_plan.hpp"
#include "gui/line_overlay.hpp"
#include "gui/picture_widget.hpp"
#include "gui/qt_convert.hpp"

namespace qorvat::gui {
namespace {

void report_mouse_clicks(QWidget& widget, Control& control, DialogWindow& window) {
  report_clicks(
      widget, [&window, c = &control] { window.report_click(c); },
      [&window, c = &control] { window.report_double_click(c); });
}

QWidget* make_text_box(Control& control, DialogWindow& window) {
  auto* edit = new QLineEdit;
  QObject::connect(edit, &QLineEdit::textEdited, edit,
                   [&window, c = &control](const QString& text) { window.report_text_edit(c, text); });
  return edit;
}

QWidget* make_combo_box(Control& control, DialogWindow& window) {
  auto* box = new QComboBox;
  box->setEditable(!control.list_only());
  box->setInsertPolicy(QComboBox::NoInsert);
  QObject::connect(box, &QComboBox::activated, box, [&window, c = &control](int i) { window.report_pick(c, i); });
  if (QLineEdit* edit = box->lineEdit()) {
    // Completion would type for the user; every change has to be a keystroke of theirs.
    box->setCompleter(nullptr);
    QObject::connect(edit, &QLineEdit::textEdited, box,
                     [&window, c = &control](const QString& text) { window.report_text_edit(c, text); });
  }
  return box;
}

QWidget* make_grid(Control& control, DialogWindow& window) {
  auto* table = new QTableWidget;
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setSelectionMode(QAbstractItemView::SingleSelection);
  table->verticalHeader()->hide();
  QObject::connect(table, &QTableWidget::cellClicked, table,
                   [&window, c = &control](int row, int) { window.report_grid_click(c, row, false); });
  QObject::connect(table, &QTableWidget::cellDoubleClicked, table,
                   [&window, c = &control](int row, int) { window.report_grid_click(c, row, true); });
  return table;
}

template <typename Slider>
QWidget* make_slider(Control& control, DialogWindow& window) {
  auto* slider = new Slider(Qt::Horizontal);
  QObject::connect(slider, &QAbstractSlider::valueChanged, slider,
                   [&window, c = &control](int value) { window.report_move(c, value); });
  return slider;
}

template <typename Button>
QWidget* make_button(Control& control, DialogWindow& window) {
  auto* button = new Button;
  QObject::connect(button, &QAbstractButton::clicked, button, [&window, c = &control] { window.report_click(c); });
  return button;
}

// A line inside a picture is drawn at its ends over the picture; elsewhere it
// only divides the rows, since the layout places everything there.
QWidget* make_line(const Control& control) {
  const Control* holder = control.form().find(control.container());
  if (holder != nullptr && is_picture(holder->kind())) return new LineOverlay;
  auto* line = new QFrame;
  line->setFrameShape(QFrame::HLine);
  line->setFrameShadow(QFrame::Sunken);
  return line;
}

QWidget* make_clickable(QWidget* widget, Control& control, DialogWindow& window) {
  report_mouse_clicks(*widget, control, window);
  return widget;
}

QWidget* make_picture(Control& control, DialogWindow& window) {
  auto* picture = new PictureWidget(control);
  // Tracking the pointer over a picture nobody listens to would only make events.
  if (control.form().type().handler(control.name(), Event::MouseMove) != nullptr) {
    picture->report_pointer([&window, c = &control](QPointF at) { window.report_mouse_move(c, at.x(), at.y()); });
  }
  return make_clickable(picture, control, window);
}

QWidget* make_frame(Control& control, DialogWindow& window) { return make_clickable(new QGroupBox, control, window); }

}  // namespace

QWidget* make_control_widget(Control& control, DialogWindow& window) {
  QWidget* widget = nullptr;
  switch (control.kind()) {
    case ControlKind::TextBox: widget = make_text_box(control, window); break;
    case ControlKind::ComboBox: widget = make_combo_box(control, window); break;
    case ControlKind::CommandButton: widget = make_button<QPushButton>(control, window); break;
    case ControlKind::CheckBox: widget = make_button<QCheckBox>(control, window); break;
    case ControlKind::OptionButton: {
      widget = make_button<QRadioButton>(control, window);
      // The runtime keeps one selected per container.
      static_cast<QRadioButton*>(widget)->setAutoExclusive(false);
      break;
    }
    case ControlKind::Label: {
      auto* label = new QLabel;
      label->setTextFormat(Qt::PlainText);
      widget = make_clickable(label, control, window);
      break;
    }
    case ControlKind::PictureBox:
    case ControlKind::Image: widget = make_picture(control, window); break;
    case ControlKind::Line: widget = make_line(control); break;
    case ControlKind::Grid: widget = make_grid(control, window); break;
    case ControlKind::Slider: widget = make_slider<QSlider>(control, window); break;
    case ControlKind::ScrollBar: widget = make_slider<QScrollBar>(control, window); break;
    case ControlKind::Frame: widget = make_frame(control, window); break;
  }
  widget->setObjectName(to_qstring(control.key()));
  return widget;
}

}  // namespace qorvat::gui
