#pragma once
// Check Section (Form15) and the reduced beam section (Form56).

#include "runtime/registry.hpp"

namespace qorvat::members {

void register_check_section_dialog(DialogRegistry& registry);

}  // namespace qorvat::members
