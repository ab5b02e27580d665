#pragma once
// Draws a whole dialog from its declaration: controls in declaration order,
// frames holding theirs, each field on one row with its label.

#include <QWidget>
#include <unordered_map>

#include "runtime/form.hpp"

namespace qorvat::gui {

class DialogWindow;

struct BuiltDialog {
  QWidget* content = nullptr;  // owns every widget below
  std::unordered_map<const Control*, QWidget*> widgets;
};

BuiltDialog build_dialog(Form& form, DialogWindow& window);

}  // namespace qorvat::gui
