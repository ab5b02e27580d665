#pragma once
// A table of the steel profile database as the dialogs use it: rows in the
// table's stored order, every field as text, addressed by position.

#include <string>
#include <string_view>
#include <vector>

namespace qorvat::sections {

struct ProfileTable {
  std::string name;
  std::vector<std::vector<std::string>> rows;
};

// The eight tables and how many fields of each the dialogs read.
struct ProfileTableLayout {
  const char* name;
  int fields;
};
inline constexpr ProfileTableLayout kProfileTables[] = {
    {"ipe", 13}, {"inp", 13}, {"ipb", 13}, {"ipbi", 13}, {"CPE", 13}, {"CPB", 13}, {"navdani", 13}, {"box", 6},
};
int layout_fields(std::string_view table);  // 0 for an unknown table

// The library built into the program, used when no database file is found.
// Throws std::out_of_range for a table it does not hold.
const ProfileTable& embedded_table(std::string_view name);

// Reads one table from the CSV text the library is kept in: '#' lines are
// comments, the first other line names the columns, each later line is a
// row. Numbers are given their default number text ("7.10" -> "7.1").
ProfileTable parse_profile_csv(std::string_view name, std::string_view csv);

}  // namespace qorvat::sections
