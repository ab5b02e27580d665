#pragma once
// The soil-structure interaction check (Form40).

#include "runtime/registry.hpp"

namespace qorvat::concrete {

void register_ssi_dialog(DialogRegistry& registry);

}  // namespace qorvat::concrete
