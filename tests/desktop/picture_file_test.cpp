// Pictures of drawings as files, written by the program without a screen.
#include "desktop/picture_file.h"

#include <QImage>
#include <cerrno>

#include <gtest/gtest.h>

#include "desktop/qt_text.h"
#include "host/platform/files.h"
#include "host/platform/paths.h"
#include "host_drawing/seen.h"
#include "support/child_process.h"

namespace zwt {
namespace {

using test::ReadBytes;
using test::TemporaryFolder;
using test::WriteBytes;

constexpr std::string_view kFrame =
    "0 LWPOLYLINE|8 0|62 1|90 4|70 1|10 0|20 0|10 200|20 0|10 200|20 100|10 0|20 100";

void Write(std::string_view entities, const std::filesystem::path& file) {
  WritePicture(MakeDisplayList(*test::DrawingOf(entities)), ToQt(TextFromPath(file)));
}

TEST(PictureFile, ABitmapHasTheShapeOfTheDrawing) {
  const TemporaryFolder folder;
  Write(kFrame, folder.Path() / "图.PNG");
  const QImage image(ToQt(TextFromPath(folder.Path() / "图.PNG")));
  EXPECT_EQ(image.size(), QSize(3000, 1500));
  EXPECT_EQ(image.pixel(0, 0), 0xFFFFFFFFU);
  EXPECT_EQ(image.pixel(1500, 1440), 0xFFFF0000U);  // the lower edge, 4 per cent above the picture's
  EXPECT_EQ(image.pixel(1500, 750), 0xFFFFFFFFU);
}

TEST(PictureFile, ThinDrawingsAndEmptyOnesArePicturesToo) {
  const TemporaryFolder folder;
  Write("0 LINE|8 0|10 0|20 0|11 100|21 0", folder.Path() / "line.png");
  EXPECT_EQ(QImage(ToQt(TextFromPath(folder.Path() / "line.png"))).size(), QSize(3000, 200));
  Write("", folder.Path() / "empty.png");
  EXPECT_EQ(QImage(ToQt(TextFromPath(folder.Path() / "empty.png"))).size(), QSize(200, 200));
}

TEST(PictureFile, APageIsOneSheetOfA3) {
  const TemporaryFolder folder;
  Write(kFrame, folder.Path() / "a.pdf");
  const std::string page = ReadBytes(folder.Path() / "a.pdf");
  EXPECT_EQ(page.substr(0, 5), "%PDF-");
  EXPECT_NE(page.find("/MediaBox [0 0 1191.000000 842.000000]"), std::string::npos);
  EXPECT_NE(page.find("/Count 1"), std::string::npos);
}

TEST(PictureFile, AFailedWriteLeavesTheOldPicture) {
  const TemporaryFolder folder;
  WriteBytes(folder.Path() / "a.png", "before");
  const FileFault full([](FileStep step) { return step == FileStep::Write ? ENOSPC : 0; });
  EXPECT_THROW(Write(kFrame, folder.Path() / "a.png"), FileError);
  EXPECT_EQ(ReadBytes(folder.Path() / "a.png"), "before");
}

const std::string kProgram = ZWT_BINARY_DIR "/bin/zwtcal-desktop";

TEST(PictureFile, TheProgramDrawsWithoutAScreen) {
  const TemporaryFolder folder;
  const std::string picture = (folder.Path() / "a.png").string();
  const auto run = test::RunChild(kProgram, {"--render", ZWT_SOURCE_DIR "/examples/office.dxf", picture});
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_EQ(QImage(QString::fromStdString(picture)).height(), 3000);
}

TEST(PictureFile, TheProgramSaysWhatIsWrong) {
  const TemporaryFolder folder;
  const std::string drawing = (folder.Path() / "a.dxf").string();
  const auto run = [&](const std::vector<std::string>& arguments) {
    const auto result = test::RunChild(kProgram, arguments);
    EXPECT_EQ(result.status, 2);
    const std::size_t last = result.errors.rfind('\n', result.errors.size() - 2);
    return result.errors.substr(last == std::string::npos ? 0 : last + 1);
  };
  EXPECT_EQ(run({"--render", drawing}), "--render: expected a drawing and the picture to write\n");
  EXPECT_EQ(run({"--render", ZWT_SOURCE_DIR "/examples/office.dxf", "a.svg"}),
            "a.svg: expected a name that ends in .png or .pdf; zwtcal render writes .svg\n");
  WriteBytes(drawing, "0\nSECTION\nx\n");
  EXPECT_EQ(run({"--render", drawing, "a.png"}), drawing + ": line 3: expected a group code, found \"x\"\n");
}

}  // namespace
}  // namespace zwt
