#pragma once
// Standard 2800 (Form26) and its behaviour-factor table (Form25).

#include "runtime/registry.hpp"

namespace qorvat::loads {

void register_seismic_dialogs(DialogRegistry& registry);

}  // namespace qorvat::loads
