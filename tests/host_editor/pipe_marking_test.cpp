// Lines that become pipes, many at once, and what is proposed for them.
#include "host/editor/pipe_marking.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/drawing/connections.h"
#include "host/dxf/dxf_file.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Listener : public DrawingObserver {
 public:
  explicit Listener(Drawing& drawing) : drawing_(drawing) { drawing_.AddObserver(this); }
  ~Listener() override { drawing_.RemoveObserver(this); }
  void OnChange(const DrawingChange&) override { ++changes; }
  void OnRefusal(const CString& message) override { refusal = message; }

  int changes = 0;
  CString refusal;

 private:
  Drawing& drawing_;
};

class PipeMarkingTest : public testing::Test {
 protected:
  std::int32_t Line(const AcGePoint3d& start, const AcGePoint3d& end, const CString& layer = L"0") {
    return drawing.IndexOf(drawing.AddLine(start, end, drawing.InitLayer(layer)));
  }
  CString Text(std::int32_t pipe, const wchar_t* key) const {
    CString text;
    drawing.GetField(pipe, key, text);
    return text;
  }
  std::vector<std::string> Roles(const std::vector<std::int32_t>& pipes) const {
    std::vector<std::string> roles;
    for (const CString& role : ProposeRoles(drawing, pipes)) roles.push_back(Utf8FromWide(role));
    return roles;
  }

  Drawing drawing;
};

constexpr const char* kFile =
    "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n70\n2\n0\nLAYER\n2\nJS\n70\n0\n62\n3\n6\nCONTINUOUS\n"
    "0\nLAYER\n2\nWS\n70\n0\n62\n-4\n6\nCONTINUOUS\n0\nENDTAB\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n"
    "0\nLINE\n5\nA1\n8\nJS\n10\n0\n20\n0\n11\n9\n21\n0\n"
    "0\nLINE\n5\nA2\n8\nJS\n62\n1\n10\n0\n20\n0\n11\n9\n21\n0\n"
    "0\nCIRCLE\n5\nA3\n8\nJS\n10\n0\n20\n0\n40\n9\n"
    "0\nPOLYLINE\n5\nA4\n8\nWS\n66\n1\n0\nVERTEX\n8\nWS\n10\n0\n20\n0\n0\nVERTEX\n8\nWS\n10\n9\n20\n0\n0\nSEQ"
    "END\n"
    "0\nLINE\n5\nA5\n8\nJS\n67\n1\n10\n0\n20\n0\n11\n9\n21\n0\n"
    "0\nLINE\n5\nA6\n8\nWS\n62\n256\n10\n0\n20\n0\n11\n9\n21\n0\n"
    "0\nENDSEC\n0\nEOF\n";

TEST(PipeChoice, LinesAreFoundByLayerColourAndHandle) {
  const auto drawing = ParseDrawing(kFile);
  EXPECT_THAT(FindLines(*drawing, {}), ElementsAre(0, 1, 3, 5));
  EXPECT_THAT(FindLines(*drawing, {.layers = {0}}), ElementsAre(0, 1));
  EXPECT_THAT(FindLines(*drawing, {.colors = {1}}), ElementsAre(1));
  EXPECT_THAT(FindLines(*drawing, {.colors = {3}}), ElementsAre(0));
  EXPECT_THAT(FindLines(*drawing, {.colors = {4}}), ElementsAre(3, 5));
  EXPECT_THAT(FindLines(*drawing, {.handles = {0xA6, 0xA1, 0xA3, 0xA5}}), ElementsAre(0, 5));
  EXPECT_THAT(FindLines(*drawing, {.layers = {0}, .colors = {3, 4}}), ElementsAre(0));
  EXPECT_THAT(FindLines(*drawing, {.layers = {1}, .colors = {3}}), IsEmpty());
}

TEST_F(PipeMarkingTest, ManyLinesBecomePipesInOneStep) {
  const std::int32_t first = Line({0, 0, 0}, {0, 3000, 0});
  const std::int32_t second = Line({0, 3000, 0}, {0, 6000, 0});
  const std::int32_t other = Line({9000, 0, 0}, {9000, 6000, 0});
  drawing.MarkSaved();
  ASSERT_EQ(MarkPipes(drawing, std::vector{first, second},
                      {.fields = {{L"WtSystem", L"给水"}, {L"Material", L"铜管"}}}),
            Acad::eOk);
  EXPECT_THAT(drawing.Pipes(), ElementsAre(first, second));
  EXPECT_EQ(Text(second, L"Material"), L"铜管");
  EXPECT_THAT(drawing.GetConnections().ConnectedTo(first), ElementsAre(second));
  EXPECT_LT(drawing.Entity(other).pipe, 0);
  drawing.Undo();
  EXPECT_THAT(drawing.Pipes(), IsEmpty());
  EXPECT_FALSE(drawing.IsModified());
  drawing.Redo();
  EXPECT_EQ(Text(first, L"WtSystem"), L"给水");
}

