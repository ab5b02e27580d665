#pragma once
// Draws a whole dialog from its declaration: controls in declaration order,
// each field on one row with its label, frames laying out theirs in rows and
// pictures holding theirs at their own positions.

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
