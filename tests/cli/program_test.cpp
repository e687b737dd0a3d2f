// The program as its users call it: verbs, arguments, exit status, and where each thing is written.
#include "cli/program.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "cli/program_call.h"
#include "host/runtime/command_stack.h"
#include "host/runtime/loaded_module.h"
#include "support/child_process.h"

namespace zwt {
namespace {

using Json = nlohmann::ordered_json;

using test::Call;
using test::Failure;
using test::Outcome;

TEST(Program, HelpAndVersionAreNoErrors) {
  for (const char* verb : {"", "run", "calc", "commands", "panel", "pipes"}) {
    for (const char* option : {"--help", "--version"}) {
      const std::vector<std::string> arguments =
          *verb == '\0' ? std::vector<std::string>{option} : std::vector<std::string>{verb, option};
      const Outcome outcome = Call(arguments);
      EXPECT_EQ(outcome.status, 0) << verb;
      EXPECT_EQ(outcome.errors, "") << verb;
      EXPECT_NE(outcome.output, "") << verb;
    }
  }
}

TEST(Program, VersionNamesTheEditionOfTheCodes) {
  EXPECT_NE(Call({"--version"}).output.find("GB 50015-2003 (2009)"), std::string::npos);
}

TEST(Program, WrongArgumentsGiveOneLineAndStatusTwo) {
  EXPECT_EQ(Failure({"play"}), "no verb \"play\"; zwtcal --help lists them\n");
  EXPECT_EQ(Failure({}), "A subcommand is required\n");
  EXPECT_EQ(Failure({"run"}), "SCRIPT is required\n");
  EXPECT_EQ(Failure({"run", "-", "--reports", "x"}).find('\n'),
            Failure({"run", "-", "--reports", "x"}).size() - 1);
}

TEST(Program, ThirteenCommandsAreListedInTheirOrder) {
  const Json list = Json::parse(Call({"commands", "--json"}).output);
  ASSERT_EQ(list.size(), 13U);
  EXPECT_EQ(list[0], Json::parse(R"({"command": "ZWTGRGS", "title": "最高日最高时计算"})"));
  EXPECT_EQ(list[12], Json::parse(R"({"command": "ZWTZSC", "title": "贮水池容积计算"})"));
  EXPECT_EQ(Call({"commands"}).output.substr(0, 34), "ZWTGRGS  最高日最高时计算\n");
}

TEST(Program, APanelIsListedWithDefaultsAndItems) {
  const Json panel = Json::parse(Call({"panel", "ZWTGRGS", "--json"}).output);
  EXPECT_EQ(panel["panel"], 2000);
  EXPECT_EQ(panel["title"], "最高日最高时计算");
  bool found = false;
  for (const Json& control : panel["controls"]) {
    if (control["number"] != 2004) continue;
    found = true;
    EXPECT_EQ(control, Json::parse(R"j({"number": 2004, "name": "unforeseenPercent",
                "label": "未预见水量百分比(%)：", "kind": "edit", "default": "10", "items": []})j"));
  }
  EXPECT_TRUE(found);
}

TEST(Program, APanelThatACommandDoesNotOpenIsListedByItsNumber) {
  const Json panel = Json::parse(Call({"panel", "2002", "--json"}).output);
  EXPECT_EQ(panel["title"], "估算入户管管径");
  EXPECT_EQ(Failure({"panel", "1999"}), "COMMAND: no panel belongs to \"1999\"\n");
}

constexpr const char* kScript =
    R"({"steps": [{"command": "ZWTGRGS", "panel": [{"set": {"quota": "200", "users": "100"}}, {"click": 1},
        {"read": ["maxDayText"]}]}]})";

TEST(RunVerb, AScriptFromStandardInputIsPlayed) {
  const Outcome outcome = Call({"run", "-"}, kScript);
  EXPECT_EQ(outcome.status, 0) << outcome.errors;
  const Json events = Json::parse(outcome.output)["events"];
  ASSERT_EQ(events.size(), 4U);
  EXPECT_EQ(events[0], Json::parse(R"({"event": "command", "name": "ZWTGRGS"})"));
  EXPECT_EQ(events[1]["class"], "ZcUiMaxDayDialog");
  EXPECT_EQ(events[2]["values"]["2005"]["text"], "22.000");
  EXPECT_EQ(events[3], Json::parse(R"({"event": "close", "panel": 2000, "code": 2})"));
}

TEST(RunVerb, ErrorsNameThePlaceInTheScript) {
  EXPECT_EQ(Failure({"run", "-"}, "{"), "script: not JSON (line 1, column 2)\n");
  EXPECT_EQ(Failure({"run", "-"}, R"({"steps": [{"command": "ZWTGRGS"}, {"command": "zwtgrgs"}]})"),
            "/steps/1/command: no command \"zwtgrgs\"\n");
  EXPECT_EQ(Failure({"run", "-"},
                    R"({"steps": [{"command": "ZWTGRGS", "panel": [{"read": "all"}, {"click": 2999}]}]})"),
            "/steps/0/panel/1: no control 2999 in panel 2000\n");
}

