// Opening documents, with an opener of the test's own in front of the system's.
#include "host/platform/open_document.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "host/platform/files.h"

namespace {

namespace fs = std::filesystem;

/// A folder that alone holds the user's programs while it lives.
class OpenDocuments : public testing::Test {
 protected:
  void SetUp() override {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    folder_ =
        fs::path(testing::TempDir()) / ("zwt_open_" + std::string(test->name()) + std::to_string(getpid()));
    fs::remove_all(folder_);
    fs::create_directories(folder_);
    pathBefore_ = std::getenv("PATH");
    setenv("PATH", folder_.c_str(), 1);
  }
  void TearDown() override {
    setenv("PATH", pathBefore_.c_str(), 1);
    fs::remove_all(folder_);
  }

  fs::path Put(const std::string& name, const std::string& text) const {
    std::ofstream(folder_ / name) << text;
    return folder_ / name;
  }

  fs::path folder_;
  std::string pathBefore_;
};

TEST_F(OpenDocuments, OpenerGetsTheAbsoluteNameAndNothingIsWrittenToUs) {
  const fs::path answers = folder_ / "answers";
  ASSERT_EQ(mkfifo(answers.c_str(), 0600), 0);
  const fs::path opener =
      Put("xdg-open", "#!/bin/sh\necho noise\necho \"$# $1\" > " + answers.string() + "\n");
  fs::permissions(opener, fs::perms::owner_all);
  Put("-计算书 1.docx", "x");
  const fs::path before = fs::current_path();
  fs::current_path(folder_);

  testing::internal::CaptureStdout();
  zwt::OpenDocument("-计算书 1.docx");
  fs::current_path(before);
  std::string answer;
  std::getline(std::ifstream(answers), answer);

  EXPECT_EQ(answer, "1 " + (folder_ / "-计算书 1.docx").string());
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

std::string Failure(const fs::path& document) {
  try {
    zwt::OpenDocument(document);
  } catch (const zwt::FileError& error) {
    return error.what();
  }
  return "nothing was thrown";
}

TEST_F(OpenDocuments, MissingDocumentIsNamed) {
  const fs::path document = folder_ / "no.docx";
  EXPECT_EQ(Failure(document), "cannot open " + document.string() + ": no such file or folder");
}

TEST_F(OpenDocuments, SystemWithoutAnOpenerIsTold) {
  const fs::path document = Put("a.docx", "x");
  EXPECT_EQ(Failure(document),
            "cannot open " + document.string() + ": the system has no program that opens documents");
}

}  // namespace
