#include <gmock/gmock.h>

#include "host/drawing/entities.h"
#include "host/drawing/new_drawing.h"
#include "host/dxf/dxf_file.h"
#include "host/dxf/new_drawing_file.h"
#include "host_dxf/drawing_texts.h"

namespace {

using drawing_texts::CodePage;
using drawing_texts::Entities;
using drawing_texts::Header;
using drawing_texts::kEnd;
using drawing_texts::Pipe;
using drawing_texts::Section;
using testing::HasSubstr;
using testing::Not;
using zwt::Drawing;
using zwt::DrawingBytes;
using zwt::ParseDrawing;

TEST(DxfWriter, ADrawingWithoutAChangeIsTheSameBytes) {
  const std::vector<std::string> drawings = {
      Entities(""),
      Entities(Pipe("")),
      Header("AC1009") + Entities(Pipe("1A")) + "trailing\x1a\r\n\n\n",
      "\xEF\xBB\xBF" + Header("AC1021") + Entities("  0\nTEXT\n  1\n\xFF\xFE broken\n"),
      "999\nc\r\n  0\r\nSECTION\r\n2\r\nENTITIES  \r\n   0\r\nENDSEC\r\n  0\r\nEOF",
      Section("UNKNOWN", "  1\nx\n") + Entities(""),
  };
  for (const std::string& bytes : drawings) {
    const auto drawing = ParseDrawing(bytes);
    EXPECT_EQ(DrawingBytes(*drawing), bytes);
    if (drawing->EntityCount() == 0) continue;
    drawing->Erase(0);
    drawing->Undo();
    EXPECT_EQ(DrawingBytes(*drawing), bytes);
  }
}

TEST(DxfWriter, AFieldChangesItsValueAlone) {
  const std::string tables =
      Section("TABLES", "  0\nTABLE\n  2\nAPPID\n 70\n1\n  0\nAPPID\n  2\nZWT_PIPE\n 70\n0\n  0\nENDTAB\n");
  const std::string before = tables + Entities(Pipe("1A", "1000\nKh\n1000\n2.5\n1000\nKind\n1000\n0\n"));
  const auto drawing = ParseDrawing(before);
  drawing->SetFields(0, {{L"Kh", L"2.8"}});
  std::string after = before;
  after.replace(after.find("2.5"), 3, "2.8");
  EXPECT_EQ(DrawingBytes(*drawing), after);
}

TEST(DxfWriter, AnApplicationIsRegisteredOnceWithTheTablesCount) {
  const std::string tables = Section("TABLES", "  0\nTABLE\n  2\nAPPID\n  5\n9\n 70\n  7 \n  0\nENDTAB\n");
  const auto drawing =
      ParseDrawing(Header("AC1015", "  9\n$HANDSEED\n  5\n30\n") + tables + Entities(Pipe("1A")));
  drawing->SetFields(0, {{L"Kh", L"2.8"}});
  drawing->SetFields(0, {{L"Kh", L"2.9"}});
  const std::string bytes = DrawingBytes(*drawing);
  EXPECT_THAT(bytes,
              HasSubstr("APPID\n  5\n9\n 70\n  8 \n  0\nAPPID\n  5\n30\n330\n9\n100\nAcDbSymbolTableRecord\n"
                        "100\nAcDbRegAppTableRecord\n  2\nZWT_PIPE\n 70\n0\n  0\nENDTAB\n"));
  EXPECT_THAT(bytes, HasSubstr("$HANDSEED\n  5\n31\n"));
}

TEST(DxfWriter, HandlesThatWereGivenAreWrittenWithTheFirstChange) {
  const std::string before =
      Header("AC1009", "  9\n$HANDLING\n 70\n     0\n") +
      Entities(Pipe("") +
               "  0\nPOLYLINE\n  8\n0\n  0\nVERTEX\n 10\n0\n 20\n0\n  0\nSEQEND\n  0\nCIRCLE\n  5\n7\n");
  const auto drawing = ParseDrawing(before);
  EXPECT_EQ(DrawingBytes(*drawing), before);
  drawing->SetDiameter(0, 50);
  const std::string bytes = DrawingBytes(*drawing);
  EXPECT_THAT(bytes, HasSubstr("  0\nLINE\n  5\n8\n  8\n0\n"));
  EXPECT_THAT(bytes, HasSubstr("  0\nPOLYLINE\n  5\n9\n  8\n0\n  0\nVERTEX\n 10\n"));
  EXPECT_THAT(bytes, HasSubstr("  0\nCIRCLE\n  5\n7\n"));
  EXPECT_THAT(bytes, HasSubstr("$HANDLING\n 70\n     1\n"));
  EXPECT_THAT(bytes, HasSubstr("  9\n$HANDSEED\n  5\nB\n  0\nENDSEC\n"));
  const auto again = ParseDrawing(bytes);
  EXPECT_EQ(again->Entity(1).handle, 9U);
  EXPECT_EQ(DrawingBytes(*again), bytes);
}

TEST(DxfWriter, AHandleThatIsNoneStaysAsItIs) {
  const auto drawing = ParseDrawing(Entities(Pipe("1A") + "  0\nCIRCLE\n  5\nXYZ\n"));
  drawing->SetDiameter(0, 50);
  EXPECT_THAT(DrawingBytes(*drawing), HasSubstr("  0\nCIRCLE\n  5\nXYZ\n  0\nENDSEC\n"));
}

TEST(DxfWriter, AnErasedEntityLeavesItsComments) {
  const auto drawing = ParseDrawing(Entities("  0\nTEXT\n  1\nx\n999\nabout the line\n  0\nLINE\n  5\n1\n"));
  drawing->Erase(0);
  EXPECT_THAT(DrawingBytes(*drawing),
              HasSubstr("ENTITIES\n999\nabout the line\n  0\nLINE\n  5\n1\n  0\nENDSEC\n"));
}

// Found by fuzzing: a polyline without its SEQEND, something else, and a vertex that belongs to nothing.
// Without the thing between them the polyline took the vertex for its own, and the saved file was another
// drawing.
TEST(DxfWriter, AnErasedEntityDoesNotJoinWhatItKeptApart) {
  const std::string polyline = "  0\nPOLYLINE\n  5\n1\n  0\nVERTEX\n 10\n1\n 20\n2\n1001\nZWT_PIPE\n";
  const std::string vertex = "  0\nVERTEX\n 10\nodd\n";
  for (const std::string& part : {vertex, std::string("  0\nATTRIB\n  1\nx\n")}) {
    const auto drawing = ParseDrawing(Entities(polyline + "  0\nPOINT\n  5\n2\n999\nkept\n" + part));
    ASSERT_EQ(drawing->EntityCount(), 3);
    drawing->Erase(1);
    EXPECT_NE(DrawingBytes(*drawing).find("999\nkept\n  0\nSEQEND\n" + part.substr(0, 11)),
              std::string::npos);
    EXPECT_EQ(ParseDrawing(DrawingBytes(*drawing))->EntityCount(), 2);
  }
}

TEST(DxfWriter, NewEntitiesStandBehindTheOthersInTheFormOfTheVersion) {
  struct Row {
    std::string version;
    std::string expected;
  };
  const std::string records =
      Section("TABLES",
              "  0\nTABLE\n  2\nBLOCK_RECORD\n  5\n1\n 70\n1\n  0\nBLOCK_RECORD\n  5\n17\n  2\n*Model_Space\n"
              "  0\nENDTAB\n");
  const std::string line = " 10\n1.0\n 20\n2.0\n 30\n3.0\n 11\n4.0\n 21\n5.0\n 31\n6.0\n1001\nZWT_PIPE\n";
  for (const Row& row :
       {Row{"AC1009", "  0\nLINE\n  5\n1B\n  8\n0\n" + line},
        Row{"AC1012", "  0\nLINE\n  5\n1B\n330\n17\n100\nAcDbEntity\n  8\n0\n100\nAcDbLine\n" + line},
        Row{"AC1032", "  0\nLINE\n  5\n1B\n330\n17\n100\nAcDbEntity\n  8\n0\n100\nAcDbLine\n" + line}}) {
    const auto drawing = ParseDrawing(Header(row.version) + records + Entities(Pipe("1A")));
    drawing->AddPipe({1, 2, 3}, {4, 5, 6});
    EXPECT_THAT(DrawingBytes(*drawing), HasSubstr(row.expected + "  0\nENDSEC\n  0\nEOF\n")) << row.version;
  }
}

TEST(DxfWriter, NewTextsAreWrittenInTheEncodingOfTheDrawing) {
  const auto drawing = ParseDrawing(Header("AC1015", CodePage("ANSI_936")) + Entities(Pipe("1A")));
  drawing->SetFields(0, {{L"WtSystem", L"给水\U0001F600"}});
  EXPECT_THAT(DrawingBytes(*drawing), HasSubstr("WtSystem\n1000\n\xB8\xF8\xCB\xAE\\U+D83D\\U+DE00\n"));
}

TEST(DxfWriter, ABrokenTextStaysWhenAnotherIsSet) {
  const auto drawing = ParseDrawing(Header("AC1015", CodePage("ANSI_936")) +
                                    Entities(Pipe("1A", "1000\nNote\n1000\n\xB8\xFF\n")));
  drawing->SetFields(0, {{L"Kh", L"2"}});
  EXPECT_THAT(DrawingBytes(*drawing), HasSubstr("1000\nNote\n1000\n\xB8\xFF\n1000\nKh\n1000\n2\n"));
}

TEST(DxfWriter, MissingSectionsAreMadeWhereTheyBelong) {
  const auto drawing = ParseDrawing(Section("HEADER", "  9\n$ACADVER\n  1\nAC1009\n") + std::string(kEnd));
  drawing->AddPipe({0, 0, 0}, {1, 0, 0}, {}, drawing->InitLayer(L"W"));
  EXPECT_EQ(
      DrawingBytes(*drawing),
      "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1009\n  9\n$HANDSEED\n  5\n4\n  0\nENDSEC\n"
      "  0\nSECTION\n  2\nTABLES\n"
      "  0\nTABLE\n  2\nLAYER\n 70\n1\n  0\nLAYER\n  2\nW\n 70\n0\n 62\n7\n  6\nCONTINUOUS\n  0\nENDTAB\n"
      "  0\nTABLE\n  2\nAPPID\n 70\n1\n  0\nAPPID\n  2\nZWT_PIPE\n 70\n0\n  0\nENDTAB\n  0\nENDSEC\n"
      "  0\nSECTION\n  2\nENTITIES\n  0\nLINE\n  5\n2\n  8\nW\n 10\n0.0\n 20\n0.0\n 30\n0.0\n 11\n1.0\n "
      "21\n0.0\n"
      " 31\n0.0\n1001\nZWT_PIPE\n  0\nENDSEC\n  0\nEOF\n");
}

TEST(DxfWriter, TablesStandInFrontOfTheEntitiesAlsoWithoutAHeader) {
  const auto drawing = ParseDrawing(Entities(Pipe("1A")));
  drawing->SetDiameter(0, 50);
  const std::string bytes = DrawingBytes(*drawing);
  EXPECT_TRUE(bytes.starts_with("  0\nSECTION\n  2\nTABLES\n  0\nTABLE\n  2\nAPPID\n"));
  EXPECT_THAT(bytes, Not(HasSubstr("HEADER")));
}

TEST(DxfWriter, NewLinesFollowTheLineEndOfTheFile) {
  std::string bytes = Entities(Pipe("1A"));
  for (std::size_t at = 0; (at = bytes.find('\n', at)) != std::string::npos; at += 2)
    bytes.replace(at, 1, "\r\n");
  const auto drawing = ParseDrawing(bytes);
  drawing->AddPipe({0, 0, 0}, {1, 0, 0});
  const std::string saved = DrawingBytes(*drawing);
  for (std::size_t at = 0; (at = saved.find('\n', at)) != std::string::npos; ++at)
    ASSERT_EQ(saved[at - 1], '\r') << at;
}

TEST(DxfWriter, ANewDrawingIsWholeAndOfItsVersion) {
  Drawing drawing;
  drawing.AddPipe({0, 0, 0}, {0, 3000, 0}, {{L"WtSystem", L"给水"}}, drawing.InitLayer(L"给水管道"));
  const std::string bytes = DrawingBytes(drawing);
  const auto again = ParseDrawing(bytes);
  EXPECT_EQ(again->Data().dialect.version, 1021);
  EXPECT_EQ(again->Data().dialect.modelSpace, zwt::kNewModelSpace);
  EXPECT_EQ(again->Pipes().size(), 1U);
  EXPECT_EQ(again->Entity(0).handle, drawing.Entity(0).handle);
  EXPECT_EQ(DrawingBytes(*again), bytes);
}

TEST(DxfWriter, TheDatabaseKnowsTheFileOfANewDrawing) {
  const auto file = ParseDrawing(zwt::NewDrawingFile());
  const Drawing fresh;
  EXPECT_EQ(file->Data().dialect.version, fresh.Data().dialect.version);
  EXPECT_EQ(file->Data().dialect.modelSpace, fresh.Data().dialect.modelSpace);
  EXPECT_EQ(file->Data().nextHandle, fresh.Data().nextHandle);
  EXPECT_EQ(file->Data().dimensionScale, fresh.Data().dimensionScale);
  EXPECT_TRUE(file->Data().dialect.encoding.IsUtf8());
  const auto names = [](const auto& records) {
    std::vector<CString> all;
    for (const auto& record : records) {
      if (record.inTable && record.inFile) all.push_back(record.name);
    }
    return all;
  };
  EXPECT_EQ(names(file->Data().layers), names(fresh.Data().layers));
  EXPECT_EQ(names(file->Data().styles), names(fresh.Data().styles));
  EXPECT_EQ(names(file->Data().applications), names(fresh.Data().applications));
  EXPECT_EQ(DrawingBytes(fresh), zwt::NewDrawingFile());
}

TEST(DxfWriter, ASecondAnnotationReplacesTheFirstAlsoAfterASave) {
  const auto annotate = [](AcDbObjectId pipe) {
    Drawing& drawing = zwt::WorkingDrawing();
    for (const std::int32_t old : drawing.AttachedTo(drawing.IndexOf(pipe))) drawing.Erase(old);
    auto dimension = std::make_unique<ZcDbWtSymbDiameterDim>();
    dimension->SetLocation({0, 1500, 0});
    dimension->SetTextHeight(350);
    AddToModelSpace(dimension.release(), 1);
  };
  auto before = zwt::ReplaceWorkingDrawing(ParseDrawing(Entities(Pipe(""))));
  annotate(zwt::WorkingDrawing().IdOf(0));
  zwt::ReplaceWorkingDrawing(ParseDrawing(DrawingBytes(zwt::WorkingDrawing())));
  EXPECT_EQ(zwt::WorkingDrawing().AttachedTo(0).size(), 1U);
  annotate(zwt::WorkingDrawing().IdOf(0));
  zwt::ReplaceWorkingDrawing(ParseDrawing(DrawingBytes(zwt::WorkingDrawing())));
  EXPECT_EQ(zwt::WorkingDrawing().AttachedTo(0).size(), 1U);
  EXPECT_EQ(zwt::WorkingDrawing().EntityCount(), 2);
  zwt::ReplaceWorkingDrawing(std::move(before));
}

}  // namespace
