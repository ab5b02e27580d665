#include "loads/nonstructural_dialogs.hpp"

namespace qorvat::loads {

void register_nonstructural_dialogs(DialogRegistry& /*registry*/) {}

}  // namespace qorvat::loads
