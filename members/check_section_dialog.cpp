#include "members/check_section_dialog.hpp"

namespace qorvat::members {

void register_check_section_dialog(DialogRegistry& /*registry*/) {}

}  // namespace qorvat::members
