#pragma once
// The dialogs of the small section calculators, one registration each, and
// what they share.

#include "runtime/registry.hpp"
#include "runtime/session.hpp"
#include "sections/profile_picker.hpp"

namespace qorvat::sections {

void register_p_calculate(DialogRegistry& registry);  // Form2, and Form30 that leads to it
void register_m_calculate(DialogRegistry& registry);  // Form3
void register_cal_zx(DialogRegistry& registry);       // Form58

// The catalog's entry for the dialog (caption, where closing leads) without
// the stand-in controls it held until now.
inline DialogType catalog_entry(const DialogRegistry& registry, const char* name) {
  DialogType type = *registry.find(name);
  type.controls.clear();
  type.handlers.clear();
  return type;
}

// The helpers' "Stahl" buttons read IPE beams into the full grid.
inline const StahlRequest kHelperStahl{"ipe", 16, 13};

// "PG": Check Section builds the section and hands it back when it closes.
void open_section_designer(Session& session);

// M Calculate's "Calculate..": the demand at the beam end, into every connection dialog showing.
void calculate_m(Form& me);

}  // namespace qorvat::sections
