#pragma once
// Fa Calculation (Form11) and Alpha Cal (Form14): compression stress, stitch
// distance and brace angle, with their hand-backs.

#include "runtime/registry.hpp"

namespace qorvat::members {

void register_compression_dialogs(DialogRegistry& registry);

}  // namespace qorvat::members
