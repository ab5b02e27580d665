// "Export B.A" of Standard 2800 (Form26): the spectrum array as a text report.

#include <algorithm>
#include <cctype>
#include <fstream>
#include <string>

#include "loads/standard_2800_parts.hpp"
#include "runtime/fault.hpp"
#include "runtime/session.hpp"
#include "runtime/value_rules.hpp"

namespace qorvat::loads {
namespace {

// The reports have always been written with Windows line ends.
constexpr const char* kLineEnd = "\r\n";

bool names_a_text_file(std::string name) {
  std::transform(name.begin(), name.end(), name.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return name.find(".txt") != std::string::npos;
}

}  // namespace

void export_spectrum(Form& me) {
  const Standard2800State& state = standard_2800_state(me);
  if (!state.diagram) return;
  Session& s = me.session();
  // A cancelled dialog hands back the name it was given.
  std::string path = s.save_dialog("*.txt", "*.txt").value_or("*.txt");
  if (path == "*.txt") return;
  if (!names_a_text_file(path)) path += ".txt";

  const double tstart = me.val("tstart");
  const double tend = me.val("tend");
  const double xstep = me.val("xstep");
  const double n = checked_div(tend, xstep);
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  if (!file) throw RuntimeFault("Path/File access error");
  file << "T(Sec)               B.A       " << kLineEnd;
  // The range is read again from the fields; it may now reach past the array.
  const double last = state.BA.empty() ? 0 : static_cast<double>(state.BA.size() - 1);
  double T = tstart;
  for (double i = 1; i <= n; ++i) {
    if (i > last) throw RuntimeFault("Subscript out of range");
    file << format_pattern(T, "0.00000000") << "    "
         << format_pattern(state.BA[static_cast<std::size_t>(i)], "0.00000000") << kLineEnd;
    T += xstep;
  }
  file.close();
  s.message_box("Done", "Information");
}

}  // namespace qorvat::loads
