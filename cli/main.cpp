// qorvat-cli: plays a script of user actions on the dialogs without a display.

#include <cstring>
#include <fstream>
#include <iostream>

#include "cli/script_runner.hpp"
#include "shell/program.hpp"

namespace {

constexpr const char* kUsage =
    "usage: qorvat-cli [--profiles FILE] [SCRIPT]\n"
    "Plays SCRIPT (or standard input) on a session that starts on the main menu\n"
    "and writes one line per event. Exit status: 0 all expectations met,\n"
    "1 an expectation failed, 2 a malformed line or unknown name.\n";

}  // namespace

int main(int argc, char** argv) {
  std::string profiles;
  const char* script_path = nullptr;
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--help") == 0 || std::strcmp(argv[i], "-h") == 0) {
      std::cout << kUsage;
      return 0;
    }
    if (std::strcmp(argv[i], "--version") == 0) {
      std::cout << "qorvat-cli " << qorvat::kVersion << '\n';
      return 0;
    }
    if (std::strcmp(argv[i], "--profiles") == 0 && i + 1 < argc) {
      profiles = argv[++i];
    } else if (script_path == nullptr && argv[i][0] != '-') {
      script_path = argv[i];
    } else {
      std::cerr << kUsage;
      return 2;
    }
  }

  std::ifstream file;
  if (script_path != nullptr) {
    file.open(script_path);
    if (!file) {
      std::cerr << "qorvat-cli: cannot read " << script_path << '\n';
      return 2;
    }
  }
  const qorvat::DialogRegistry registry = qorvat::make_program_registry();
  qorvat::cli::ScriptRunner runner(registry, std::cout);
  runner.session().profiles_path = profiles;
  return runner.run(script_path != nullptr ? static_cast<std::istream&>(file) : std::cin);
}
