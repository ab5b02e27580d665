// "Export B.A": the spectrum array as a text report, through the save dialog.

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "seismic_session.hpp"

namespace qorvat {
namespace {

namespace fs = std::filesystem;

class SeismicExportTest : public SeismicDialogTest {
 protected:
  // Soil I, moderate (A = 0.25) from 0.05 s to 0.6 s by 0.15 s: 0.6/0.15 = 4 entries.
  void SetUp() override {
    fs::create_directories(folder_);
    enter("Form26.tstart", "0.05");
    enter("Form26.tend", "0.6");
    enter("Form26.xstep", "0.15");
    choose("Option1", "Option7");
  }
  void TearDown() override { fs::remove_all(folder_); }

  std::string path(const char* name) const { return (folder_ / name).string(); }
  static std::string read(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream all;
    all << in.rdbuf();
    return all.str();
  }
  void export_to(std::optional<std::string> answer) {
    prompts.save_answers.push_back(std::move(answer));
    click("Form26.Command3");
  }

  const fs::path folder_ = fs::temp_directory_path() / ("qorvat_spectrum_" + std::to_string(::getpid()));
};

TEST_F(SeismicExportTest, WritesTheArrayWithItsPeriods) {
  export_to(path("spectrum.txt"));
  // 0.05 s: B1 = 1 + 1.5·0.05/0.1 = 1.75, B.A = 0.4375. 0.2 and 0.35 s: 0.25·2.5 = 0.625.
  // 0.5 s: B1 = 2.5·0.4/0.5 = 2, N = 1 + 0.4·0.1/3.6, B.A = 0.5055556.
  EXPECT_EQ(read(path("spectrum.txt")),
            "T(Sec)               B.A       \r\n"
            "0.05000000    0.43750000\r\n"
            "0.20000000    0.62500000\r\n"
            "0.35000000    0.62500000\r\n"
            "0.50000000    0.50555556\r\n");
  EXPECT_EQ(prompts.lines("save "), (std::vector<std::string>{"save *.txt\t*.txt"}));
  EXPECT_EQ(messages(), (std::vector<std::string>{"msgbox Information\tDone"}));
}

TEST_F(SeismicExportTest, NamesOfTheFile) {
  export_to(std::nullopt);  // cancelled
  export_to("*.txt");       // no name given
  EXPECT_TRUE(fs::is_empty(folder_));
  EXPECT_TRUE(messages().empty());
  export_to(path("plain"));
  export_to(path("LOUD.TXT"));
  EXPECT_TRUE(fs::exists(path("plain.txt")));
  EXPECT_TRUE(fs::exists(path("LOUD.TXT")));
  EXPECT_FALSE(fs::exists(path("LOUD.TXT.txt")));
}

// The range is read again when exporting; past the array the export stops with a fault.
TEST_F(SeismicExportTest, RangeWidenedAfterTheDiagram) {
  enter("Form26.tend", "0.9");
  export_to(path("wide.txt"));
  EXPECT_EQ(faults(), (std::vector<std::string>{"fault Form26 Command3_Click\tSubscript out of range"}));
  EXPECT_EQ(std::ranges::count(read(path("wide.txt")), '\n'), 5);  // heading and the 4 entries
}

}  // namespace
}  // namespace qorvat
