#pragma once
// Effective Length Coefficient (K), Form5.

#include "runtime/registry.hpp"
#include "runtime/session.hpp"

namespace qorvat::members {

void register_effective_length_dialog(DialogRegistry& registry);

// "Cal Fa (Fcre)": the studied column goes to Fa Calculation with the K of the
// closed formula, to get its critical stress.
void hand_column_to_fa_calculation(Session& s);

}  // namespace qorvat::members
