#pragma once
// The small section calculators: P Calculate (Form2), M Calculate (Form3),
// P selection (Form30) and Cal Zx (Form58).

#include "runtime/registry.hpp"

namespace qorvat::sections {

void register_section_helpers(DialogRegistry& registry);

}  // namespace qorvat::sections
