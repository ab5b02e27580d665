#pragma once
// The three calculators behind the non-structural load selector. Each
// builder takes the catalog's entry of its dialog (caption, closing rule)
// emptied of stand-in controls, and adds its controls and routines.

#include "runtime/dialog_type.hpp"

namespace qorvat::loads {

DialogType nonstructural_force_dialog(DialogType type);  // Form41
DialogType wind_load_dialog(DialogType type);            // Form53
DialogType tank_force_dialog(DialogType type);           // Form51

}  // namespace qorvat::loads
