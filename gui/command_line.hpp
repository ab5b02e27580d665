#pragma once
// The command line of the qorvat program.

#include <string>
#include <vector>

namespace qorvat::gui {

struct CommandLine {
  bool help = false;
  bool version = false;
  std::string profiles_path;
  std::string error;                 // a malformed option, with what is wrong
  std::vector<std::string> unknown;  // arguments that are not ours (perhaps Qt's own)
};

// args excludes the program name.
CommandLine parse_command_line(const std::vector<std::string>& args);
std::string usage_text();
std::string version_text();

}  // namespace qorvat::gui
