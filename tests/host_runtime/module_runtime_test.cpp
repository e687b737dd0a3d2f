// Loading and unloading a module that takes hold of everything and lets go of nothing.
#include "host/runtime/module_runtime.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "host/runtime/command_stack.h"
#include "host/runtime/language_switch.h"
#include "support/recorded_command_line.h"

namespace {

const std::string kFile = ZWT_CARELESS_MODULE;

bool IsInMemory(const std::string& file = kFile) {
  void* library = dlopen(file.c_str(), RTLD_LAZY | RTLD_NOLOAD);
  if (library != nullptr) dlclose(library);
  return library != nullptr;
}

void ExpectNothingLeft() {
  EXPECT_TRUE(zwt::CommandStack().commands().empty());
  EXPECT_TRUE(zwt::LoadedModules().empty());
  EXPECT_TRUE(zwt::LinkedModules().empty());
  EXPECT_EQ(AfxGetResourceHandle(), nullptr);
  EXPECT_EQ(g_pCurModuleLang, nullptr);
  EXPECT_EQ(g_pZaecLangSwitch->Lookup(L"careless"), nullptr);
  EXPECT_FALSE(IsInMemory());
}

class Modules : public testing::Test {
 protected:
  void TearDown() override { unsetenv("ZWT_CARELESS"); }

  static void Misbehave(const char* how) { setenv("ZWT_CARELESS", how, 1); }

