// zwtcal mark: what becomes a pipe, and what is refused.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli/program_call.h"
#include "host/drawing/drawing.h"
#include "host/dxf/dxf_file.h"
#include "support/child_process.h"

namespace zwt::test {
namespace {

/// A riser of two lines with a short branch on layer 给水管, a line on layer DIM and a text.
class MarkVerb : public testing::Test {
 protected:
  MarkVerb() {
    Drawing drawing;
    const AcDbObjectId layer = drawing.InitLayer(L"给水管");
    drawing.AddLine({0, 0, 0}, {0, 3000, 0}, layer);
    drawing.AddLine({0, 3000, 0}, {0, 6000, 0}, layer);
    drawing.AddLine({0, 1500, 0}, {900, 1500, 0}, layer);
    drawing.AddLine({0, 0, 0}, {900, 0, 0}, drawing.InitLayer(L"DIM"));
    TextValues label;
    label.content = L"JL-1";
    drawing.AddText(label);
    SaveDrawing(drawing, in_);
  }
  std::vector<std::string> Arguments(std::vector<std::string> more) const {
    std::vector<std::string> arguments = {"mark", in_, "-o", out_};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return arguments;
  }
  CString Text(std::uint64_t handle, const wchar_t* key) const {
    const auto drawing = ReadDrawing(out_);
    CString text;
    drawing->GetField(drawing->FindHandle(handle), key, text);
    return text;
  }

  TemporaryFolder folder_;
  std::string in_ = (folder_.Path() / "in.dxf").string();
  std::string out_ = (folder_.Path() / "out.dxf").string();
};

TEST_F(MarkVerb, LinesOfALayerBecomePipes) {
  const Outcome outcome = Call(Arguments({"--layer", "给水管", "--system", "给水", "--role", "立管",
                                          "--material", "铜管", "--set", "Note=a", "--set", "Note=a=b"}));
  EXPECT_EQ(outcome.errors, "");
  EXPECT_EQ(outcome.output, out_ + ": 3 pipes marked, 0 of them were pipes before\n");
  EXPECT_EQ(ReadDrawing(out_)->Pipes().size(), 3U);
  EXPECT_EQ(Text(0x41, L"WtSystem"), L"给水");
  EXPECT_EQ(Text(0x42, L"ELS_TYPE"), L"立管");
  EXPECT_EQ(Text(0x43, L"Material"), L"铜管");
  EXPECT_EQ(Text(0x43, L"Note"), L"a=b");
}

TEST_F(MarkVerb, SystemAndRoleCanBeProposed) {
  ASSERT_EQ(Call(Arguments({"--layer", "给水管", "--system", "auto", "--role", "auto"})).status, 0);
  EXPECT_EQ(Text(0x41, L"ELS_TYPE"), L"入口立管");
  EXPECT_EQ(Text(0x42, L"ELS_TYPE"), L"立管");
  EXPECT_EQ(Text(0x43, L"ELS_TYPE"), L"支管");
  EXPECT_EQ(Text(0x43, L"WtSystem"), L"给水");
}

TEST_F(MarkVerb, HandlesAndColoursChooseAsWell) {
  ASSERT_EQ(Call(Arguments({"--handle", "41,0043", "--handle", "45", "--material", "铜管"})).status, 0);
  EXPECT_EQ(ReadDrawing(out_)->Pipes().size(), 3U);
  EXPECT_EQ(
      Call({"mark", out_, "-o", out_, "--color", "7", "--layer", "给水管", "--material", "钢管"}).output,
      out_ + ": 3 pipes marked, 2 of them were pipes before\n");
  EXPECT_EQ(Text(0x45, L"Material"), L"铜管");
  EXPECT_EQ(Text(0x41, L"Material"), L"钢管");
}

TEST_F(MarkVerb, WhatCannotBeMarkedIsOneLine) {
  EXPECT_EQ(Failure(Arguments({"--system", "给水"})),
            "--layer, --color or --handle is required: which lines become pipes\n");
  EXPECT_EQ(Failure(Arguments({"--layer", "污水管"})),
            "--layer 污水管: the drawing has no such layer; it has 0, 给水管, DIM\n");
  EXPECT_EQ(Failure(Arguments({"--handle", "4G"})), "--handle 4G: expected hexadecimal digits, as in 2A\n");
  EXPECT_EQ(Failure(Arguments({"--handle", "41,99"})),
            "--handle 99: model space has no entity with this handle\n");
  EXPECT_EQ(Failure(Arguments({"--handle", "46"})), "--handle 46: TEXT is no line or polyline\n");
  EXPECT_EQ(Failure(Arguments({"--layer", "给水管", "--color", "3"})),
            "nothing to mark: no line or polyline of model space is all that was asked for\n");
  EXPECT_EQ(Failure(Arguments({"--layer", "DIM", "--set", "=4"})),
            "--set =4: expected KEY=TEXT, as in Equivalent=4\n");
  EXPECT_EQ(Failure(Arguments({"--layer", "DIM", "--set", "Note=" + std::string(256, 'x')})),
            "nothing marked: 属性 Note 的文字超过 255 字节，未写入。\n");
  EXPECT_EQ(Failure({"mark", in_, "--layer", "DIM"}), "--output is required\n");
  EXPECT_THAT(Failure(Arguments({"--color", "300"})), testing::HasSubstr("--color"));
  EXPECT_FALSE(std::filesystem::exists(out_));
}

TEST_F(MarkVerb, OnlyTheMarkedLinesChangeInTheFile) {
  const std::string before = ReadBytes(in_);
  ASSERT_EQ(Call(Arguments({"--handle", "45", "--set", "Note=x"})).status, 0);
  const std::string after = ReadBytes(out_);
  const std::string added = "1001\nZWT_PIPE\n1000\nNote\n1000\nx\n";
  const std::size_t at = after.find(added);
  ASSERT_NE(at, std::string::npos);
  EXPECT_NE(after.find("APPID\n"), std::string::npos);
  // Behind the line everything is as it was.
  EXPECT_TRUE(before.ends_with(after.substr(at + added.size())));
}

}  // namespace
}  // namespace zwt::test
