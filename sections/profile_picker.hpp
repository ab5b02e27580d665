#pragma once
// The profile picker Form13: a "Stahl" button fills its grid from one table
// of the profile database; the user picks a row; "Ok" writes the profile into
// every calculator that is showing.

#include <string>

#include "runtime/registry.hpp"
#include "runtime/session.hpp"

namespace qorvat::sections {

// What a "Stahl" button asks for.
struct StahlRequest {
  std::string table;     // "ipe" or "navdani"
  int grid_columns = 16;
  int fields_read = 13;  // 11 for the callers that need no section moduli
};

// The preparation of a "Stahl" button: sketch, grid shape, rows from the
// database, then the picker shows. A database that cannot be read gives a
// message naming file and table, and the picker stays closed.
void open_profile_picker(Session& session, const StahlRequest& request);

// The reduced flange thickness some connection dialogs take: the whole part
// of t above 6 mm, and of t - 2 for the thin flanges (6 mm gives 4).
double reduced_flange_thickness(double t_mm);

void register_profile_picker(DialogRegistry& registry);

}  // namespace qorvat::sections
