#include "gui/command_line.hpp"

#include <gtest/gtest.h>

namespace qorvat::gui {
namespace {

TEST(GuiCommandLine, ReadsOptions) {
  struct Case {
    std::vector<std::string> args;
    bool help, version;
    std::string profiles, error;
    std::vector<std::string> unknown;
  };
  const Case cases[] = {
      {{}, false, false, "", "", {}},
      {{"--help"}, true, false, "", "", {}},
      {{"--version"}, false, true, "", "", {}},
      {{"--profiles", "my.mdb"}, false, false, "my.mdb", "", {}},
      {{"--profiles=with space.mdb"}, false, false, "with space.mdb", "", {}},
      {{"--profiles"}, false, false, "", "--profiles needs a file name", {}},
      {{"--profiles="}, false, false, "", "--profiles needs a file name", {}},
      // Qt's own options get through to QApplication untouched.
      {{"-platform", "offscreen", "--help"}, true, false, "", "", {"-platform", "offscreen"}},
  };
  for (const Case& c : cases) {
    const CommandLine line = parse_command_line(c.args);
    const std::string shown = c.args.empty() ? "(none)" : c.args.front();
    EXPECT_EQ(line.help, c.help) << shown;
    EXPECT_EQ(line.version, c.version) << shown;
    EXPECT_EQ(line.profiles_path, c.profiles) << shown;
    EXPECT_EQ(line.error, c.error) << shown;
    EXPECT_EQ(line.unknown, c.unknown) << shown;
  }
}

TEST(GuiCommandLine, VersionNamesTheProgram) { EXPECT_EQ(version_text(), "qorvat 22.0.0\n"); }

}  // namespace
}  // namespace qorvat::gui
