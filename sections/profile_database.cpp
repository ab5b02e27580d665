#include "sections/profile_database.hpp"

#include <mdbtools.h>

#include <charconv>
#include <filesystem>
#include <memory>
#include <vector>

#include "runtime/value_rules.hpp"

namespace qorvat::sections {
namespace {

std::string in_quotes(std::string_view s) { return "\"" + std::string(s) + "\""; }

// A Single shows as many digits as it holds: 7 significant ones.
std::string single_text(float value) {
  char buffer[32];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, static_cast<double>(value),
                                 std::chars_format::general, 7);
  return number_text(strict_number(std::string_view(buffer, static_cast<std::size_t>(end.ptr - buffer))));
}

struct MdbCloser {
  void operator()(MdbHandle* mdb) const { mdb_close(mdb); }
};
struct TableCloser {
  void operator()(MdbTableDef* table) const { mdb_free_tabledef(table); }
};

}  // namespace

TableRead read_mdb_table(const std::string& path, std::string_view table_name) {
  std::error_code ec;
  if (!std::filesystem::is_regular_file(path, ec)) {
    return {"The profile database " + in_quotes(path) + " was not found."};
  }
  std::unique_ptr<MdbHandle, MdbCloser> mdb(mdb_open(path.c_str(), MDB_NOFLAGS));
  if (!mdb || mdb_read_catalog(mdb.get(), MDB_TABLE) == nullptr) {
    return {"The profile database " + in_quotes(path) + " could not be read."};
  }
  std::string name(table_name);
  std::unique_ptr<MdbTableDef, TableCloser> table(mdb_read_table_by_name(mdb.get(), name.data(), MDB_TABLE));
  if (!table) {
    return {"The profile database " + in_quotes(path) + " has no table " + in_quotes(table_name) + "."};
  }
  mdb_read_columns(table.get());
  mdb_rewind_table(table.get());

  const unsigned columns = table->num_cols;
  std::vector<std::vector<char>> bound(columns, std::vector<char>(MDB_BIND_SIZE));
  std::vector<int> lengths(columns, 0);
  for (unsigned i = 0; i < columns; ++i) {
    mdb_bind_column(table.get(), static_cast<int>(i + 1), bound[i].data(), &lengths[i]);
  }

  ProfileTable out{name, {}};
  while (mdb_fetch_row(table.get())) {
    std::vector<std::string> row;
    row.reserve(columns);
    for (unsigned i = 0; i < columns; ++i) {
      auto* column = static_cast<MdbColumn*>(g_ptr_array_index(table->columns, i));
      if (column->cur_value_len == 0) {
        row.emplace_back();  // NULL
      } else if (column->col_type == MDB_DOUBLE) {
        row.push_back(number_text(mdb_get_double(mdb->pg_buf, column->cur_value_start)));
      } else if (column->col_type == MDB_FLOAT) {
        row.push_back(single_text(mdb_get_single(mdb->pg_buf, column->cur_value_start)));
      } else {
        row.emplace_back(bound[i].data(), static_cast<std::size_t>(lengths[i]));
      }
    }
    out.rows.push_back(std::move(row));
  }
  return {std::move(out)};
}

TableRead read_profile_table(const std::string& path, std::string_view table) {
  const int needed = layout_fields(table);
  std::string file = path;
  if (file.empty()) {
    std::error_code ec;
    if (std::filesystem::exists(kDefaultDatabaseFile, ec)) file = kDefaultDatabaseFile;
  }
  if (file.empty()) return {embedded_table(table)};

  TableRead read = read_mdb_table(file, table);
  if (!read.ok()) return read;
  for (const auto& row : read.table().rows) {
    if (static_cast<int>(row.size()) < needed) {
      return {"Table " + in_quotes(table) + " of the profile database " + in_quotes(file) + " has " +
              std::to_string(row.size()) + " fields; " + std::to_string(needed) + " are needed."};
    }
  }
  return read;
}

}  // namespace qorvat::sections
