#include "concrete/ssi_dialog.hpp"

namespace qorvat::concrete {

void register_ssi_dialog(DialogRegistry& /*registry*/) {}

}  // namespace qorvat::concrete
