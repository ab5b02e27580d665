#include "members/effective_length_dialog.hpp"

namespace qorvat::members {

void register_effective_length_dialog(DialogRegistry& /*registry*/) {}

}  // namespace qorvat::members
