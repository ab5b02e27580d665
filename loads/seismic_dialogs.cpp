#include "loads/seismic_dialogs.hpp"

namespace qorvat::loads {

void register_seismic_dialogs(DialogRegistry& /*registry*/) {}

}  // namespace qorvat::loads
