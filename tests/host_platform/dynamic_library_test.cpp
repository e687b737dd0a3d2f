// Loading a library while the program runs.
#include "host/platform/dynamic_library.h"

#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

using zwt::DynamicLibrary;
using zwt::LibraryError;

TEST(DynamicLibraries, FunctionsAreFoundByName) {
  const DynamicLibrary library(ZWT_COUNTING_LIBRARY);
  auto* count = library.FindFunction<int()>("CountCalls");
  EXPECT_EQ(count(), 1);
  EXPECT_EQ(count(), 2);
}

TEST(DynamicLibraries, UnloadingForgetsItsState) {
  for (int i = 0; i < 2; ++i) {
    const DynamicLibrary library(ZWT_COUNTING_LIBRARY);
    EXPECT_EQ(library.FindFunction<int()>("CountCalls")(), 1);
  }
}

TEST(DynamicLibraries, MissingFunctionIsNamed) {
  const DynamicLibrary library(ZWT_COUNTING_LIBRARY);
  try {
    library.FindFunction<int()>("NoSuchFunction");
    FAIL() << "nothing was thrown";
  } catch (const LibraryError& error) {
    EXPECT_NE(std::string(error.what()).find("the library lacks NoSuchFunction"), std::string::npos);
  }
}

TEST(DynamicLibraries, MissingFileIsNamed) {
  try {
    const DynamicLibrary library("/no/such/library.so");
    FAIL() << "nothing was thrown";
  } catch (const LibraryError& error) {
    EXPECT_EQ(std::string(error.what()).find("cannot load /no/such/library.so: "), 0U) << error.what();
  }
}

TEST(DynamicLibraries, FileThatIsNoLibraryIsRefused) {
  const auto file =
      std::filesystem::path(testing::TempDir()) / ("zwt_no_library" + std::to_string(getpid()) + ".so");
  std::ofstream(file) << "text";
  EXPECT_THROW(DynamicLibrary{file}, LibraryError);
  std::filesystem::remove(file);
}

TEST(DynamicLibraries, ModuleNameHasNothingBeforeIt) {
  EXPECT_EQ(zwt::ModuleFileName("ZwtCalModel"), "ZwtCalModel.so");
}

}  // namespace
