// Changes of many pipes at once.
#include "desktop/pipe_edits.h"

#include <gtest/gtest.h>

#include "desktop/document.h"

namespace zwt::test {
namespace {

class PipeEditsTest : public testing::Test {
 protected:
  Drawing& Contents() { return document.Contents(); }
  std::int32_t Add(AcGePoint3d start, AcGePoint3d end, const FieldList& fields = {}) {
    return Contents().IndexOf(Contents().AddPipe(start, end, fields));
  }
  CString Field(std::int32_t pipe, const wchar_t* key) {
    CString text;
    Contents().GetField(pipe, key, text);
    return text;
  }

  Document document;
};

TEST_F(PipeEditsTest, CommonFieldIsThatOfAllPipesOrNone) {
  const std::int32_t a = Add({0, 0, 0}, {0, 1000, 0}, {{L"Material", L"铜管"}, {L"Kh", L"2"}});
  const std::int32_t b = Add({0, 1000, 0}, {0, 2000, 0}, {{L"Material", L"铜管"}, {L"Kh", L"3"}});
  const std::int32_t line = Contents().IndexOf(Contents().AddLine({5, 0, 0}, {5, 9, 0}));
  const std::vector<std::int32_t> all = {a, b, line};
  EXPECT_EQ(CommonField(all, L"Material"), L"铜管");
  EXPECT_EQ(CommonField(all, L"Kh"), std::nullopt);
  EXPECT_EQ(CommonField(all, L"Time"), L"");
  EXPECT_EQ(PipesAmong(all), (std::vector<std::int32_t>{a, b}));
  EXPECT_EQ(LinesAmong(all), std::vector<std::int32_t>{line});
}

TEST_F(PipeEditsTest, StoreyIsCopiedUpwardSoManyTimesInOneStep) {
  const std::int32_t entry =
      Add({0, 0, 0}, {0, 2900, 0}, {{L"ELS_TYPE", L"入口立管"}, {L"Material", L"铜管"}, {L"OTHER", L"kept"}});
  const std::int32_t branch = Add({0, 1000, 0}, {2500, 1000, 0}, {{L"ELS_TYPE", L"支管"}});
  const CopyCount count = CopyStoreyUpward(std::vector<std::int32_t>{entry, branch}, 2900, 3);
  EXPECT_EQ(count.copied, 6);
  EXPECT_EQ(count.leftOut, 0);
  ASSERT_EQ(Contents().EntityCount(), 8);
  const PipeRecord& top = Contents().PipeOf(4);
  EXPECT_EQ(top.start, (AcGePoint3d{0, 8700, 0}));
  EXPECT_EQ(top.end, (AcGePoint3d{0, 11600, 0}));
  EXPECT_EQ(Field(4, L"ELS_TYPE"), L"立管");
  EXPECT_EQ(Field(4, L"OTHER"), L"kept");
  EXPECT_EQ(Field(entry, L"ELS_TYPE"), L"入口立管");
  EXPECT_EQ(Field(7, L"ELS_TYPE"), L"支管");
  Contents().Undo();
  EXPECT_EQ(Contents().Pipes().size(), 2U);
}

TEST_F(PipeEditsTest, InSpaceUpwardIsAlongZ) {
  const std::int32_t riser = Add({10, 20, 0}, {10, 20, 3000}, {{L"ELS_TYPE", L"立管"}});
  CopyStoreyUpward(std::vector<std::int32_t>{riser}, 3000, 1);
  EXPECT_EQ(Contents().PipeOf(1).start, (AcGePoint3d{10, 20, 3000}));
  EXPECT_EQ(Contents().PipeOf(1).end, (AcGePoint3d{10, 20, 6000}));
}

TEST_F(PipeEditsTest, GapsAreClosedOntoEndsAndOntoTheMiddleOfPipes) {
  Add({0, 0, 0}, {0, 2900, 0}, {{L"WtSystem", L"给水"}, {L"ELS_TYPE", L"立管"}});
  Add({0, 2905, 0}, {0, 5800, 0}, {{L"WtSystem", L"给水"}, {L"ELS_TYPE", L"立管"}});
  Add({8, 1000, 0}, {2500, 1000, 0}, {{L"WtSystem", L"给水"}, {L"ELS_TYPE", L"支管"}});
  const std::vector<Finding> findings = CheckDrawing(Contents());
  ASSERT_EQ(std::count_if(findings.begin(), findings.end(), [](const Finding& f) { return f.kind == "gap"; }),
            2);
  EXPECT_EQ(CloseGaps(findings), 2);
  for (const Finding& left : CheckDrawing(Contents())) EXPECT_NE(left.kind, "gap");
  EXPECT_EQ(Contents().PipeOf(2).start, (AcGePoint3d{0, 1000, 0}));
  Contents().Undo();
  EXPECT_EQ(Contents().PipeOf(2).start, (AcGePoint3d{8, 1000, 0}));
}

TEST_F(PipeEditsTest, ErasingIsOneStep) {
  const std::int32_t a = Add({0, 0, 0}, {0, 1000, 0});
  const std::int32_t b = Add({0, 1000, 0}, {0, 2000, 0});
  EraseAll(std::vector<std::int32_t>{a, b});
  EXPECT_TRUE(Contents().Pipes().empty());
  Contents().Undo();
  EXPECT_EQ(Contents().Pipes().size(), 2U);
}

}  // namespace
}  // namespace zwt::test
