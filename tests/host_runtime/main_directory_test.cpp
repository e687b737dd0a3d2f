// Where the data tables and templates lie.
#include "host/runtime/main_directory.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "host/platform/paths.h"

namespace {

TEST(MainDirectory, DefaultIsTheSourceTreesOwnWithABackslashAtItsEnd) {
  const CString directory = zwt::DefaultMainDirectory();
  ASSERT_FALSE(directory.empty());
  EXPECT_EQ(directory.back(), L'\\');
  const auto expected = std::filesystem::canonical(ZWT_SOURCE_DIR) / "share" / "zwtcal";
  EXPECT_EQ(zwt::PathFromText(directory.substr(0, directory.size() - 1)), expected);
  EXPECT_TRUE(std::filesystem::is_directory(expected));
}

TEST(MainDirectory, TextIsKeptAsItStands) {
  const CString before = GetMainDirectory();
  for (const wchar_t* directory : {L"C:\\Zwt", L"/data/给排水/", L"a\\b\\", L""}) {
    zwt::SetMainDirectory(directory);
    EXPECT_EQ(GetMainDirectory(), directory);
  }
  zwt::SetMainDirectory(before);
}

}  // namespace
