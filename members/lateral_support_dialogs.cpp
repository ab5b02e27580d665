#include "members/lateral_support_dialogs.hpp"

namespace qorvat::members {

void register_lateral_support_dialogs(DialogRegistry& /*registry*/) {}

}  // namespace qorvat::members
