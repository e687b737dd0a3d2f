#include "host/runtime/installed_file.h"

#include <chrono>

#include <gtest/gtest.h>

#include "support/data_folder.h"

namespace {

using std::filesystem::file_time_type;
using zwt::FileState;
using zwt::InstalledFile;

void Age(const std::filesystem::path& file, std::chrono::seconds age) {
  std::filesystem::last_write_time(file, file_time_type::clock::now() - age);
}

TEST(InstalledFileTest, EitherSeparatorNamesTheFile) {
  const zwt::test::DataFolder folder;
  folder.Write("a.xml", "bytes");
  EXPECT_EQ(InstalledFile(folder.Text() + L"\\Common2\\a.xml").Read(100), "bytes");
  EXPECT_EQ(InstalledFile(folder.Text() + L"/Common2/a.xml").Read(100), "bytes");
}

TEST(InstalledFileTest, TooLargeAbsentAndFolderCannotBeRead) {
  const zwt::test::DataFolder folder;
  folder.Write("a.xml", "bytes");
  EXPECT_THROW(InstalledFile(folder.FileText("a.xml")).Read(4), zwt::FileError);
  EXPECT_THROW(InstalledFile(folder.FileText("b.xml")).Read(4), zwt::FileError);
  EXPECT_THROW(InstalledFile(folder.Text()).Read(4), zwt::FileError);
}

TEST(InstalledFileTest, LatelyWrittenFileIsNotSettled) {
  const zwt::test::DataFolder folder;
  folder.Write("a.xml", "bytes");
  const InstalledFile file(folder.FileText("a.xml"));
  EXPECT_FALSE(file.SettledState().has_value());
  Age(folder.File("a.xml"), std::chrono::hours(-1));
  EXPECT_FALSE(file.SettledState().has_value()) << "a time to come settles nothing";
  Age(folder.File("a.xml"), std::chrono::hours(1));
  EXPECT_TRUE(file.SettledState().has_value());
}

TEST(InstalledFileTest, AbsentFileHasNoState) {
  const zwt::test::DataFolder folder;
  EXPECT_FALSE(InstalledFile(folder.FileText("a.xml")).SettledState().has_value());
}

TEST(InstalledFileTest, EveryKindOfChangeShows) {
  const zwt::test::DataFolder folder;
  folder.Write("a.xml", "bytes");
  Age(folder.File("a.xml"), std::chrono::hours(1));
  const auto time = std::filesystem::last_write_time(folder.File("a.xml"));
  const InstalledFile file(folder.FileText("a.xml"));
  const auto first = file.SettledState();
  EXPECT_EQ(file.SettledState(), first);

  folder.Write("a.xml", "more bytes");
  std::filesystem::last_write_time(folder.File("a.xml"), time);
  EXPECT_NE(file.SettledState(), first) << "another size";

  folder.Write("a.xml", "bytes");
  Age(folder.File("a.xml"), std::chrono::hours(2));
  EXPECT_NE(file.SettledState(), first) << "another time";

  folder.Write("b.xml", "bytes");
  std::filesystem::last_write_time(folder.File("b.xml"), time);
  std::filesystem::rename(folder.File("b.xml"), folder.File("a.xml"));
  EXPECT_NE(file.SettledState(), first) << "another file under the name";
}

}  // namespace
