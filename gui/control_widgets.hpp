#pragma once
// One widget per control kind, wired to report the user's actions to the
// dialog window that holds it.

#include <QWidget>

#include "runtime/control.hpp"

namespace qorvat::gui {

class DialogWindow;

// The widget of a control that holds no others. Its content comes later, from sync_widget.
QWidget* make_control_widget(Control& control, DialogWindow& window);
// The widget of a frame, or of a picture that holds controls; they are laid out in it.
QWidget* make_container_widget(Control& control, DialogWindow& window);

}  // namespace qorvat::gui