TEST_F(PipeMarkingTest, APipeStaysOneAndTakesTheNewTexts) {
  const std::int32_t pipe =
      drawing.IndexOf(drawing.AddPipe({0, 0, 0}, {0, 900, 0}, {{L"Material", L"铜管"}, {L"Note", L"x"}}));
  ASSERT_EQ(MarkPipes(drawing, std::vector{pipe}, {.fields = {{L"Material", L"钢管"}}}), Acad::eOk);
  EXPECT_EQ(Text(pipe, L"Material"), L"钢管");
  EXPECT_EQ(Text(pipe, L"Note"), L"x");
}

TEST_F(PipeMarkingTest, WithoutAnyFieldALineIsAnOrdinaryPipe) {
  const std::int32_t line = Line({0, 0, 0}, {0, 900, 0});
  ASSERT_EQ(MarkPipes(drawing, std::vector{line}, {}), Acad::eOk);
  EXPECT_EQ(drawing.Fields(line), (FieldList{{L"Kind", L"0"}}));
}

TEST_F(PipeMarkingTest, WhereOneRefusesNothingIsChanged) {
  const std::int32_t line = Line({0, 0, 0}, {0, 900, 0});
  FieldList full;
  for (int i = 0; i < 30; ++i) full.emplace_back(L"Note" + std::to_wstring(i), CString(250, L'x'));
  for (int i = 30; i < 64; ++i) full.emplace_back(L"Note" + std::to_wstring(i), CString(235, L'x'));
  const std::int32_t fullPipe = drawing.IndexOf(drawing.AddPipe({0, 0, 0}, {900, 0, 0}, full));
  ASSERT_GE(fullPipe, 0);
  const std::string before = DrawingBytes(drawing);
  Listener listener(drawing);
  FieldList more;
  for (int i = 0; i < 5; ++i) more.emplace_back(L"More" + std::to_wstring(i), CString(250, L'x'));
  EXPECT_EQ(MarkPipes(drawing, std::vector{line, fullPipe}, {.fields = more}), Acad::eExtendedDataTooLarge);
  EXPECT_EQ(listener.refusal, L"管道属性总量超过 16 KB，未写入。");
  EXPECT_EQ(MarkPipes(drawing, std::vector{line}, {.fields = {{L"Note", CString(256, L'x')}}}),
            Acad::eExtendedDataTooLarge);
  EXPECT_EQ(listener.refusal, L"属性 Note 的文字超过 255 字节，未写入。");
  EXPECT_EQ(MarkPipes(drawing, std::vector{line}, {.fields = {{L"", L"x"}}}), Acad::eInvalidInput);
  EXPECT_EQ(listener.changes, 0);
  EXPECT_EQ(DrawingBytes(drawing), before);
}

TEST(PipeMarkingOfFiles, ALineWithAnOddHandleOrCoordinateIsRefused) {
  const std::string head = "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n";
  const std::string tail = "0\nENDSEC\n0\nEOF\n";
  for (const std::string line :
       {"5\nXYZ\n10\n0\n20\n0\n11\n9\n21\n0\n", "5\nA\n10\nodd\n20\n0\n11\n9\n21\n0\n"}) {
    const auto drawing = ParseDrawing(head + line + tail);
    EXPECT_EQ(MarkPipes(*drawing, std::vector{0}, {}), Acad::eInvalidInput);
    EXPECT_EQ(DrawingBytes(*drawing), head + line + tail);
  }
}

TEST(ProposedSystem, FollowsFromWhatTheLayerIsCalled) {
  EXPECT_EQ(ProposeSystem(L"W-生活给水-低区"), L"给水");
  EXPECT_EQ(ProposeSystem(L"热水给水管"), L"热水");
  EXPECT_EQ(ProposeSystem(L"消防给水"), L"消防");
  EXPECT_EQ(ProposeSystem(L"PIPE-消火栓"), L"消防");
  EXPECT_EQ(ProposeSystem(L"污水立管"), L"污水");
  EXPECT_EQ(ProposeSystem(L"废水"), L"废水");
  EXPECT_EQ(ProposeSystem(L"DIM"), L"");
}

