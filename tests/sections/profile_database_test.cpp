// Reading the profile tables from a real Jet file through libmdb, the choice
// between the user's file and the built-in library, and the messages the user
// reads when a file or table is not usable.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "sections/profile_database.hpp"

namespace qorvat::sections {
namespace {

const std::string kFixtures = QORVAT_FIXTURES;
const std::string kProfiles = kFixtures + "/profiles.mdb";
const std::string kPartial = kFixtures + "/partial.mdb";

TEST(ProfileDatabase, TablesOfEveryShapeReadByPositionInStoredOrder) {
  struct Case {
    const char* table;
    std::size_t rows;
    std::size_t fields;
    const char* first;
  };
  const Case cases[] = {{"ipe", 4, 13, "IPE 80"},     {"inp", 0, 13, ""},        {"ipb", 2, 13, "IPB 100"},
                        {"ipbi", 1, 13, "IPBi 100"},  {"CPE", 1, 13, "CPE 180"}, {"CPB", 1, 13, "CPB 150"},
                        {"navdani", 3, 13, "UNP 60"}, {"box", 2, 6, "100"}};
  for (const auto& c : cases) {
    const TableRead read = read_mdb_table(kProfiles, c.table);
    ASSERT_TRUE(read.ok()) << c.table << ": " << read.error();
    ASSERT_EQ(read.table().rows.size(), c.rows) << c.table;
    for (const auto& row : read.table().rows) EXPECT_EQ(row.size(), c.fields) << c.table;
    if (c.rows == 0) continue;
    EXPECT_EQ(read.table().rows[0][0], c.first) << c.table;
  }
  const auto rows = read_mdb_table(kProfiles, "ipe").table().rows;
  EXPECT_EQ(rows[1][0], "پروفيل IPE 100");  // non-Latin text intact
  EXPECT_EQ(rows[3][0], "IPE 140");
  // Doubles take the program's number text, not the reader's 16-digit text (80.09999999999999).
  EXPECT_EQ(rows[0][9], "80.1");
  EXPECT_EQ(rows[0][8], "7.64");
  EXPECT_EQ(rows[0][1], "80");
  EXPECT_EQ(rows[2][7], "93.4");
}

TEST(ProfileDatabase, UnusableFilesAndTablesGiveMessagesNamingThem) {
  struct Case {
    std::string path;
    const char* table;
    std::string message;
  };
  const std::string not_a_database = kFixtures + "/ipe.csv";
  const Case cases[] = {
      {kFixtures + "/missing.mdb", "ipe", "The profile database \"" + kFixtures + "/missing.mdb\" was not found."},
      {not_a_database, "ipe", "The profile database \"" + not_a_database + "\" could not be read."},
      {kPartial, "navdani", "The profile database \"" + kPartial + "\" has no table \"navdani\"."},
      {kPartial, "ipe", "Table \"ipe\" of the profile database \"" + kPartial + "\" has 5 fields; 13 are needed."},
  };
  for (const auto& c : cases) {
    const TableRead read = read_profile_table(c.path, c.table);
    ASSERT_FALSE(read.ok()) << c.path;
    EXPECT_EQ(read.error(), c.message);
  }
}

// Runs a test body with the working directory set to a fresh folder.
class InFreshFolder : public ::testing::Test {
 protected:
  void SetUp() override {
    previous_ = std::filesystem::current_path();
    folder_ = std::filesystem::temp_directory_path() /
              ("qorvat-profiles-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) + "-" +
               ::testing::UnitTest::GetInstance()->current_test_info()->name());
    std::filesystem::create_directories(folder_);
    std::filesystem::current_path(folder_);
  }
  void TearDown() override {
    std::filesystem::current_path(previous_);
    std::filesystem::remove_all(folder_);
  }
  std::filesystem::path previous_, folder_;
};

TEST_F(InFreshFolder, WithoutAFileTheBuiltInLibraryServes) {
  const TableRead read = read_profile_table("", "ipe");
  ASSERT_TRUE(read.ok());
  EXPECT_EQ(read.table().rows.size(), embedded_table("ipe").rows.size());
}

TEST_F(InFreshFolder, HtilInTheWorkingDirectoryWinsOverTheLibrary) {
  std::filesystem::copy_file(kProfiles, "htil.mdb");
  const TableRead read = read_profile_table("", "ipe");
  ASSERT_TRUE(read.ok()) << read.error();
  EXPECT_EQ(read.table().rows.size(), 4u);
  EXPECT_EQ(read.table().rows[1][0], "پروفيل IPE 100");
}

}  // namespace
}  // namespace qorvat::sections
