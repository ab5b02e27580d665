#pragma once
// RBS (Form56): the radius cut of a reduced beam section on the section that
// Check Section holds. Check Section's "RBS" fills the admissible ranges.

#include "runtime/dialog_type.hpp"

namespace qorvat::members {

// The full dialog, in place of the catalog's entry of the same name.
DialogType rbs_dialog(const DialogType& catalog_entry);

}  // namespace qorvat::members
