// A fresh folder in the place of the main directory, for as long as it lives.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>
#include <unistd.h>

#include "host/platform/paths.h"
#include "host/runtime/main_directory.h"

namespace zwt::test {

class DataFolder {
 public:
  DataFolder() : before_(GetMainDirectory()) {
    std::string name = testing::TempDir() + "zwt_data_XXXXXX";
    EXPECT_NE(mkdtemp(name.data()), nullptr);
    folder_ = name;
    std::filesystem::create_directories(folder_ / "Common2");
    SetMainDirectory(Text() + L"\\");
  }
  DataFolder(const DataFolder&) = delete;
  DataFolder& operator=(const DataFolder&) = delete;
  ~DataFolder() {
    SetMainDirectory(before_);
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }

  /// The folder, without a separator at its end.
  CString Text() const { return TextFromPath(folder_); }
  std::filesystem::path File(const std::string& name) const { return folder_ / "Common2" / name; }
  CString FileText(const std::string& name) const { return TextFromPath(File(name)); }

  void Write(const std::string& name, std::string_view bytes) const {
    std::ofstream(File(name), std::ios::binary) << bytes;
  }

 private:
  CString before_;
  std::filesystem::path folder_;
};

}  // namespace zwt::test
