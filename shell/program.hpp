#pragma once
// The whole program's dialogs, assembled once at start.

#include "runtime/registry.hpp"

namespace qorvat {

// Every dialog with its declaration, routines and closing rule.
DialogRegistry make_program_registry();

inline constexpr const char* kVersion = "22.0.0";

}  // namespace qorvat
