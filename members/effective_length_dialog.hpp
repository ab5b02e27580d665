#pragma once
// Effective Length Coefficient (K), Form5.

#include "runtime/registry.hpp"

namespace qorvat::members {

void register_effective_length_dialog(DialogRegistry& registry);

}  // namespace qorvat::members
