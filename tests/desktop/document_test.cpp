// The drawing's file: open, save, and what others do to it.
#include "desktop/document.h"

#include <QCoreApplication>
#include <QTest>
#include <fstream>

#include <gtest/gtest.h>

#include "host/dxf/dxf_file.h"

namespace zwt::test {
namespace {

class DocumentTest : public testing::Test {
 protected:
  DocumentTest() : folder_(testing::TempDir() + "/document-" + Name()) {
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
  }
  static std::string Name() { return testing::UnitTest::GetInstance()->current_test_info()->name(); }

  std::filesystem::path File(const char* name) const { return folder_ / name; }

  /// A drawing with so many lines, written by another program.
  static void Write(const std::filesystem::path& path, int lines) {
    Drawing drawing;
    for (int i = 0; i < lines; ++i) drawing.AddLine({0, 0, 0}, {1000.0 + i, 0, 0});
    SaveDrawing(drawing, path);
  }

 private:
  std::filesystem::path folder_;
};

TEST_F(DocumentTest, BeginsEmptyWithoutAFileAndPutsTheFormerWorkingDrawingBack) {
  const Drawing* before = &WorkingDrawing();
  {
    const Document document;
    EXPECT_NE(&WorkingDrawing(), before);
    EXPECT_FALSE(document.HasFile());
    EXPECT_EQ(document.Name(), QStringLiteral("未命名图纸"));
    EXPECT_FALSE(document.IsModified());
  }
  EXPECT_EQ(&WorkingDrawing(), before);
}

TEST_F(DocumentTest, FileThatCannotBeReadLeavesTheDrawingAsItWas) {
  Document document;
  Write(File("good.dxf"), 2);
  document.Open(File("good.dxf"));
  std::ofstream(File("bad.dxf")) << "0\nSECTION\nx\n";
  EXPECT_THROW(document.Open(File("bad.dxf")), DrawingError);
  EXPECT_THROW(document.Open(File("missing.dxf")), FileError);
  EXPECT_EQ(document.Contents().EntityCount(), 2);
  EXPECT_EQ(document.Path(), File("good.dxf"));
}

TEST_F(DocumentTest, SavingUnderAnotherNameMovesTheDocumentThere) {
  Document document;
  document.Contents().AddLine({0, 0, 0}, {1, 0, 0});
  EXPECT_TRUE(document.IsModified());
  document.SaveAs(File("one.dxf"));
  EXPECT_FALSE(document.IsModified());
  EXPECT_FALSE(document.IsOutdated());
  EXPECT_EQ(document.Name(), QStringLiteral("one.dxf"));
  EXPECT_EQ(ReadDrawing(File("one.dxf"))->EntityCount(), 1);
}

TEST_F(DocumentTest, ChangesAreToldOnceWhenControlIsBack) {
  Document document;
  int told = 0;
  document.onChanged = [&] { ++told; };
  document.Contents().AddLine({0, 0, 0}, {1, 0, 0});
  document.Contents().AddLine({0, 0, 0}, {2, 0, 0});
  EXPECT_EQ(told, 0);
  QCoreApplication::processEvents();
  EXPECT_EQ(told, 1);
  document.Contents().Undo();
  QCoreApplication::processEvents();
  EXPECT_EQ(told, 2);
}

TEST_F(DocumentTest, FileThatAnotherProgramReplacedIsOutdatedUntilItIsReadAgain) {
  Write(File("one.dxf"), 1);
  Document document;
  document.Open(File("one.dxf"));
  EXPECT_FALSE(document.IsOutdated());
  bool touched = false;
  document.onFileTouched = [&] { touched = true; };
  Write(File("one.dxf"), 3);
  EXPECT_TRUE(document.IsOutdated());
  EXPECT_TRUE(QTest::qWaitFor([&] { return touched; }));
  document.Reload();
  EXPECT_FALSE(document.IsOutdated());
  EXPECT_EQ(document.Contents().EntityCount(), 3);
}

TEST_F(DocumentTest, FileThatIsGoneDoesNotCountAsChanged) {
  Write(File("one.dxf"), 1);
  Document document;
  document.Open(File("one.dxf"));
  std::filesystem::remove(File("one.dxf"));
  EXPECT_FALSE(document.IsOutdated());
}

TEST_F(DocumentTest, RefusedChangeIsHandedOn) {
  Document document;
  const AcDbObjectId pipe = document.Contents().AddPipe({0, 0, 0}, {1, 0, 0});
  CString refused;
  document.onRefused = [&](const CString& message) { refused = message; };
  document.Contents().SetFields(document.Contents().IndexOf(pipe), {{L"Material", CString(300, L'x')}});
  EXPECT_EQ(refused, L"属性 Material 的文字超过 255 字节，未写入。");
}

}  // namespace
}  // namespace zwt::test
