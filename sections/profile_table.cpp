#include "sections/profile_table.hpp"

#include <map>
#include <stdexcept>

#include "runtime/value_rules.hpp"
#include "sections/embedded_profile_data.hpp"

namespace qorvat::sections {
namespace {

std::vector<std::string> split_fields(std::string_view line) {
  std::vector<std::string> fields;
  std::size_t start = 0;
  while (true) {
    const auto comma = line.find(',', start);
    std::string_view field = line.substr(start, comma == std::string_view::npos ? line.npos : comma - start);
    while (!field.empty() && field.front() == ' ') field.remove_prefix(1);
    while (!field.empty() && (field.back() == ' ' || field.back() == '\r')) field.remove_suffix(1);
    fields.emplace_back(field);
    if (comma == std::string_view::npos) return fields;
    start = comma + 1;
  }
}

// A field that reads wholly as a number takes the program's number text.
std::string field_text(const std::string& raw) {
  try {
    return number_text(strict_number(raw));
  } catch (const std::exception&) {
    return raw;
  }
}

}  // namespace

int layout_fields(std::string_view table) {
  for (const auto& t : kProfileTables) {
    if (table == t.name) return t.fields;
  }
  return 0;
}

ProfileTable parse_profile_csv(std::string_view name, std::string_view csv) {
  ProfileTable table{std::string(name), {}};
  bool header_seen = false;
  std::size_t start = 0;
  while (start < csv.size()) {
    auto end = csv.find('\n', start);
    if (end == std::string_view::npos) end = csv.size();
    const std::string_view line = csv.substr(start, end - start);
    start = end + 1;
    if (line.empty() || line == "\r" || line.front() == '#') continue;
    if (!header_seen) {
      header_seen = true;
      continue;
    }
    auto fields = split_fields(line);
    for (std::size_t i = 1; i < fields.size(); ++i) fields[i] = field_text(fields[i]);
    table.rows.push_back(std::move(fields));
  }
  return table;
}

const ProfileTable& embedded_table(std::string_view name) {
  static const std::map<std::string, ProfileTable, std::less<>> tables = [] {
    std::map<std::string, ProfileTable, std::less<>> parsed;
    for (const auto& e : embedded_profile_csv()) parsed.emplace(std::string(e.table), parse_profile_csv(e.table, e.csv));
    return parsed;
  }();
  auto it = tables.find(name);
  if (it == tables.end()) throw std::out_of_range("no built-in profile table " + std::string(name));
  return it->second;
}

}  // namespace qorvat::sections
