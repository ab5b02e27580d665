#pragma once
// Every dialog of the program with its caption. A dialog whose calculator is
// not built yet opens with its caption and the fields other dialogs address.

#include "runtime/registry.hpp"

namespace qorvat::shell {

void register_dialog_catalog(DialogRegistry& registry);

}  // namespace qorvat::shell
