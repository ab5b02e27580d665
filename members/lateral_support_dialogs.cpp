#include "members/lateral_support_dialogs.hpp"

#include "members/beam_end_force_dialog.hpp"
#include "members/lateral_support_dialog.hpp"

namespace qorvat::members {

void register_lateral_support_dialogs(DialogRegistry& registry) {
  registry.add(lateral_support_dialog(*registry.find("Form71")));
  registry.add(beam_end_force_dialog(*registry.find("Form21")));
}

}  // namespace qorvat::members
