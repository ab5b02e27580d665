#include "sections/section_helpers.hpp"

namespace qorvat::sections {

void register_section_helpers(DialogRegistry& /*registry*/) {}

}  // namespace qorvat::sections
