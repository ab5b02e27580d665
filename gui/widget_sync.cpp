#include "gui/widget_sync.hpp"

#include <QAbstractSlider>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTableWidget>

#include "gui/picture_widget.hpp"
#include "gui/qt_convert.hpp"

namespace qorvat::gui {
namespace {

QStringList qt_list(const std::vector<std::string>& items) {
  QStringList list;
  list.reserve(static_cast<qsizetype>(items.size()));
  for (const auto& item : items) list << to_qstring(item);
  return list;
}

void sync_combo(QComboBox& box, const Control& control) {
  QStringList current;
  for (int i = 0; i < box.count(); ++i) current << box.itemText(i);
  const QStringList wanted = qt_list(control.list());
  const QString text = to_qstring(control.text());
  QLineEdit* edit = box.lineEdit();
  const int cursor = edit != nullptr ? edit->cursorPosition() : 0;
  const bool same_text = box.currentText() == text;
  if (current != wanted) {
    box.clear();
    box.addItems(wanted);
  }
  // A pick-only box can show nothing but an entry: the one its text names.
  int shown = control.list_index();
  if (shown < 0 && !box.isEditable()) shown = static_cast<int>(wanted.indexOf(text));
  if (box.currentIndex() != shown) box.setCurrentIndex(shown);
  if (edit != nullptr && edit->text() != text) {
    edit->setText(text);
    // The user's own keystroke came back unchanged: keep the caret where it was.
    if (same_text) edit->setCursorPosition(cursor);
  }
}

// Headings stand above the rows; a grid without any shows its cells alone.
void sync_headings(QTableWidget& table, const Control& control) {
  QStringList headings;
  bool any = false;
  for (int c = 0; c < control.cols(); ++c) {
    headings << to_qstring(control.col_heading(c));
    any = any || !headings.back().isEmpty();
  }
  table.setHorizontalHeaderLabels(headings);
  table.horizontalHeader()->setVisible(any);
}

void sync_grid(QTableWidget& table, const Control& control) {
  if (table.rowCount() != control.rows()) table.setRowCount(control.rows());
  if (table.columnCount() != control.cols()) table.setColumnCount(control.cols());
  sync_headings(table, control);
  for (int r = 0; r < control.rows(); ++r) {
    for (int c = 0; c < control.cols(); ++c) {
      const QString text = to_qstring(control.cell(r, c));
      QTableWidgetItem* item = table.item(r, c);
      if (item == nullptr) {
        table.setItem(r, c, new QTableWidgetItem(text));
      } else if (item->text() != text) {
        item->setText(text);
      }
    }
  }
  if (control.row() >= 0) {
    table.selectRow(control.row());
  } else {
    table.clearSelection();
  }
}

void sync_slider(QAbstractSlider& slider, const Control& control) {
  slider.setRange(std::min(control.min(), control.max()), std::max(control.min(), control.max()));
  slider.setInvertedAppearance(control.min() > control.max());
  slider.setValue(control.value());
}

Qt::CheckState check_state(int value) {
  if (value == 1) return Qt::Checked;
  return value == 2 ? Qt::PartiallyChecked : Qt::Unchecked;
}

// Text, value, list and cells: whatever the kind of widget shows.
void sync_content(QWidget& widget, const Control& control) {
  const QString text = to_qstring(control.text());
  if (auto* edit = qobject_cast<QLineEdit*>(&widget)) {
    if (edit->text() != text) edit->setText(text);
  } else if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
    sync_combo(*combo, control);
  } else if (auto* table = qobject_cast<QTableWidget*>(&widget)) {
    sync_grid(*table, control);
  } else if (auto* slider = qobject_cast<QAbstractSlider*>(&widget)) {
    sync_slider(*slider, control);
  } else if (auto* check = qobject_cast<QCheckBox*>(&widget)) {
    check->setText(text);
    check->setCheckState(check_state(control.value()));
  } else if (auto* radio = qobject_cast<QRadioButton*>(&widget)) {
    radio->setText(text);
    radio->setChecked(control.selected());
  } else if (auto* button = qobject_cast<QPushButton*>(&widget)) {
    button->setText(text);
  } else if (auto* label = qobject_cast<QLabel*>(&widget)) {
    label->setText(label_display_text(text));
  } else if (auto* group = qobject_cast<QGroupBox*>(&widget)) {
    group->setTitle(text);
    // Frames keep left-to-right so the controls inside lay out by their own text.
    group->setAlignment(reads_right_to_left(text) ? Qt::AlignRight : Qt::AlignLeft);
    return;
  }
  apply_direction(widget, text);
}

// Only a picture places what it holds by position and size; the layout
// places everything else, as design positions are not in screen units.
void follow_geometry(QWidget& widget) {
  if (auto* holder = dynamic_cast<PictureWidget*>(widget.parentWidget())) {
    holder->place(widget);
  } else if (auto* picture = dynamic_cast<PictureWidget*>(&widget)) {
    picture->size_changed();
  }
}

void follow_drawing(QWidget& widget) {
  if (auto* picture = dynamic_cast<PictureWidget*>(&widget)) {
    picture->drawing_changed();
  } else {
    widget.update();
  }
}

bool fills_own_background(QWidget& widget) {
  return qobject_cast<QLabel*>(&widget) != nullptr || qobject_cast<QCheckBox*>(&widget) != nullptr ||
         qobject_cast<QRadioButton*>(&widget) != nullptr || qobject_cast<QGroupBox*>(&widget) != nullptr ||
         (qobject_cast<QFrame*>(&widget) != nullptr && qobject_cast<QAbstractScrollArea*>(&widget) == nullptr);
}

}  // namespace

void apply_direction(QWidget& widget, const QString& text) {
  widget.setLayoutDirection(reads_right_to_left(text) ? Qt::RightToLeft : Qt::LeftToRight);
}

void apply_colors(QWidget& widget, Color back, Color fore) {
  // Only the roles set here are resolved on the widget; the rest follow its parent.
  QPalette palette;
  const std::optional<QColor> back_color = qt_color(back);
  const std::optional<QColor> fore_color = qt_color(fore);
  if (back_color) {
    for (auto role : {QPalette::Window, QPalette::Base, QPalette::Button}) palette.setColor(role, *back_color);
  }
  if (fore_color) {
    for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
      palette.setColor(role, *fore_color);
    }
  }
  widget.setPalette(palette);
  widget.setAutoFillBackground(back_color.has_value() && fills_own_background(widget));
}

void sync_widget(QWidget& widget, const Control& control, Property property) {
  const QSignalBlocker quiet(&widget);
  switch (property) {
    case Property::Text:
    case Property::Value:
    case Property::ListIndex:
    case Property::List:
    case Property::Grid: sync_content(widget, control); break;
    case Property::Enabled: widget.setEnabled(control.enabled()); break;
    case Property::Visible: widget.setVisible(control.visible()); break;
    case Property::BackColor:
    case Property::ForeColor: apply_colors(widget, control.back_color(), control.fore_color()); break;
    case Property::Size:
    case Property::Position: follow_geometry(widget); break;
    case Property::Drawing: follow_drawing(widget); break;
  }
}

void sync_widget_fully(QWidget& widget, const Control& control) {
  for (auto property : {Property::Text, Property::Enabled, Property::Visible, Property::BackColor}) {
    sync_widget(widget, control, property);
  }
}

}  // namespace qorvat::gui
