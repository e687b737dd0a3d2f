// Whatever goes wrong while saving, the old file is whole.

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "host/dxf/dxf_file.h"
#include "host/platform/files.h"
#include "host_dxf/drawing_texts.h"

namespace {

namespace fs = std::filesystem;

using drawing_texts::Entities;
using drawing_texts::Pipe;
using zwt::FileStep;

class Saving : public testing::Test {
 protected:
  void SetUp() override {
    folder_ = fs::path(testing::TempDir()) / ("zwt_saving_" + std::to_string(getpid()));
    fs::remove_all(folder_);
    fs::create_directories(folder_);
    file_ = folder_ / "drawing.dxf";
    zwt::WriteFileAtomically(file_, before_);
    drawing_ = zwt::ReadDrawing(file_);
    drawing_->SetDiameter(0, 50);
  }
  void TearDown() override { fs::remove_all(folder_); }

  bool OldFileIsWhole() const { return zwt::ReadWholeFile(file_) == before_; }
  std::size_t FilesInFolder() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder_), fs::directory_iterator()));
  }

  const std::string before_ = Entities(Pipe("1A"));
  fs::path folder_;
  fs::path file_;
  std::unique_ptr<zwt::Drawing> drawing_;
};

TEST_F(Saving, ReplacesTheFileAndMarksTheDrawing) {
  EXPECT_TRUE(drawing_->IsModified());
  zwt::SaveDrawing(*drawing_, file_);
  EXPECT_FALSE(drawing_->IsModified());
  EXPECT_EQ(zwt::ReadDrawing(file_)->Diameter(0), 50);
  EXPECT_EQ(FilesInFolder(), 1U);
}

TEST_F(Saving, AFailureAtAnyStepLeavesTheOldFile) {
  for (const FileStep failing : {FileStep::Create, FileStep::Write, FileStep::Flush, FileStep::Rename}) {
    for (const int error : {ENOSPC, EACCES, EIO}) {
      const zwt::FileFault fault([failing, error](FileStep step) { return step == failing ? error : 0; });
      EXPECT_THROW(zwt::SaveDrawing(*drawing_, file_), zwt::FileError);
      EXPECT_TRUE(OldFileIsWhole());
      EXPECT_EQ(FilesInFolder(), 1U);
      EXPECT_TRUE(drawing_->IsModified());
    }
  }
}

TEST_F(Saving, AKillAtAnyMomentLeavesTheOldFileOrTheNewOne) {
  bool finished = false;
  int kills = 0;
  for (int step = 1; !finished && step < 100; ++step) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      int left = step;
      const zwt::FileFault fault([&left](FileStep) {
        if (--left == 0) raise(SIGKILL);
        return 0;
      });
      zwt::SaveDrawing(*drawing_, file_);
      _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    finished = WIFEXITED(status);
    if (finished) break;
    ++kills;
    ASSERT_TRUE(OldFileIsWhole()) << step;
  }
  EXPECT_TRUE(finished);
  EXPECT_GE(kills, 4);
  EXPECT_EQ(zwt::ReadDrawing(file_)->Diameter(0), 50);
}

TEST_F(Saving, AFolderThatIsMissingIsAnError) {
  EXPECT_THROW(zwt::SaveDrawing(*drawing_, folder_ / "no such folder" / "x.dxf"), zwt::FileError);
  EXPECT_THROW(zwt::SaveDrawing(*drawing_, folder_), zwt::FileError);
}

TEST_F(Saving, AFolderThatIsNotWritableLeavesTheOldFile) {
  fs::permissions(folder_, fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                               fs::perms::others_exec);
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    // The administrator may write everywhere: try it as nobody.
    constexpr uid_t kNobody = 65534;
    if (geteuid() == 0 && seteuid(kNobody) != 0) _exit(2);
    try {
      zwt::SaveDrawing(*drawing_, file_);
    } catch (const zwt::FileError&) {
      _exit(0);
    }
    _exit(1);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  fs::permissions(folder_, fs::perms::owner_all);
  EXPECT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 0);
  EXPECT_TRUE(OldFileIsWhole());
  EXPECT_EQ(FilesInFolder(), 1U);
}

TEST_F(Saving, ReadingAMissingFileOrAFolderIsAnError) {
  EXPECT_THROW(zwt::ReadDrawing(folder_ / "none.dxf"), zwt::FileError);
  EXPECT_THROW(zwt::ReadDrawing(folder_), zwt::FileError);
}

}  // namespace
