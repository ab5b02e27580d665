#pragma once
// Where the dialogs get the steel profiles from: the user's own Jet file
// (htil.mdb in the working directory, or the file named on the command line)
// or, when there is none, the library built into the program.

#include <string>
#include <string_view>
#include <variant>

#include "sections/profile_table.hpp"

namespace qorvat::sections {

inline constexpr const char* kDefaultDatabaseFile = "htil.mdb";

// A table, or the message that tells the user why it could not be read.
struct TableRead {
  std::variant<ProfileTable, std::string> result;
  bool ok() const { return result.index() == 0; }
  const ProfileTable& table() const { return std::get<ProfileTable>(result); }
  const std::string& error() const { return std::get<std::string>(result); }
};

// Reads every field of every row of one table of a Jet file through libmdb,
// by position and in stored order. Numbers take the program's number text at
// their stored precision (a Double to 15 significant digits, a Single to 7).
TableRead read_mdb_table(const std::string& path, std::string_view table);

// The table as the dialogs see it: from `path` when given, else from htil.mdb
// when that file exists, else from the built-in library. A table with fewer
// fields than its layout needs is an error too.
TableRead read_profile_table(const std::string& path, std::string_view table);

}  // namespace qorvat::sections
