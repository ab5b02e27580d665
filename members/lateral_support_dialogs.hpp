#pragma once
// Lateral Support (Form71) and T (Vu) calculate (Form21).

#include "runtime/registry.hpp"

namespace qorvat::members {

void register_lateral_support_dialogs(DialogRegistry& registry);

}  // namespace qorvat::members
