// Reading and replacing files, with the failures that cost users their work elsewhere.
#include "host/platform/files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using zwt::FileError;
using zwt::FileStep;
using zwt::ReadWholeFile;
using zwt::WriteFileAtomically;

class Files : public testing::Test {
 protected:
  void SetUp() override {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    folder_ =
        fs::path(testing::TempDir()) / ("zwt_files_" + std::string(test->name()) + std::to_string(getpid()));
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  void TearDown() override { fs::remove_all(folder_); }

  fs::path Put(const std::string& name, const std::string& bytes) const {
    std::ofstream(folder_ / name, std::ios::binary) << bytes;
    return folder_ / name;
  }

  std::ptrdiff_t CountEntries() const {
    return std::distance(fs::directory_iterator(folder_), fs::directory_iterator());
  }

  fs::path folder_;
};

std::string WriteFailure(const fs::path& path, const std::string& bytes) {
  try {
    WriteFileAtomically(path, bytes);
  } catch (const FileError& error) {
    EXPECT_EQ(error.Path(), path);
    return error.what();
  }
  return "nothing was thrown";
}

std::string ReadFailure(const fs::path& path, std::size_t largest = zwt::kLargestFile) {
  try {
    ReadWholeFile(path, largest);
  } catch (const FileError& error) {
    EXPECT_EQ(error.Path(), path);
    return error.what();
  }
  return "nothing was thrown";
}

std::string EveryByte(std::size_t count) {
  std::string bytes(count, '\0');
  for (std::size_t i = 0; i < count; ++i) bytes[i] = static_cast<char>(i * 31 % 256);
  return bytes;
}

TEST_F(Files, WhatWasWrittenIsReadByteForByte) {
  for (const std::size_t size : {0u, 1u, 65535u, 65536u, 65537u, 300000u}) {
    const std::string bytes = EveryByte(size);
    WriteFileAtomically(folder_ / "file", bytes);
    EXPECT_EQ(ReadWholeFile(folder_ / "file"), bytes) << size;
  }
  EXPECT_EQ(CountEntries(), 1);
}

TEST_F(Files, NewFileHasTheUsualPermissions) {
  const mode_t before = umask(022);
  WriteFileAtomically(folder_ / "file", "x");
  umask(before);
  EXPECT_EQ(fs::status(folder_ / "file").permissions(), static_cast<fs::perms>(0644));
}

TEST_F(Files, ReplacedFileKeepsItsPermissions) {
  const fs::path file = Put("file", "old");
  fs::permissions(file, static_cast<fs::perms>(0600));
  WriteFileAtomically(file, "new");
  EXPECT_EQ(fs::status(file).permissions(), static_cast<fs::perms>(0600));
}

TEST_F(Files, LinkStaysALinkAndItsTargetIsReplaced) {
  const fs::path file = Put("file", "old");
  fs::create_symlink("file", folder_ / "link");
  fs::create_symlink("link", folder_ / "link of link");
  WriteFileAtomically(folder_ / "link of link", "new");
  EXPECT_TRUE(fs::is_symlink(folder_ / "link of link"));
  EXPECT_TRUE(fs::is_symlink(folder_ / "link"));
  EXPECT_EQ(ReadWholeFile(file), "new");
}

TEST_F(Files, LinkToNothingGetsItsTarget) {
  fs::create_symlink("file", folder_ / "link");
  WriteFileAtomically(folder_ / "link", "new");
  EXPECT_TRUE(fs::is_symlink(folder_ / "link"));
  EXPECT_EQ(ReadWholeFile(folder_ / "file"), "new");
}

TEST_F(Files, LinksInACircleAreRefused) {
  fs::create_symlink("b", folder_ / "a");
  fs::create_symlink("a", folder_ / "b");
  EXPECT_EQ(WriteFailure(folder_ / "a", "new"),
            "cannot write " + (folder_ / "a").string() + ": its links lead in a circle");
  EXPECT_TRUE(fs::is_symlink(folder_ / "a"));
}

TEST_F(Files, FileOfTheCurrentFolderCanBeReplaced) {
  const fs::path before = fs::current_path();
  fs::current_path(folder_);
  WriteFileAtomically("file", "new");
  fs::current_path(before);
  EXPECT_EQ(ReadWholeFile(folder_ / "file"), "new");
}

TEST_F(Files, DeviceStaysADevice) {
  WriteFileAtomically("/dev/null", "new");
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(Files, NameAsLongAsTheDiskTakesCanBeReplaced) {
  const std::string name(255, 'n');
  Put(name, "old");
  WriteFileAtomically(folder_ / name, "new");
  EXPECT_EQ(ReadWholeFile(folder_ / name), "new");
}

TEST_F(Files, FullDeviceIsAFailure) {
  EXPECT_EQ(WriteFailure("/dev/full", "new"), "cannot write /dev/full: the disk is full");
}

TEST_F(Files, EveryFailingStepKeepsTheOldFileAndLeavesNothingBehind) {
  const fs::path file = Put("file", "old");
  const std::string bytes = EveryByte(200000);
  for (const FileStep step : {FileStep::Create, FileStep::Write, FileStep::Flush, FileStep::Rename}) {
    int asked = 0;
    const zwt::FileFault fault([&](FileStep now) {
      asked += now == step ? 1 : 0;
      return now == step ? EIO : 0;
    });
    EXPECT_EQ(WriteFailure(file, bytes), "cannot write " + file.string() + ": the disk does not answer");
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(ReadWholeFile(file), "old");
    EXPECT_EQ(CountEntries(), 1);
  }
}

TEST_F(Files, DiskThatFillsUpHalfWayKeepsTheOldFile) {
  const fs::path file = Put("file", "old");
  int writes = 0;
  const zwt::FileFault fault(
      [&](FileStep now) { return now == FileStep::Write && ++writes == 3 ? ENOSPC : 0; });
  EXPECT_EQ(WriteFailure(file, EveryByte(200000)), "cannot write " + file.string() + ": the disk is full");
  EXPECT_EQ(writes, 3);
  EXPECT_EQ(ReadWholeFile(file), "old");
  EXPECT_EQ(CountEntries(), 1);
}

TEST_F(Files, FaultEndsWithItsScope) {
  {
    const zwt::FileFault fault([](FileStep) { return EIO; });
    EXPECT_THROW(WriteFileAtomically(folder_ / "file", "x"), FileError);
  }
  WriteFileAtomically(folder_ / "file", "x");
  EXPECT_EQ(ReadWholeFile(folder_ / "file"), "x");
}

TEST_F(Files, LimitOfTheSystemKeepsTheOldFile) {
  const fs::path file = Put("file", "old");
  struct rlimit before {};
  getrlimit(RLIMIT_FSIZE, &before);
  auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
  const struct rlimit small = {100000, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  const std::string failure = WriteFailure(file, EveryByte(200000));
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(failure, "cannot write " + file.string() + ": the file is too large");
  EXPECT_EQ(ReadWholeFile(file), "old");
  EXPECT_EQ(CountEntries(), 1);
}

/// What writing fails with for a user who is not the administrator (who may write everything).
std::string WriteFailureOfAUser(const fs::path& path, const std::string& bytes) {
  std::array<int, 2> ends{};
  EXPECT_EQ(pipe(ends.data()), 0);
  const pid_t child = fork();
  if (child == 0) {
    constexpr uid_t kNobody = 65534;
    const bool user = geteuid() != 0 || setuid(kNobody) == 0;
    const std::string failure = user ? WriteFailure(path, bytes) : "cannot change the user";
    const bool told = write(ends[1], failure.data(), failure.size()) == static_cast<ssize_t>(failure.size());
    _exit(told ? 0 : 1);
  }
  close(ends[1]);
  std::string failure(1000, '\0');
  failure.resize(
      static_cast<std::size_t>(std::max<ssize_t>(read(ends[0], failure.data(), failure.size()), 0)));
  close(ends[0]);
  waitpid(child, nullptr, 0);
  return failure;
}

TEST_F(Files, ProtectedFileIsRefusedAlsoWhereItsFolderIsNot) {
  const fs::path file = Put("file", "old");
  fs::permissions(file, static_cast<fs::perms>(0444));
  fs::permissions(folder_, static_cast<fs::perms>(0777));
  EXPECT_EQ(WriteFailureOfAUser(file, "new"), "cannot write " + file.string() + ": permission denied");
  EXPECT_EQ(ReadWholeFile(file), "old");
}

TEST_F(Files, ProtectedFolderIsRefused) {
  fs::permissions(folder_, static_cast<fs::perms>(0555));
  EXPECT_EQ(WriteFailureOfAUser(folder_ / "file", "new"),
            "cannot write " + (folder_ / "file").string() + ": permission denied");
}

TEST_F(Files, FolderIsRefused) {
  EXPECT_EQ(WriteFailure(folder_, "new"), "cannot write " + folder_.string() + ": it is a folder");
  EXPECT_EQ(ReadFailure(folder_), "cannot read " + folder_.string() + ": it is a folder");
}

TEST_F(Files, MissingFolderIsNamed) {
  const fs::path file = folder_ / "no" / "file";
  EXPECT_EQ(WriteFailure(file, "new"), "cannot write " + file.string() + ": no such file or folder");
  EXPECT_EQ(ReadFailure(file), "cannot read " + file.string() + ": no such file or folder");
}

TEST_F(Files, PathThroughAFileIsRefused) {
  const fs::path file = Put("file", "old") / "inner";
  EXPECT_EQ(WriteFailure(file, "new"), "cannot write " + file.string() + ": a part of the path is no folder");
}

TEST_F(Files, FileOfTheLargestSizeIsReadAndOneByteMoreIsRefused) {
  const fs::path file = Put("file", EveryByte(100000));
  EXPECT_EQ(ReadWholeFile(file, 100000).size(), 100000U);
  EXPECT_EQ(ReadFailure(file, 99999), "cannot read " + file.string() + ": the file is too large");
}

TEST_F(Files, EndlessDeviceIsRefused) {
  EXPECT_EQ(ReadFailure("/dev/zero", 1 << 20), "cannot read /dev/zero: the file is too large");
}

TEST_F(Files, LeftOverOfAnEarlierRunIsInNobodysWay) {
  Put(".zwt-" + std::to_string(getpid()) + "-0.tmp", "left over");
  WriteFileAtomically(folder_ / "file", "new");
  EXPECT_EQ(ReadWholeFile(folder_ / "file"), "new");
  EXPECT_EQ(CountEntries(), 2);
}

}  // namespace
