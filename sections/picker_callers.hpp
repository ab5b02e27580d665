#pragma once
// The dialogs that take a profile from the picker, as far as the picker
// needs them: the fields it writes and their "Stahl" buttons. A calculator
// built later declares these itself, in its own place among its controls.

#include "runtime/registry.hpp"

namespace qorvat::sections {

void register_picker_callers(DialogRegistry& registry);

}  // namespace qorvat::sections
