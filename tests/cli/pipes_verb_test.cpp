// zwtcal pipes: the table, the JSON, and drawings that cannot be read.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "cli/program_call.h"
#include "host/drawing/drawing.h"
#include "host/dxf/dxf_file.h"
#include "support/child_process.h"

namespace zwt::test {
namespace {

using Json = nlohmann::ordered_json;

/// A drawing in a file, for as long as it lives.
class DrawingFile {
 public:
  explicit DrawingFile(Drawing& drawing) { SaveDrawing(drawing, folder_.Path() / "drawing.dxf"); }
  std::string Path() const { return (folder_.Path() / "drawing.dxf").string(); }

 private:
  TemporaryFolder folder_;
};

/// A riser with one branch, and a pipe of another system far away.
std::string ThreePipes() {
  Drawing drawing;
  drawing.AddPipe(
      {0, 0, 0}, {0, 3000, 0},
      {{L"WtSystem", L"给水"}, {L"ELS_TYPE", L"入口立管"}, {L"Material", L"镀锌钢管"}, {L"Diameter", L"32"}});
  drawing.AddPipe({0, 1500, 0}, {1000, 2000.25, 0},
                  {{L"WtSystem", L"给水"},
                   {L"ELS_TYPE", L"支管"},
                   {L"Material", L"PP-R管(S5)"},
                   {L"Equivalent", L"4"},
                   {L"Note", L"二层 \"东\""}});
  drawing.AddPipe({9000, 0, 0}, {9000.5, 0, 0}, {{L"Kind", L"1"}});
  return DrawingBytes(drawing);
}

class PipesVerb : public testing::Test {
 protected:
  PipesVerb() : drawing_(ParseDrawing(ThreePipes())), file_(*drawing_) {}
  std::unique_ptr<Drawing> drawing_;
  DrawingFile file_;
};

TEST_F(PipesVerb, PrintsAnAlignedTable) {
  EXPECT_EQ(Call({"pipes", file_.Path()}).output,
            "句柄  系统  类型      管材        管径  长度    属性                         连接\n"
            "40    给水  入口立管  镀锌钢管    32    3000                                 42\n"
            "42    给水  支管      PP-R管(S5)        1118.1  Equivalent=4 Note=二层 \"东\"  40\n"
            "43                                      0.5\n");
}

TEST_F(PipesVerb, PrintsJsonForPrograms) {
  const Json pipes = Json::parse(Call({"pipes", file_.Path(), "--json"}).output)["pipes"];
  ASSERT_EQ(pipes.size(), 3U);
  EXPECT_EQ(pipes[0], Json::parse(R"({"handle": "40", "system": "给水", "role": "入口立管",
              "material": "镀锌钢管", "diameter": 32, "kind": 0, "length": 3000,
              "start": [0, 0, 0], "end": [0, 3000, 0], "attributes": {}, "connected": ["42"]})"));
  EXPECT_EQ(pipes[1]["attributes"], Json::parse(R"({"Equivalent": "4", "Note": "二层 \"东\""})"));
  EXPECT_NEAR(pipes[1]["length"].get<double>(), 1118.146, 0.001);
  EXPECT_EQ(pipes[2], Json::parse(R"({"handle": "43", "system": "", "role": "", "material": "",
              "diameter": 0, "kind": 1, "length": 0.5, "start": [9000, 0, 0], "end": [9000.5, 0, 0],
              "attributes": {}, "connected": []})"));
}

TEST_F(PipesVerb, ADrawingWithoutPipesIsATableWithoutRows) {
  Drawing empty;
  const DrawingFile file(empty);
  EXPECT_EQ(Call({"pipes", file.Path()}).output, "句柄  系统  类型  管材  管径  长度  属性  连接\n");
  EXPECT_EQ(Call({"pipes", file.Path(), "--json"}).output, "{\"pipes\": []}\n");
}

TEST_F(PipesVerb, CheckListsTheFindingsAndCountsThemInTheLastLine) {
  EXPECT_EQ(Call({"pipes", file_.Path(), "--check"}).output,
            "43  zero-length  (9000, 0, 0)  管道长度仅 0.5 mm，不成管段\n"
            "1 finding\n");
  drawing_->Erase(drawing_->FindHandle(0x43));
  EXPECT_EQ(Call({"pipes", DrawingFile(*drawing_).Path(), "--check"}).output, "no findings\n");
  drawing_->SetFields(drawing_->FindHandle(0x42), {{L"Material", L"竹管"}, {L"Equivalent", L"0"}});
  EXPECT_EQ(
      Call({"pipes", DrawingFile(*drawing_).Path(), "--check"}).output,
      "40  zero-equivalent   (0, 1500, 0)      自入口起第 1 段立管 40 起当量总数为 0，设计秒流量算不出\n"
      "42  unknown-material  (500, 1750.1, 0)  管道 42 的管材“竹管”不在管材数据文件中\n"
      "2 findings\n");
}

TEST_F(PipesVerb, CheckPrintsJsonForPrograms) {
  const Outcome outcome = Call({"pipes", file_.Path(), "--check", "--json"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(Json::parse(outcome.output),
            Json::parse(R"({"findings": [{"kind": "zero-length", "text": "管道长度仅 0.5 mm，不成管段",
                            "point": [9000, 0, 0], "handles": ["43"]}], "count": 1})"));
}

TEST_F(PipesVerb, NoSchematicToStartFromHasFindings) {
  const TemporaryFolder folder;
  for (const char* kind : {"supply", "drainage", "hydrants"}) {
    const std::string file = (folder.Path() / kind).string() + ".dxf";
    ASSERT_EQ(Call({"new", kind, "--risers", "3", "-o", file}).status, 0);
    EXPECT_EQ(Call({"pipes", file, "--check"}).output, "no findings\n") << kind;
  }
  const std::string examples = ZWT_SOURCE_DIR "/examples/";
  for (const auto& entry : std::filesystem::directory_iterator(examples)) {
    if (entry.path().extension() != ".dxf") continue;
    EXPECT_EQ(Call({"pipes", entry.path().string(), "--check"}).output, "no findings\n") << entry.path();
  }
}

TEST_F(PipesVerb, ADrawingThatCannotBeReadIsOneLine) {
  EXPECT_EQ(Failure({"pipes"}), "DRAWING is required\n");
  EXPECT_THAT(Failure({"pipes", "/no/such.dxf"}), testing::StartsWith("cannot read /no/such.dxf"));
  const TemporaryFolder folder;
  const std::string broken = (folder.Path() / "broken.dxf").string();
  WriteBytes(broken, "0\nSECTION\n2\nENTITIES\n");
  EXPECT_EQ(Failure({"pipes", broken}),
            broken + ": line 5: expected group 0 \"EOF\", found the end of the file\n");
}

}  // namespace
}  // namespace zwt::test
