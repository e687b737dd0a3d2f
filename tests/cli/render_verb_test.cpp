// zwtcal render, as its users call it.
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "cli/program_call.h"
#include "host/platform/files.h"

namespace zwt::test {
namespace {

namespace fs = std::filesystem;

class RenderVerb : public testing::Test {
 protected:
  RenderVerb() : folder_(fs::path(testing::TempDir()) / ("render_" + std::to_string(getpid()))) {
    fs::create_directories(folder_);
  }
  ~RenderVerb() override { fs::remove_all(folder_); }

  std::string Path(const std::string& name) const { return (folder_ / name).string(); }
  std::string Write(const std::string& name, const std::string& bytes) const {
    WriteFileAtomically(Path(name), bytes);
    return Path(name);
  }

 private:
  fs::path folder_;
};

const std::string kDrawing =
    "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n10\n0\n20\n0\n11\n100\n21\n0\n"
    "0\nPOINT\n8\n0\n10\n0\n20\n0\n0\nLINE\n8\n0\n10\nx\n20\n0\n11\n1\n21\n1\n"
    "0\nLINE\n8\n0\n67\n1\n10\n0\n20\n0\n11\n7\n21\n7\n0\nENDSEC\n0\nEOF\n";

TEST_F(RenderVerb, WritesThePictureAndSaysWhatIsInIt) {
  const std::string drawing = Write("a.dxf", kDrawing);
  const Outcome outcome = Call({"render", drawing, "-o", Path("图.SVG")});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, Path("图.SVG") + ": 1 line, 0 areas, 0 texts, 1 point; left out as broken: 1\n");
  EXPECT_NE(ReadWholeFile(Path("图.SVG")).find("d=\"M2 2L102 2\""), std::string::npos);
}

TEST_F(RenderVerb, ShowsThePaperSpaceOnDemand) {
  const std::string drawing = Write("a.dxf", kDrawing);
  EXPECT_EQ(Call({"render", drawing, "-o", Path("a.svg"), "--paper"}).output,
            Path("a.svg") + ": 1 line, 0 areas, 0 texts, 0 points\n");
}

TEST_F(RenderVerb, OtherKindsOfPicturesAreTheDesktops) {
  const std::string drawing = Write("a.dxf", kDrawing);
  EXPECT_EQ(Failure({"render", drawing, "-o", "a.png"}),
            "a.png: expected a name that ends in .svg; zwtcal-desktop --render writes .png and .pdf\n");
  EXPECT_EQ(Failure({"render", drawing, "-o", "svg"}),
            "svg: expected a name that ends in .svg; zwtcal-desktop --render writes .png and .pdf\n");
}

TEST_F(RenderVerb, ADrawingThatCannotBeReadLeavesThePictureAlone) {
  const std::string picture = Write("a.svg", "before");
  const std::string drawing = Write("a.dxf", "0\nSECTION\nx\n");
  EXPECT_EQ(Failure({"render", drawing, "-o", picture}),
            drawing + ": line 3: expected a group code, found \"x\"\n");
  EXPECT_EQ(ReadWholeFile(picture), "before");
}

TEST_F(RenderVerb, AFolderThatIsNotThereIsNamed) {
  const std::string drawing = Write("a.dxf", kDrawing);
  EXPECT_NE(Failure({"render", drawing, "-o", Path("no/a.svg")}).find("no/a.svg"), std::string::npos);
}

}  // namespace
}  // namespace zwt::test