  zwt::test::RecordedCommandLine line_;
};

template <typename Call>
std::string Failure(Call call) {
  try {
    call();
  } catch (const zwt::ModuleError& error) {
    return error.what();
  }
  return "nothing was thrown";
}

TEST_F(Modules, LoadedModuleHasGotItsMessageAndTakenHold) {
  zwt::ModuleRuntime module(kFile);
  EXPECT_FALSE(module.IsLoaded());
  module.Load();
  EXPECT_TRUE(module.IsLoaded());
  EXPECT_EQ(line_.printed, L"\nmessage 1");
  EXPECT_EQ(zwt::CommandStack().commands().size(), 2U);
  EXPECT_TRUE(module.Handle()->unlocked);
  EXPECT_TRUE(module.Handle()->registered);
  EXPECT_EQ(AfxGetResourceHandle(), module.Handle());
  zwt::RunCommand(L"GREET");
  EXPECT_EQ(line_.printed, L"\nmessage 1\nhello");
}

TEST_F(Modules, FileNameIsHandedOverWithBackslashes) {
  zwt::ModuleRuntime module(kFile);
  module.Load();
  std::wstring expected(kFile.begin(), kFile.end());
  std::replace(expected.begin(), expected.end(), L'/', L'\\');
  EXPECT_EQ(zwt::FileNameOfModule(module.Handle()), expected);
}

TEST_F(Modules, UnloadingSendsItsMessageAndLeavesNothing) {
  zwt::ModuleRuntime module(kFile);
  module.Load();
  module.Unload();
  EXPECT_FALSE(module.IsLoaded());
  EXPECT_EQ(line_.printed, L"\nmessage 1\nmessage 2\ndictionary destroyed");
  ExpectNothingLeft();
}

TEST_F(Modules, EndOfTheObjectUnloads) {
  {
    zwt::ModuleRuntime module(kFile);
    module.Load();
  }
  EXPECT_EQ(line_.printed, L"\nmessage 1\nmessage 2\ndictionary destroyed");
  ExpectNothingLeft();
}

TEST_F(Modules, LoadingAndUnloadingTwiceDoesItOnce) {
  zwt::ModuleRuntime module(kFile);
  module.Unload();
  module.Load();
  module.Load();
  EXPECT_EQ(zwt::LoadedModules().size(), 1U);
  module.Unload();
  module.Unload();
  EXPECT_EQ(line_.printed, L"\nmessage 1\nmessage 2\ndictionary destroyed");
}

TEST_F(Modules, ModuleCanBeLoadedAgain) {
  zwt::ModuleRuntime module(kFile);
  module.Load();
  module.Unload();
  module.Load();
  EXPECT_EQ(zwt::CommandStack().commands().size(), 2U);
  module.Unload();
  ExpectNothingLeft();
}

TEST_F(Modules, SecondObjectForALoadedFileIsRefused) {
  zwt::ModuleRuntime first(kFile);
  first.Load();
  zwt::ModuleRuntime second(kFile);
  EXPECT_EQ(Failure([&] { second.Load(); }), "cannot load " + kFile + ": it is loaded already");
  EXPECT_EQ(zwt::CommandStack().commands().size(), 2U);
}

TEST_F(Modules, CommandLeftByAnExceptionOfTheModuleLeavesNothingBehind) {
  std::optional<zwt::CommandError> kept;
  {
    zwt::ModuleRuntime module(kFile);
    module.Load();
    try {
      zwt::RunCommand(L"FAIL");
    } catch (const zwt::CommandError& error) {
      kept = error;
    }
    module.Unload();
  }
  ExpectNothingLeft();
  ASSERT_TRUE(kept.has_value());
  EXPECT_STREQ(kept->what(), "FAIL failed: the command's own failure");
}

zwt::ModuleRuntime* runningModule = nullptr;
std::string failureInside;

TEST_F(Modules, UnloadingIsRefusedWhileACommandRuns) {
  zwt::ModuleRuntime module(kFile);
  module.Load();
  runningModule = &module;
  const ZcCmdTable row = {L"UNLOAD", [] { failureInside = Failure([] { runningModule->Unload(); }); }, 0};
  ZcDefineCommand(L"Test", &row, 1, 0);
  zwt::RunCommand(L"UNLOAD");
  zwt::CommandStack().removeGroup(L"Test");
  EXPECT_EQ(failureInside, "cannot unload " + kFile + ": a command is running");
  EXPECT_TRUE(module.IsLoaded());
  EXPECT_EQ(line_.printed, L"\nmessage 1");
  module.Unload();
  ExpectNothingLeft();
}

TEST_F(Modules, UnloadingIsRefusedWhileAPanelIsOpen) {
  zwt::ModuleRuntime module(kFile);
  module.Load();
  {
    const zwt::KeepModulesLoaded outer;
    { const zwt::KeepModulesLoaded inner; }
    EXPECT_EQ(Failure([&] { module.Unload(); }), "cannot unload " + kFile + ": a panel is open");
  }
  EXPECT_EQ(line_.printed, L"\nmessage 1");
  module.Unload();
  ExpectNothingLeft();
}

TEST_F(Modules, CommandsOfOthersStay) {
  zwt::ModuleRuntime module(kFile);
  module.Load();
  const ZcCmdTable row = {L"OTHER", [] {}, 0};
  ZcDefineCommand(L"Test", &row, 1, 0);
  module.Unload();
  EXPECT_NE(zwt::CommandStack().lookupCommand(L"OTHER"), nullptr);
  EXPECT_EQ(zwt::CommandStack().commands().size(), 1U);
  zwt::CommandStack().removeGroup(L"Test");
}

TEST_F(Modules, FailureOnLoadingLeavesNothing) {
  const std::vector<std::pair<const char*, std::string>> cases = {
      {"throw on load", "the module throws: own failure on load"},
      {"throw a number on load", "the module throws an exception without a text"},
      {"refuse to load", "the module answers 5"},
      {"be of another edition", "it was built for edition 2 of the host, this is 1"}};
  for (const auto& [how, reason] : cases) {
    Misbehave(how);
    zwt::ModuleRuntime module(kFile);
    EXPECT_EQ(Failure([&] { module.Load(); }), "cannot load " + kFile + ": " + reason);
    EXPECT_FALSE(module.IsLoaded());
    ExpectNothingLeft();
  }
}

TEST_F(Modules, FailureOnUnloadingIsToldAndLeavesNothing) {
  Misbehave("throw on unload");
  zwt::ModuleRuntime module(kFile);
  module.Load();
  EXPECT_EQ(Failure([&] { module.Unload(); }),
            "unloaded " + kFile + ", which failed: the module throws: own failure on unload");
  EXPECT_FALSE(module.IsLoaded());
  ExpectNothingLeft();
}

TEST_F(Modules, FileThatIsNoModuleIsRefused) {
  zwt::ModuleRuntime missing("/no/such/module.so");
  EXPECT_EQ(Failure([&] { missing.Load(); }).find("cannot load /no/such/module.so: "), 0U);
  const auto host = zwt::DefaultModuleFile().parent_path() / "libzwthost.so";
  zwt::ModuleRuntime notAModule(host);
  EXPECT_EQ(Failure([&] { notAModule.Load(); }).find("the library lacks acrxEntryPoint: "), 0U);
  EXPECT_TRUE(zwt::LoadedModules().empty());
}

TEST_F(Modules, ModuleIsLookedForBesideTheHost) {
  EXPECT_EQ(zwt::DefaultModuleFile(), std::filesystem::canonical(ZWT_BINARY_DIR) / "lib" / "ZwtCalModel.so");
}

/// A locked module stays in memory for the rest of the program: a copy of the file, so that it is in nobody's
/// way.
TEST_F(Modules, LockedModuleStays) {
  const auto copy =
      std::filesystem::path(testing::TempDir()) / ("zwt_locked" + std::to_string(getpid()) + ".so");
  std::filesystem::copy_file(kFile, copy);
  Misbehave("stay locked");
  {
    zwt::ModuleRuntime module(copy);
    module.Load();
    EXPECT_EQ(Failure([&] { module.Unload(); }),
              "cannot unload " + copy.string() + ": it has not allowed it");
    EXPECT_TRUE(module.IsLoaded());
  }
  EXPECT_TRUE(IsInMemory(copy));
  zwt::RunCommand(L"GREET");
  EXPECT_EQ(line_.printed, L"\nmessage 1\nhello");
  zwt::CommandStack().removeGroup(L"Careless");
  g_pZaecLangSwitch->Withdraw();
  zwt::ForgetModule(*zwt::LoadedModules().front());
  std::filesystem::remove(copy);
}

}  // namespace
