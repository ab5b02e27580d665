#pragma once
// One widget per control kind, wired to report the user's actions to the
// dialog window that holds it.

#include <QWidget>

#include "runtime/control.hpp"

namespace qorvat::gui {

class DialogWindow;

// The widget of a control. Its content comes later, from sync_widget; the
// controls a frame or picture holds are put into it by the dialog builder.
QWidget* make_control_widget(Control& control, DialogWindow& window);

}  // namespace qorvat::gui
