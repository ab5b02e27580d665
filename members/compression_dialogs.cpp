#include "members/compression_dialogs.hpp"

namespace qorvat::members {

void register_compression_dialogs(DialogRegistry& /*registry*/) {}

}  // namespace qorvat::members
