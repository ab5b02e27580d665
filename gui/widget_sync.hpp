#pragma once
// Brings a control's widget in step with the runtime. The widget's own
// signals stay quiet, so nothing here reaches the session again.

#include <QWidget>

#include "runtime/control.hpp"

namespace qorvat::gui {

void sync_widget(QWidget& widget, const Control& control, Property property);
void sync_widget_fully(QWidget& widget, const Control& control);

// Paints a widget with the control's colours; system colours keep the palette's.
void apply_colors(QWidget& widget, Color back, Color fore);

// Right-to-left for Persian and Arabic text, left-to-right otherwise.
void apply_direction(QWidget& widget, const QString& text);

}  // namespace qorvat::gui
