#pragma once
// Fa Calculation (Form11): allowable or expected critical stress of a brace
// or column and the stitch-plate distance, handed back to the dialog that
// opened it.

#include <functional>

#include "runtime/registry.hpp"
#include "runtime/session.hpp"

namespace qorvat::members {

// The full dialog, in place of the catalog's stand-in of the same name.
DialogType fa_calculation_dialog(const DialogType& catalog_entry);

// Opens Fa Calculation for a member of one shape, as the effective length and
// lateral support dialogs do: `fill` writes the caller's figures, then the
// two-shape inputs are put away and the ultimate-strength branch is locked on.
void open_fa_calculation_for_single_shape(Session& s, const std::function<void(Form& fa)>& fill);

}  // namespace qorvat::members
