#pragma once
// Lateral Support (Form71): the starting area of a diagonal brace that holds
// a beam flange, checked as a column in Fa Calculation.

#include "runtime/dialog_type.hpp"

namespace qorvat::members {

// The full dialog, in place of the catalog's stand-in of the same name.
DialogType lateral_support_dialog(const DialogType& catalog_entry);

}  // namespace qorvat::members