TEST(RunVerb, AMissingScriptOrFolderIsNamed) {
  const test::TemporaryFolder folder;
  const std::string missing = (folder.Path() / "missing").string();
  EXPECT_EQ(Failure({"run", missing}).find("script: cannot read"), 0U);
  EXPECT_EQ(Failure({"run", folder.Path().string()}).find("script: cannot read"), 0U);
  EXPECT_EQ(Failure({"run", "-", "--main-dir", missing}, kScript), "--main-dir: no folder " + missing + "\n");
  EXPECT_EQ(Failure({"run", "-", "--report-dir", missing}, kScript),
            "--report-dir: no folder " + missing + "\n");
  EXPECT_EQ(Failure({"run", "-"}, R"({"steps": [], "main-dir": ")" + missing + "\"}"),
            "/main-dir: no folder " + missing + "\n");
  EXPECT_EQ(Failure({"run", "-", "--drawing", missing}, kScript).find("--drawing: "), 0U);
}

TEST(RunVerb, PathsOfAScriptCountFromItsFolder) {
  const test::TemporaryFolder folder;
  const std::string script = (folder.Path() / "s.json").string();
  test::WriteBytes(script, R"({"steps": [], "save": "out.dxf"})");
  EXPECT_EQ(Call({"run", script}).status, 0);
  EXPECT_TRUE(std::filesystem::exists(folder.Path() / "out.dxf"));
}

TEST(RunVerb, AnOptionCountsBeforeTheKey) {
  const test::TemporaryFolder folder;
  const std::string script = (folder.Path() / "s.json").string();
  test::WriteBytes(script, R"({"steps": [], "save": "key.dxf", "drawing": "missing.dxf"})");
  const std::string drawing = (folder.Path() / "in.dxf").string();
  ASSERT_EQ(Call({"run", "-", "--save", drawing}, R"({"steps": []})").status, 0);
  const std::string saved = (folder.Path() / "option.dxf").string();
  EXPECT_EQ(Call({"run", script, "--save", saved, "--drawing", drawing}).errors, "");
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / "key.dxf"));
  EXPECT_EQ(test::ReadBytes(saved), test::ReadBytes(drawing));
}

TEST(RunVerb, AFailedRunSavesNothing) {
  const test::TemporaryFolder folder;
  const std::string saved = (folder.Path() / "out.dxf").string();
  test::WriteBytes(saved, "before");
  Failure({"run", "-", "--save", saved},
          R"({"steps": [{"command": "ZWTGRGS", "panel": [{"close": true}, {"close": true}]}]})");
  EXPECT_EQ(test::ReadBytes(saved), "before");
  EXPECT_EQ(Failure({"run", "-", "--save", (folder.Path() / "no" / "out.dxf").string()}, kScript)
                .find("--save: cannot write"),
            0U);
}

TEST(RunVerb, AMainDirectoryWithoutDataLeavesThePanelUsable) {
  const test::TemporaryFolder folder;
  const std::string directory = folder.Path().string() + "/";
  const Outcome outcome = Call({"run", "-", "--main-dir", directory}, kScript);
  EXPECT_EQ(outcome.status, 0) << outcome.errors;
  EXPECT_EQ(outcome.output, Call({"run", "-"}, kScript).output);
}

TEST(RunVerb, EveryReportIsAnEventAndANewFile) {
  const test::TemporaryFolder folder;
  const std::string script = R"({"drawing": ")" ZWT_SOURCE_DIR R"(/examples/office.dxf", "steps": [
      {"command": "ZWTGSJS", "select": "all", "panel": [{"click": "计    算"}, {"click": "计 算 书"},
       {"click": "计 算 书"}]}]})";
  const std::string reports = folder.Path().string();
  const Outcome outcome = Call({"run", "-", "--report-dir", reports}, script);
  EXPECT_EQ(outcome.errors, "");
  const Json result = Json::parse(outcome.output);
  std::vector<std::string> files;
  for (const Json& event : result["events"]) {
    if (event["event"] != "report") continue;
    EXPECT_EQ(event["template"], "Template\\ZWT-GSJS-ZZ.doc");
    files.push_back(event["file"]);
  }
  EXPECT_EQ(files,
            (std::vector<std::string>{reports + "/ZWT-GSJS-ZZ.docx", reports + "/ZWT-GSJS-ZZ-2.docx"}));
  for (const std::string& file : files) EXPECT_EQ(test::ReadBytes(file).substr(0, 2), "PK");
}

TEST(RunVerb, NothingOfARunIsLeftBehind) {
  Call({"run", "-"}, kScript);
  Failure({"run", "-"}, R"({"steps": [{"command": "ZWTGRGS", "panel": [{"click": 2998}]}]})");
  EXPECT_TRUE(CommandStack().commands().empty());
  EXPECT_TRUE(LoadedModules().empty());
  EXPECT_FALSE(IsCommandRunning());
}

}  // namespace
}  // namespace zwt