TEST_F(PipeMarkingTest, TheSystemIsProposedByLayer) {
  const std::int32_t cold = Line({0, 0, 0}, {0, 900, 0}, L"给水管");
  const std::int32_t unknown = Line({500, 0, 0}, {500, 900, 0}, L"PIPE");
  ASSERT_EQ(MarkPipes(drawing, std::vector{cold, unknown},
                      {.fields = {{L"WtSystem", L"废水"}}, .proposeSystem = true}),
            Acad::eOk);
  EXPECT_EQ(Text(cold, L"WtSystem"), L"给水");
  EXPECT_EQ(Text(unknown, L"WtSystem"), L"废水");
}

TEST_F(PipeMarkingTest, RolesFollowFromHowPipesAreDrawn) {
  const std::vector<std::int32_t> lines = {
      Line({0, 3000, 0}, {0, 6000, 0}),     // upper section
      Line({0, 3000, 0}, {20, 0, 0}),       // lower section, drawn downwards and a little askew
      Line({10, 1500, 0}, {900, 1500, 0}),  // stubs
      Line({0, 4500, 0}, {600, 4800, 0}),     Line({0, 6000, 0}, {4000, 6000, 0}),  // main to the next riser
      Line({4000, 6000, 0}, {4000, 3100, 0}), Line({9000, 0, 0}, {9900, 0, 0})};    // on its own
  ASSERT_EQ(MarkPipes(drawing, lines, {.proposeRole = true}), Acad::eOk);
  EXPECT_THAT(Roles(lines), ElementsAre("立管", "入口立管", "支管", "支管", "", "立管", ""));
  EXPECT_EQ(Text(lines[1], L"ELS_TYPE"), L"入口立管");
  EXPECT_EQ(Text(lines[4], L"ELS_TYPE"), L"");
  drawing.Undo();
  EXPECT_THAT(drawing.Pipes(), IsEmpty());
}

TEST_F(PipeMarkingTest, EveryRiserOfItsOwnHasAnEntry) {
  const std::vector<std::int32_t> lines = {Line({0, 0, 0}, {0, 3000, 0}),
                                           Line({4000, -500, 0}, {4000, 3000, 0})};
  ASSERT_EQ(MarkPipes(drawing, lines, {}), Acad::eOk);
  EXPECT_THAT(Roles(lines), ElementsAre("入口立管", "入口立管"));
}

TEST_F(PipeMarkingTest, InSpaceUprightIsAlongZ) {
  const std::vector<std::int32_t> lines = {Line({0, 0, 3000}, {0, 0, 0}), Line({0, 0, 3000}, {0, 0, 6000}),
                                           Line({0, 0, 1500}, {0, 900, 1500})};
  ASSERT_EQ(MarkPipes(drawing, lines, {}), Acad::eOk);
  EXPECT_THAT(Roles(lines), ElementsAre("入口立管", "立管", "支管"));
}

TEST_F(PipeMarkingTest, FireRisersHaveNoEntry) {
  const std::vector<std::int32_t> lines = {Line({0, 0, 0}, {0, 3000, 0}), Line({0, 1500, 0}, {600, 1500, 0})};
  ASSERT_EQ(MarkPipes(drawing, lines, {.fields = {{L"WtSystem", L"消防"}}, .proposeRole = true}), Acad::eOk);
  EXPECT_EQ(Text(lines[0], L"ELS_TYPE"), L"立管");
  EXPECT_EQ(Text(lines[1], L"ELS_TYPE"), L"支管");
}

TEST_F(PipeMarkingTest, ARoleThatSaysNothingLeavesTheOldOne) {
  const std::int32_t main =
      drawing.IndexOf(drawing.AddPipe({0, 0, 0}, {9000, 0, 0}, {{L"ELS_TYPE", L"干管"}}));
  ASSERT_EQ(MarkPipes(drawing, std::vector{main}, {.proposeRole = true}), Acad::eOk);
  EXPECT_EQ(Text(main, L"ELS_TYPE"), L"干管");
}

}  // namespace
}  // namespace zwt::test
