#pragma once
// Alpha Cal (Form14): the angle of a brace from storey height and bay
// length, handed back to the brace connection that opened it.

#include "runtime/registry.hpp"
#include "runtime/session.hpp"

namespace qorvat::members {

// The full dialog, in place of the catalog's stand-in of the same name.
DialogType alpha_cal_dialog(const DialogType& catalog_entry);

// The V brace connection's way in: the brace can only be a V, so the X tick is put away.
void open_alpha_cal_for_v_brace(Session& s);

}  // namespace qorvat::members
