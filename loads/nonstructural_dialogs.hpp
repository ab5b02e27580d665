#pragma once
// Non-structural force (Form41), facade wind (Form53) and liquid tank forces (Form51).

#include "runtime/registry.hpp"

namespace qorvat::loads {

void register_nonstructural_dialogs(DialogRegistry& registry);

}  // namespace qorvat::loads
