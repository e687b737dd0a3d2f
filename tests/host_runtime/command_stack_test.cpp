// Registering commands in groups and running them.
#include "host/runtime/command_stack.h"

#include <string>

#include <gtest/gtest.h>

namespace {

int runs = 0;

void Count() {
  ++runs;
}
void CountTen() {
  runs += 10;
}
void Throw() {
  throw std::length_error("too long");
}
void ThrowNumber() {
  throw 1;
}
void Interrupt() {
  throw zwt::CommandInterruption("/steps/0: no control 1");
}
void RunAnother() {
  zwt::RunCommand(L"COUNT");
}
void LookWhetherOneRuns() {
  runs = zwt::IsCommandRunning() ? 1 : 0;
}

constexpr const wchar_t* kGroup = L"Test";

class Commands : public testing::Test {
 protected:
  void SetUp() override { runs = 0; }
  void TearDown() override {
    zwt::CommandStack().removeGroup(kGroup);
    zwt::CommandStack().removeGroup(L"Other");
  }

  static void Define(const wchar_t* name, void (*function)()) {
    const ZcCmdTable row = {name, function, 0};
    ZcDefineCommand(kGroup, &row, 1, 0);
  }
};

std::vector<CString> Names() {
  std::vector<CString> names;
  for (const AcEdCommand& command : zwt::CommandStack().commands()) names.push_back(command.name);
  return names;
}

std::string Failure(const CString& name) {
  try {
    zwt::RunCommand(name);
  } catch (const zwt::CommandError& error) {
    return error.what();
  }
  return "nothing was thrown";
}

TEST_F(Commands, RowsAreListedInTheOrderOfTheTable) {
  const ZcCmdTable table[] = {{L"C", &Count, 0}, {L"A", &Count, 0}, {L"B", &Count, 0}};
  ZcDefineCommand(kGroup, table, 3, 0);
  EXPECT_EQ(Names(), (std::vector<CString>{L"C", L"A", L"B"}));
}

TEST_F(Commands, CountEndsTheTable) {
  const ZcCmdTable table[] = {{L"A", &Count, 0}, {L"B", &Count, 0}};
  ZcDefineCommand(kGroup, table, 1, 0);
  EXPECT_EQ(Names(), std::vector<CString>{L"A"});
}

TEST_F(Commands, TablesWithoutRowsRegisterNothing) {
  const ZcCmdTable row = {L"A", &Count, 0};
  ZcDefineCommand(kGroup, &row, 0, 0);
  ZcDefineCommand(kGroup, &row, -1, 0);
  ZcDefineCommand(kGroup, nullptr, 1, 0);
  ZcDefineCommand(nullptr, &row, 1, 0);
  const ZcCmdTable holes[] = {{nullptr, &Count, 0}, {L"A", nullptr, 0}};
  ZcDefineCommand(kGroup, holes, 2, 0);
  EXPECT_TRUE(Names().empty());
}

TEST_F(Commands, FlagsOfRowAndCallAreJoined) {
  const ZcCmdTable row = {L"A", &Count, 1};
  ZcDefineCommand(kGroup, &row, 1, 4);
  EXPECT_EQ(zwt::CommandStack().lookupCommand(L"A")->flags, 5);
}

TEST_F(Commands, NamesOutliveTheTable) {
  {
    CString name = L"LOCAL";
    Define(name.c_str(), &Count);
    name = L"other";
  }
  EXPECT_NE(zwt::CommandStack().lookupCommand(L"LOCAL"), nullptr);
}

TEST_F(Commands, NameDefinedAgainKeepsItsPlace) {
  Define(L"A", &Count);
  Define(L"B", &Count);
  Define(L"A", &CountTen);
  EXPECT_EQ(Names(), (std::vector<CString>{L"A", L"B"}));
  zwt::RunCommand(L"A");
  EXPECT_EQ(runs, 10);
}

TEST_F(Commands, RemovingAGroupLeavesTheOthers) {
  Define(L"A", &Count);
  const ZcCmdTable other = {L"B", &Count, 0};
  ZcDefineCommand(L"Other", &other, 1, 0);
  EXPECT_TRUE(zwt::CommandStack().removeGroup(kGroup));
  EXPECT_EQ(Names(), std::vector<CString>{L"B"});
  EXPECT_FALSE(zwt::CommandStack().removeGroup(kGroup));
}

TEST_F(Commands, FirstOfTwoGroupsWithTheSameNameIsRun) {
  Define(L"A", &Count);
  const ZcCmdTable other = {L"A", &CountTen, 0};
  ZcDefineCommand(L"Other", &other, 1, 0);
  zwt::RunCommand(L"A");
  EXPECT_EQ(runs, 1);
}

TEST_F(Commands, UnknownCommandIsRefusedAndNamesCompareExactly) {
  Define(L"COUNT", &Count);
  EXPECT_EQ(Failure(L"count"), "no command count");
  EXPECT_EQ(Failure(L"给水"), "no command 给水");
  EXPECT_EQ(runs, 0);
}

TEST_F(Commands, CommandIsRunning) {
  Define(L"LOOK", &LookWhetherOneRuns);
  EXPECT_FALSE(zwt::IsCommandRunning());
  zwt::RunCommand(L"LOOK");
  EXPECT_EQ(runs, 1);
  EXPECT_FALSE(zwt::IsCommandRunning());
}

TEST_F(Commands, OneCommandAtATime) {
  Define(L"COUNT", &Count);
  Define(L"OUTER", &RunAnother);
  EXPECT_EQ(Failure(L"OUTER"), "OUTER failed: cannot run COUNT: another command is running");
  EXPECT_EQ(runs, 0);
}

TEST_F(Commands, ExceptionsOfACommandBecomeTheHostsOwn) {
  Define(L"THROW", &Throw);
  Define(L"NUMBER", &ThrowNumber);
  EXPECT_EQ(Failure(L"THROW"), "THROW failed: too long");
  EXPECT_EQ(Failure(L"NUMBER"), "NUMBER failed: an exception without a text");
  EXPECT_FALSE(zwt::IsCommandRunning());
}

TEST_F(Commands, InterruptionOfTheFrontEndGoesThrough) {
  Define(L"INTERRUPT", &Interrupt);
  EXPECT_THROW(zwt::RunCommand(L"INTERRUPT"), zwt::CommandInterruption);
  EXPECT_FALSE(zwt::IsCommandRunning());
}

}  // namespace
