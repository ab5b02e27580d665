#pragma once
// The application-wide look: one style everywhere, so the dialogs' colours
// show the same on every desktop, and a font with Persian letters.

#include <QApplication>

namespace qorvat::gui {

void apply_application_look(QApplication& app);

}  // namespace qorvat::gui
