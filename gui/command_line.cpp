#include "gui/command_line.hpp"

#include "shell/program.hpp"

namespace qorvat::gui {

CommandLine parse_command_line(const std::vector<std::string>& args) {
  static constexpr std::string_view kProfilesIs = "--profiles=";
  CommandLine line;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (arg == "--help" || arg == "-h") {
      line.help = true;
    } else if (arg == "--version") {
      line.version = true;
    } else if (arg == "--profiles") {
      if (i + 1 == args.size() || args[i + 1].empty()) {
        line.error = "--profiles needs a file name";
      } else {
        line.profiles_path = args[++i];
      }
    } else if (arg.starts_with(kProfilesIs)) {
      line.profiles_path = arg.substr(kProfilesIs.size());
      if (line.profiles_path.empty()) line.error = "--profiles needs a file name";
    } else {
      line.unknown.push_back(arg);
    }
  }
  return line;
}

std::string usage_text() {
  return "Usage: qorvat [options]\n"
         "Structural engineering calculators.\n"
         "\n"
         "Options:\n"
         "  --profiles FILE  read steel profiles from FILE instead of htil.mdb in the working folder\n"
         "  --help           show this text and exit\n"
         "  --version        show the version and exit\n";
}

std::string version_text() { return std::string("qorvat ") + kVersion + "\n"; }

}  // namespace qorvat::gui
