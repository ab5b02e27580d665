#pragma once
// The small section calculators: P Calculate (Form2), M Calculate (Form3),
// P selection (Form30) and Cal Zx (Form58).

#include "runtime/registry.hpp"
#include "runtime/session.hpp"

namespace qorvat::sections {

void register_section_helpers(DialogRegistry& registry);

// What the callers' buttons do to open them.
// The beam connection's "P cal": marks the load as its own and offers P selection.
void open_p_selection(Session& session);
// The beam connection's "M Cal": M Calculate, in the ultimate design when the connection is.
void open_m_calculate(Session& session);
// The wind load's "Zx Cal": Cal Zx starts from the net pressure Pt.
void open_cal_zx(Session& session);

}  // namespace qorvat::sections
