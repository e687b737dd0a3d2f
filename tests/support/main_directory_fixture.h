// The main directory of a test: that of the source tree, or one that the test fills.
#pragma once

#include <filesystem>

#include <gtest/gtest.h>

#include "host/platform/files.h"
#include "host/platform/paths.h"
#include "host/runtime/main_directory.h"

namespace zwt::test {

/// Puts a main directory in force for as long as it lives.
class MainDirectory {
 public:
  /// The data of the source tree.
  MainDirectory() : before_(GetMainDirectory()) {
    SetMainDirectory(TextFromPath(std::filesystem::path(ZWT_SOURCE_DIR) / "share" / "zwtcal") + L"\\");
  }
  MainDirectory(const MainDirectory&) = delete;
  MainDirectory& operator=(const MainDirectory&) = delete;
  ~MainDirectory() { SetMainDirectory(before_); }

  /// A folder of the test's own with this content of the data file.
  void UseDataFile(std::string_view content) {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    const std::filesystem::path folder = std::filesystem::path(testing::TempDir()) /
                                         (std::string(test->test_suite_name()) + "." + test->name());
    std::filesystem::create_directories(folder / "Common2");
    WriteFileAtomically(folder / "Common2" / "ZwtDataTable.xml", content);
    SetMainDirectory(TextFromPath(folder) + L"\\");
  }

  /// A folder that does not exist.
  void UseNone() { SetMainDirectory(L"Z:\\none\\"); }

 private:
  CString before_;
};

}  // namespace zwt::test
