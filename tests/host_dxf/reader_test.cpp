#include <gmock/gmock.h>

#include "host/drawing/connections.h"
#include "host/dxf/dxf_file.h"
#include "host_dxf/drawing_texts.h"

namespace {

using drawing_texts::CodePage;
using drawing_texts::Entities;
using drawing_texts::Header;
using drawing_texts::kEnd;
using drawing_texts::Pipe;
using drawing_texts::Section;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using zwt::ParseDrawing;

std::string ErrorOf(std::string bytes) {
  try {
    ParseDrawing(std::move(bytes));
  } catch (const zwt::DrawingError& error) {
    return error.what();
  }
  return "";
}

CString SystemIn(const std::string& head, const std::string& bytes) {
  const auto drawing = ParseDrawing(head + Entities(Pipe("1A", "1000\nWtSystem\n1000\n" + bytes + "\n")));
  CString system;
  drawing->GetField(0, L"WtSystem", system);
  return system;
}

constexpr std::string_view kGbkSystem = "\xB8\xF8\xCB\xAE";
constexpr std::string_view kUtf8System = "\xE7\xBB\x99\xE6\xB0\xB4";

TEST(DxfReader, PipesAreLinesAndPolylinesWithTheirData) {
  const auto drawing = ParseDrawing(
      Entities(Pipe("1A") + "  0\nLINE\n  5\n1B\n 10\n0\n" + "  0\nCIRCLE\n  5\n1C\n1001\nZWT_PIPE\n" +
               "  0\nLWPOLYLINE\n  5\n1D\n 10\n0\n 20\n0\n 10\n3\n 20\n4\n1001\nZWT_PIPE\n" +
               "  0\nPOLYLINE\n  5\n1E\n 70\n64\n1001\nZWT_PIPE\n  0\nVERTEX\n 10\n0\n 20\n0\n  0\nSEQEND\n" +
               "  0\nPOLYLINE\n  5\n1F\n1001\nZWT_PIPE\n  0\nVERTEX\n 10\n0\n 20\n0\n  0\nVERTEX\n 10\n0\n "
               "20\n7\n  0\nSEQEND\n"));
  EXPECT_EQ(drawing->EntityCount(), 6);
  EXPECT_THAT(drawing->Pipes(), ElementsAre(0, 3, 5));
  EXPECT_EQ(drawing->PipeOf(3).length, 5);
  EXPECT_EQ(drawing->PipeOf(5).end, (AcGePoint3d{0, 7, 0}));
  EXPECT_EQ(drawing->FindHandle(0x1F), 5);
}

TEST(DxfReader, PipesInPaperSpaceAndBlocksAreNamedButNoneOfTheModel) {
  std::string paper = Pipe("1B");
  paper.insert(paper.find("  8\n"), " 67\n1\n");
  const auto drawing = ParseDrawing(
      Section("BLOCKS", "  0\nBLOCK\n  2\nVALVE\n 10\n1\n 20\n2\n" + Pipe("1A") + "  0\nENDBLK\n") +
      Entities(paper));
  EXPECT_THAT(drawing->Pipes(), IsEmpty());
  ASSERT_THAT(drawing->Data().strayPipes, SizeIs(2));
  EXPECT_EQ(drawing->Data().strayPipes[0].block, 0);
  EXPECT_EQ(drawing->Data().blocks[0].name, L"VALVE");
  EXPECT_EQ(drawing->Data().strayPipes[1].handle, 0x1BU);
  EXPECT_EQ(drawing->Data().strayPipes[1].block, -1);
}

TEST(DxfReader, AStrayPipeMayHaveOddNumbers) {
  std::string odd = Pipe("1A");
  odd.replace(odd.find("3000.0"), 6, "odd");
  const auto drawing =
      ParseDrawing(Section("BLOCKS", "  0\nBLOCK\n  2\nB\n" + odd + "  0\nENDBLK\n") + Entities(""));
  EXPECT_THAT(drawing->Data().strayPipes, SizeIs(1));
}

TEST(DxfReader, TheVersionDecidesTheEncodingFirst) {
  const std::string gbkPage = CodePage("ANSI_936");
  EXPECT_EQ(SystemIn(Header("AC1021", gbkPage), std::string(kUtf8System)), L"给水");
  EXPECT_EQ(SystemIn(Header("AC1018", gbkPage), std::string(kGbkSystem)), L"给水");
  EXPECT_EQ(SystemIn(Header("AC1009", CodePage("ansi_1252")), "caf\xE9"), L"café");
}

TEST(DxfReader, WithoutACodePageTheBytesDecide) {
  for (const std::string& head :
       {std::string(), Header("AC1009"), Header("AC1015", CodePage("no such page"))}) {
    EXPECT_EQ(SystemIn(head, std::string(kUtf8System)), L"给水");
    EXPECT_EQ(SystemIn(head, std::string(kGbkSystem)), L"给水");
    EXPECT_EQ(SystemIn(head, "\\U+7ED9\\U+6C34"), L"给水");
  }
}

TEST(DxfReader, OneBrokenByteLeavesTheDrawingReadable) {
  EXPECT_EQ(SystemIn(Header("AC1015", CodePage("ANSI_936")), "\xB8\xF8\xFF\xCB\xAE"), L"给\xFFFD水");
  EXPECT_EQ(SystemIn(Header("AC1027"), "\xE7\xBB\x99\xE6\xB0"), L"给\xFFFD\xFFFD");
}

TEST(DxfReader, LayersAreJoinedByNameWhateverTheirSpelling) {
  const std::string tables =
      Section("TABLES",
              "  0\nTABLE\n  2\nLAYER\n 70\n2\n  0\nLAYER\n  2\nPipe\n 70\n1\n 62\n-5\n"
              "  0\nLAYER\n  2\n给水\n 62\n3\n420\n255\n  0\nENDTAB\n");
  const auto drawing =
      ParseDrawing(tables + Entities("  0\nLINE\n  8\nPIPE\n  0\nLINE\n  8\n\\U+7ED9\\U+6C34\n"
                                     "  0\nLINE\n  8\nelsewhere\n  0\nLINE\n"));
  const std::vector<zwt::Layer>& layers = drawing->Data().layers;
  ASSERT_THAT(layers, SizeIs(4));
  EXPECT_EQ(drawing->Entity(0).layer, 0);
  EXPECT_EQ(drawing->Entity(1).layer, 1);
  EXPECT_EQ(layers[2].name, L"elsewhere");
  EXPECT_FALSE(layers[2].inTable);
  EXPECT_EQ(layers[3].name, L"0");
  EXPECT_TRUE(layers[0].isOff);
  EXPECT_TRUE(layers[0].isFrozen);
  EXPECT_EQ(layers[0].color, 5);
  EXPECT_EQ(layers[1].trueColor, 255);
}

TEST(DxfReader, FilesWithoutHandlesGetThemInMemory) {
  const auto drawing = ParseDrawing(Entities(Pipe("") + Pipe("A") + Pipe("")));
  EXPECT_EQ(drawing->Entity(0).handle, 0xBU);
  EXPECT_EQ(drawing->Entity(1).handle, 0xAU);
  EXPECT_EQ(drawing->Entity(2).handle, 0xCU);
}

TEST(DxfReader, NewHandlesLieBehindTheSeedAndEveryHandleOfTheFile) {
  const auto next = [](const std::string& bytes) { return ParseDrawing(bytes)->Data().nextHandle; };
  EXPECT_EQ(next(Header("AC1015", "  9\n$HANDSEED\n  5\n100\n") + Entities(Pipe("1A"))), 0x100U);
  EXPECT_EQ(next(Header("AC1015", "  9\n$HANDSEED\n  5\n10\n") + Entities(Pipe("1A"))), 0x1BU);
  EXPECT_EQ(next(Entities(Pipe("1A")).insert(0, Section("OBJECTS", "  0\nX\n  5\n2FF\n"))), 0x300U);
  EXPECT_EQ(next(Entities(Pipe("1A", "1001\nOTHER\n1005\nFFF\n"))), 0x1000U);
  EXPECT_EQ(
      next(Header("AC1015", "  9\n$HANDSEED\n  5\nFFFFFFFFFFFFFFFF\n") + Entities(Pipe("FFFFFFFFFFFFFFFF"))),
      1U);
}

TEST(DxfReader, AttachmentsAreFound) {
  const auto drawing = ParseDrawing(Entities("  0\nTEXT\n  5\n1\n1001\nZWT_ATTACH\n1005\n1a\n" + Pipe("1A") +
                                             "  0\nINSERT\n  5\n2\n1001\nZWT_ATTACH\n1005\n1A\n"));
  EXPECT_THAT(drawing->AttachedTo(1), ElementsAre(0, 2));
}

TEST(DxfReader, TheDimensionScaleIsRead) {
  EXPECT_EQ(ParseDrawing(Header("AC1009", "  9\n$DIMSCALE\n 40\n50.0\n") + Entities(""))->AnnotationHeight(),
            175);
  EXPECT_EQ(ParseDrawing(Entities(""))->AnnotationHeight(), 350);
}

TEST(DxfReader, CommentsAndOddValuesAreNoErrors) {
  const auto drawing =
      ParseDrawing("999\nhello\n" + Header("AC1009") + "999\nthere\n" +
                   Section("ENTITIES", "999\nx\n  0\nCIRCLE\n 40\nnot a number\n 62\nred\n  5\nXYZ\n" +
                                           Pipe("1A") + "999\nbehind\n") +
                   std::string(kEnd) + "whatever follows\n");
  EXPECT_EQ(drawing->EntityCount(), 2);
  EXPECT_THAT(drawing->GetConnections().ConnectedTo(1), IsEmpty());
}

TEST(DxfReader, AnInsertKeepsItsAttributes) {
  const auto drawing = ParseDrawing(
      Entities("  0\nINSERT\n 66\n1\n  0\nATTRIB\n  1\nx\n  0\nSEQEND\n  0\nINSERT\n 66\n1\n" + Pipe("1A")));
  EXPECT_EQ(drawing->EntityCount(), 3);
  EXPECT_TRUE(drawing->Entity(0).tags.ends_with("SEQEND\n"));
}

TEST(DxfReader, OtherFormatsAreRefusedWithAHint) {
  EXPECT_EQ(ErrorOf(std::string("AC1032\0\0\0\0", 10)), "this is a DWG file: save the drawing as DXF first");
  EXPECT_EQ(ErrorOf("AutoCAD Binary DXF\r\n\x1a"),
            "this is a binary DXF file: save the drawing as DXF in text form first");
  EXPECT_EQ(ErrorOf(Header("AC1006") + Entities("")),
            "line 8: expected a version from AC1009 to AC1032, found \"AC1006\"");
}

TEST(DxfReader, BrokenStructuresAreNamedWithTheirLine) {
  struct Row {
    std::string bytes;
    std::string error;
  };
  const std::string begin = "  0\nSECTION\n  2\nENTITIES\n";
  const std::vector<Row> rows = {
      {"", "line 1: expected group 0 \"EOF\", found the end of the file"},
      {"hello\nworld\n", "line 1: expected a group code, found \"hello\""},
      {"  0\nLINE\n", "line 1: expected group 0 \"SECTION\" or \"EOF\", found group 0 \"LINE\""},
      {"  0\nSECTION\n  8\nx\n",
       "line 3: expected group 2 with the name of the section, found group 8 \"x\""},
      {begin + "  0\nEOF\n",
       "line 5: expected an entity or the end of its section or block, found group 0 \"EOF\""},
      {begin + "  0\nSECTION\n",
       "line 5: expected an entity or the end of its section or block, found group 0 \"SECTION\""},
      {begin + "  0\nLINE\n  8\nx\n", "line 9: expected group 0 \"EOF\", found the end of the file"},
      {begin + "  0\nLINE\nx8\nx\n", "line 7: expected a group code, found \"x8\""},
      {"  0\nSECTION\n  2\nOBJECTS\n  0\nEOF\n",
       "line 5: expected group 0 \"ENDSEC\", found group 0 \"EOF\""},
      {"  0\nSECTION\n  2\nTABLES\n  0\nTABLE\n  2\nLAYER\n  0\nENDSEC\n",
       "line 9: expected group 0 \"ENDTAB\", found group 0 \"ENDSEC\""},
      {"  0\nSECTION\n  2\nBLOCKS\n  0\nBLOCK\n  2\nB\n  0\nENDSEC\n",
       "line 9: expected an entity or the end of its section or block, found group 0 \"ENDSEC\""},
      {"  0\nSECTION\n  2\nHEADER\n  0\nLINE\n",
       "line 5: expected group 0 \"ENDSEC\", found group 0 \"LINE\""},
      {Header("AC1009", "  9\n$DIMSCALE\n 40\nbig\n") + Entities(""),
       "line 12: expected a number for $DIMSCALE, found \"big\""},
      {Entities(Pipe("XYZ")), "line 5: expected a handle (group 5) of hexadecimal digits for a pipe"},
      {Entities("  0\nLINE\n 10\n0\n 20\n0\n 11\nodd\n 21\n0\n1001\nZWT_PIPE\n"),
       "line 12: expected a number for a pipe, found \"odd\""},
  };
  for (const Row& row : rows) EXPECT_EQ(ErrorOf(row.bytes), row.error);
}

TEST(DxfReader, ErrorsOfFilesNameTheFile) {
  try {
    zwt::ReadDrawing(ZWT_SOURCE_DIR "/CMakeLists.txt");
    FAIL();
  } catch (const zwt::DrawingError& error) {
    EXPECT_EQ(error.what(), std::string(ZWT_SOURCE_DIR) +
                                "/CMakeLists.txt: line 1: expected a group code, found "
                                "\"cmake_minimum_required(VERSION 3.25)\"");
    EXPECT_EQ(error.Line(), 1);
  }
}

}  // namespace
