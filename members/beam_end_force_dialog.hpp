#pragma once
// T (Vu) calculate (Form21): the flange force of a beam, handed to the bolt
// design that asked for it.

#include "runtime/dialog_type.hpp"

namespace qorvat::members {

// The full dialog, in place of the stand-in that held only the picker's fields.
DialogType beam_end_force_dialog(const DialogType& catalog_entry);

}  // namespace qorvat::members
