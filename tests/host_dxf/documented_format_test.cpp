// The examples on the page about the drawing format are what they say.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/dxf/dxf_file.h"
#include "host/platform/files.h"
#include "host_dxf/drawing_texts.h"

namespace {

/// The blocks of literal lines on the page.
std::vector<std::string> Examples() {
  const std::string page = zwt::ReadWholeFile(ZWT_SOURCE_DIR "/docs/drawing-format.md");
  const std::string fence = "```\n";
  std::vector<std::string> examples;
  for (std::size_t at = page.find(fence); at != std::string::npos; at = page.find(fence, at)) {
    const std::size_t begin = at + fence.size();
    const std::size_t end = page.find(fence, begin);
    examples.push_back(page.substr(begin, end - begin));
    at = end + fence.size();
  }
  return examples;
}

TEST(DocumentedFormat, TheExampleOfAPipeIsOne) {
  ASSERT_EQ(Examples().size(), 2U);
  const auto drawing = zwt::ParseDrawing(drawing_texts::Entities(Examples()[0]));
  ASSERT_THAT(drawing->Pipes(), testing::ElementsAre(0));
  EXPECT_EQ(drawing->FindHandle(0x2A), 0);
  EXPECT_EQ(drawing->PipeOf(0).length, 3000);
  EXPECT_EQ(drawing->Fields(0), (zwt::FieldList{{L"WtSystem", L"给水"}, {L"ELS_TYPE", L"立管"}}));
}

TEST(DocumentedFormat, TheExampleOfAnAnnotationBelongsToThePipe) {
  ASSERT_EQ(Examples().size(), 2U);
  const auto drawing = zwt::ParseDrawing(drawing_texts::Entities(
      Examples()[0] + "  0\nTEXT\n  8\n0\n 10\n0\n 20\n0\n 40\n350\n  1\nDN32\n" + Examples()[1]));
  EXPECT_THAT(drawing->AttachedTo(0), testing::ElementsAre(1));
}

}  // namespace
