#pragma once
// The pieces of the Effective Length dialog, one file each.

#include <vector>

#include "runtime/dialog_type.hpp"
#include "runtime/form.hpp"

namespace qorvat::members::effective_length {

// The controls in dialog order.
std::vector<ControlDecl> controls();

// Opening routine, option groups, "joint calculation" and the fa/Fy mirror.
void add_state_routines(DialogType& type);

// "Calculate K".
void calculate_k(Form& me);

// "ALL Same..!" and "Side Same".
void copy_all_same(Form& me);
void copy_side_same(Form& me);

}  // namespace qorvat::members::effective_length
