#pragma once
// The CSV text of the built-in profile library, embedded by the build.

#include <string_view>
#include <vector>

namespace qorvat::sections {

struct EmbeddedCsv {
  std::string_view table;
  std::string_view csv;
};

const std::vector<EmbeddedCsv>& embedded_profile_csv();

}  // namespace qorvat::sections
