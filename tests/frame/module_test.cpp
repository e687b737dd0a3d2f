// The module as its host sees it: loaded by its entry, run by its commands, unloaded without a trace.
#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include <dlfcn.h>
#include <gtest/gtest.h>

#include "host/dialog/dialog.h"
#include "host/runtime/command_stack.h"
#include "host/runtime/language_switch.h"
#include "host/runtime/module_entry.h"
#include "host/runtime/module_runtime.h"
#include "support/panel_fixture.h"
#include "support/recorded_command_line.h"

namespace {

struct ExpectedCommand {
  const wchar_t* name;
  const wchar_t* panelClass;
  int resource;
  const wchar_t* title;
  bool asksForPipes;
};

constexpr ExpectedCommand kExpected[] = {
    {L"ZWTGRGS", L"ZcUiMaxDayDialog", 2000, L"最高日最高时计算", false},
    {L"ZWTJDGS", L"ZcUiComputeGSDialog", 2005, L"给水计算", false},
    {L"ZWTGSCS", L"ZcUiComputeGSParamEditDialog", 2024, L"给水计算参数", true},
    {L"ZWTGSJS", L"ZcUiElementsGsDialog", 2025, L"给水水力计算", true},
    {L"ZWTPSJS", L"ZcUiElementsPsDialog", 2026, L"排水水力计算", true},
    {L"ZWTXFJS", L"ZcUiHydrantElementDialog", 2028, L"消火栓环状管网水力计算", true},
    {L"ZWTRSJS", L"ZcUiComputeRSDialog", 2007, L"热水计算", false},
    {L"ZWTRFSL", L"ZcUiAerialDefenceDialog", 2012, L"人防用水量计算", false},
    {L"ZWTQYSG", L"ZcUiAirContainerDialog", 2014, L"气压水罐计算", false},
    {L"ZWTSXJS", L"ZcUiTankDialog", 2015, L"水箱容积计算", false},
    {L"ZWTXHS", L"ZcUiHydrantDialoge", 2017, L"消火栓计算", false},
    {L"ZWTMHQ", L"ZcUiFireExtinguisherDialog", 2019, L"灭火器计算", false},
    {L"ZWTZSC", L"ZcUiComputePoolDialog", 2023, L"贮水池容积计算", false},
};

bool IsInMemory() {
  void* library = dlopen(ZWT_MODULE_FILE, RTLD_LAZY | RTLD_NOLOAD);
  if (library != nullptr) dlclose(library);
  return library != nullptr;
}

void ExpectNothingLeft() {
  EXPECT_TRUE(zwt::CommandStack().commands().empty());
  EXPECT_TRUE(zwt::RegisteredPanels().empty());
  EXPECT_TRUE(zwt::LoadedModules().empty());
  EXPECT_TRUE(zwt::LinkedModules().empty());
  EXPECT_EQ(AfxGetResourceHandle(), nullptr);
  EXPECT_EQ(g_pCurModuleLang, nullptr);
  EXPECT_EQ(g_pZaecLangSwitch->Lookup(L"zwtcalmodel"), nullptr);
  EXPECT_FALSE(IsInMemory());
}

TEST(Module, IsTheOneThatLiesBesideTheHost) {
  EXPECT_EQ(zwt::DefaultModuleFile(), std::filesystem::canonical(ZWT_MODULE_FILE));
}

TEST(Module, ThirteenCommandsAreRegisteredInOrder) {
  zwt::ModuleRuntime module;
  module.Load();
  const auto& commands = zwt::CommandStack().commands();
  ASSERT_EQ(commands.size(), std::size(kExpected));
  for (std::size_t i = 0; i < commands.size(); ++i) {
    EXPECT_EQ(commands[i].name, kExpected[i].name);
    EXPECT_EQ(commands[i].group, L"ZwtCalModel");
    EXPECT_EQ(commands[i].flags, 0);
    EXPECT_NE(commands[i].function, nullptr);
  }
}

TEST(Module, LoadingMakesItKnownEverywhere) {
  zwt::ModuleRuntime module;
  module.Load();
  EXPECT_TRUE(module.Handle()->unlocked);
  EXPECT_TRUE(module.Handle()->registered);
  EXPECT_EQ(zwt::LinkedModules(), std::vector<HINSTANCE>{module.Handle()});
  EXPECT_EQ(AfxGetResourceHandle(), nullptr) << "its resources are in force in its commands alone";
}

TEST(Module, UnloadAfterLoadLeavesNoCommand) {
  zwt::ModuleRuntime module;
  module.Load();
  module.Unload();
  ExpectNothingLeft();
}

TEST(Module, LoadingAgainRegistersEverythingOnce) {
  zwt::ModuleRuntime module;
  module.Load();
  const auto panels = zwt::RegisteredPanels().size();
  module.Unload();
  module.Load();
  EXPECT_EQ(zwt::CommandStack().commands().size(), std::size(kExpected));
  EXPECT_EQ(zwt::RegisteredPanels().size(), panels);
  module.Unload();
  ExpectNothingLeft();
}

TEST(Module, OtherMessagesDoNothing) {
  zwt::ModuleRuntime module;
  module.Load();
  const zwt::DynamicLibrary again(ZWT_MODULE_FILE);
  auto* entry = again.FindFunction<zwt::ModuleEntry>(zwt::kModuleEntryName);
  for (const std::int32_t message :
       {AcRx::kLoadDwgMsg + 0, AcRx::kUnloadDwgMsg + 0, AcRx::kInvkSubrMsg + 0, 0, 6, -1}) {
    EXPECT_EQ(entry(message, module.Handle()), 0);
    EXPECT_EQ(zwt::CommandStack().commands().size(), std::size(kExpected));
    EXPECT_EQ(zwt::LinkedModules().size(), 1U);
  }
}

TEST(Module, StrangersLoadMessageLinksNothing) {
  const zwt::DynamicLibrary library(ZWT_MODULE_FILE);
  auto* entry = library.FindFunction<zwt::ModuleEntry>(zwt::kModuleEntryName);
  zwt::LoadedModule stranger;
  EXPECT_EQ(entry(AcRx::kInitAppMsg, &stranger), 0);
  EXPECT_TRUE(zwt::LinkedModules().empty());
  EXPECT_FALSE(stranger.unlocked);
  EXPECT_EQ(zwt::CommandStack().commands().size(), std::size(kExpected));
  EXPECT_EQ(entry(AcRx::kUnloadAppMsg, &stranger), 0);
  EXPECT_TRUE(zwt::CommandStack().commands().empty());
  EXPECT_TRUE(zwt::RegisteredPanels().empty());
}

TEST(Module, EveryStandAloneCommandOpensItsPanelAndPrintsNothing) {
  zwt::ModuleRuntime module;
  module.Load();
  for (const ExpectedCommand& expected : kExpected) {
    if (expected.asksForPipes) continue;
    zwt::test::RecordedCommandLine line;
    zwt::test::PanelRun run;
    zwt::RunCommand(expected.name);
    EXPECT_EQ(line.printed, L"");
    EXPECT_EQ(run.opened, std::vector<CString>{expected.title});
    EXPECT_EQ(run.closed.size(), 1U);
  }
}

TEST(Module, CommandThatAsksForPipesOpensNothingWithoutAnAnswer) {
  zwt::ModuleRuntime module;
  module.Load();
  for (const ExpectedCommand& expected : kExpected) {
    if (!expected.asksForPipes) continue;
    zwt::test::PanelRun run;
    zwt::RunCommand(expected.name);
    EXPECT_TRUE(run.opened.empty());
  }
}

TEST(Module, PanelsOfTheCommandsBearTheirNumbersClassesAndTitles) {
  zwt::ModuleRuntime module;
  module.Load();
  for (const ExpectedCommand& expected : kExpected) {
    const zwt::PanelTemplate* panel = zwt::FindPanelOfCommand(expected.name);
    ASSERT_NE(panel, nullptr) << expected.resource;
    EXPECT_EQ(panel->resource, expected.resource);
    EXPECT_EQ(CString(panel->className), expected.panelClass);
    EXPECT_EQ(CString(panel->title), expected.title);
  }
}

/// The parts of the host that a panel of a command finds in force.
struct InForce {
  HINSTANCE resources = nullptr;
  ZcDtDictionary* language = nullptr;
  std::string unloading;
};

InForce LookFromThePanelOf(const wchar_t* command, zwt::ModuleRuntime& module) {
  InForce found;
  zwt::test::PanelRun run;
  run.User([&](zwt::PanelUser&, CDialog&) {
    found.resources = AfxGetResourceHandle();
    found.language = g_pCurModuleLang;
    try {
      module.Unload();
    } catch (const zwt::ModuleError& error) {
      found.unloading = error.what();
    }
  });
  zwt::RunCommand(command);
  return found;
}

TEST(Module, PanelHasTheModulesResourcesAndLanguageAndKeepsItLoaded) {
  zwt::ModuleRuntime module;
  module.Load();
  const InForce found = LookFromThePanelOf(L"ZWTSXJS", module);
  EXPECT_EQ(found.resources, module.Handle());
  EXPECT_NE(found.language, nullptr);
  EXPECT_EQ(found.language, g_pZaecLangSwitch->Lookup(L"zwtcalmodel"));
  EXPECT_NE(found.unloading.find("a command is running"), std::string::npos);
  EXPECT_TRUE(module.IsLoaded());
  EXPECT_EQ(AfxGetResourceHandle(), nullptr);
  module.Unload();
  ExpectNothingLeft();
}

TEST(Module, UnloadingAfterAPanelLeftByAnExceptionLeavesNothing) {
  zwt::ModuleRuntime module;
  module.Load();
  {
    zwt::test::PanelRun run;
    run.User([](zwt::PanelUser&, CDialog&) { throw std::runtime_error("the user's chair broke"); });
    EXPECT_THROW(zwt::RunCommand(L"ZWTSXJS"), zwt::CommandError);
  }
  EXPECT_EQ(AfxGetResourceHandle(), nullptr);
  module.Unload();
  ExpectNothingLeft();
}

}  // namespace
