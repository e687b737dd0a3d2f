// Bookmarks and tables in documents.
#include "host/report/word_document.h"

#include <gmock/gmock.h>

#include "host/report/report_error.h"
#include "host_report/document_fixture.h"

namespace zwt::test {
namespace {

using testing::HasSubstr;
using testing::Not;

std::string Filled(const std::string& body, const std::string& text, int index = 1) {
  WordDocument document(Document(body));
  document.WriteBookmark(index, text);
  return BodyOf(document.Bytes());
}

const std::string kText = "<w:t xml:space=\"preserve\">";

TEST(Bookmarks, CountInDocumentOrderWithoutThoseOfTheWordProcessor) {
  WordDocument document(
      Document("<w:p>" + Mark("7", "b") + Mark("1", "_GoBack") + "</w:p><w:p>" + Mark("3", "a") + "</w:p>"));
  EXPECT_EQ(document.BookmarkCount(), 2);
  document.WriteBookmark(1, "first");
  document.WriteBookmark(2, "second");
  const std::string body = BodyOf(document.Bytes());
  EXPECT_LT(body.find("first"), body.find("second"));
}

TEST(Bookmarks, StartsWithoutAnEndDoNotCount) {
  const WordDocument document(
      Document("<w:p><w:bookmarkStart w:id=\"0\" w:name=\"a\"/>" + Mark("1", "a") + "</w:p>"));
  EXPECT_EQ(document.BookmarkCount(), 1);
}

TEST(Bookmarks, TextStandsInsideAndTheBookmarkStays) {
  EXPECT_EQ(Filled("<w:p>" + Mark("0", "a") + "</w:p>", "15"),
            "<w:p><w:bookmarkStart w:id=\"0\" w:name=\"a\"/><w:r>" + kText +
                "15</w:t></w:r><w:bookmarkEnd w:id=\"0\"/></w:p>");
}

TEST(Bookmarks, FilledTwiceHoldsTheLaterText) {
  WordDocument document(Document("<w:p>" + Mark("0", "a") + "</w:p>"));
  document.WriteBookmark(1, "10");
  document.WriteBookmark(1, "20");
  const std::string body = BodyOf(document.Bytes());
  EXPECT_THAT(body, HasSubstr("20"));
  EXPECT_THAT(body, Not(HasSubstr("10")));
}

TEST(Bookmarks, SpannedTextIsReplacedInItsLook) {
  const std::string bold = "<w:r><w:rPr><w:b/></w:rPr><w:t>旧</w:t></w:r>";
  EXPECT_EQ(
      Filled("<w:p>" + TextRun("前") + Mark("0", "a", bold + TextRun("旧二")) + TextRun("后") + "</w:p>",
             "新"),
      "<w:p>" + TextRun("前") + "<w:bookmarkStart w:id=\"0\" w:name=\"a\"/><w:r><w:rPr><w:b/></w:rPr>" +
          kText + "新</w:t></w:r><w:bookmarkEnd w:id=\"0\"/>" + TextRun("后") + "</w:p>");
}

TEST(Bookmarks, SpanOverParagraphsJoinsThem) {
  const std::string body = "<w:p>" + TextRun("前") + "<w:bookmarkStart w:id=\"0\" w:name=\"a\"/>" +
                           TextRun("一") + "</w:p><w:p>" + TextRun("二") + "</w:p><w:p>" + TextRun("三") +
                           "<w:bookmarkEnd w:id=\"0\"/>" + TextRun("后") + "</w:p>";
  EXPECT_EQ(Filled(body, "新"), "<w:p>" + TextRun("前") + "<w:bookmarkStart w:id=\"0\" w:name=\"a\"/><w:r>" +
                                    kText + "新</w:t></w:r><w:bookmarkEnd w:id=\"0\"/>" + TextRun("后") +
                                    "</w:p>");
}

TEST(Bookmarks, InATableCell) {
  const std::string body = "<w:tbl><w:tr><w:tc><w:p>" + Mark("0", "a") + "</w:p></w:tc></w:tr></w:tbl>";
  EXPECT_THAT(Filled(body, "40"), HasSubstr("<w:r>" + kText + "40</w:t></w:r>"));
}

TEST(Bookmarks, BetweenParagraphsFillsTheNextOne) {
  EXPECT_EQ(
      Filled(Mark("0", "a") + "<w:p><w:pPr><w:jc w:val=\"center\"/></w:pPr></w:p>", "x"),
      Mark("0", "a") + "<w:p><w:pPr><w:jc w:val=\"center\"/></w:pPr><w:r>" + kText + "x</w:t></w:r></w:p>");
}

TEST(Bookmarks, InTheHeaderComeBehindThoseOfTheBody) {
  WordDocument document(
      Document("<w:p>" + Mark("5", "body") + "</w:p>", "<w:p>" + Mark("1", "head") + "</w:p>"));
  ASSERT_EQ(document.BookmarkCount(), 2);
  document.WriteBookmark(2, "页眉");
  const DocumentArchive archive(document.Bytes());
  EXPECT_THAT(archive.Find("word/header1.xml")->bytes, HasSubstr("页眉"));
}

TEST(Bookmarks, TextWithMarkupCharactersAndLineBreaks) {
  EXPECT_THAT(Filled("<w:p>" + Mark("0", "a") + "</w:p>", "A&B <1\n二\t三\x01"),
              HasSubstr("<w:r>" + kText + "A&amp;B &lt;1</w:t><w:br/>" + kText + "二</w:t><w:tab/>" + kText +
                        "三</w:t></w:r>"));
}

TEST(Bookmarks, IndexThatIsNoneChangesNothing) {
  EXPECT_THAT(Filled("<w:p>" + Mark("0", "a") + "</w:p>", "x", 2), Not(HasSubstr("<w:t")));
}

TEST(Tables, AtABookmarkStandBeforeItsEmptyParagraph) {
  WordDocument document(Document("<w:p>" + TextRun("标题") + "</w:p><w:p>" + Mark("0", "a") + "</w:p>"));
  const WordTable table = document.AddTable(1, 2, 3);
  document.SetCell(table, 2, 3, "100");
  const std::string body = BodyOf(document.Bytes());
  EXPECT_LT(body.find("标题"), body.find("<w:tbl>"));
  EXPECT_LT(body.find("<w:tbl>"), body.find("bookmarkStart"));
  EXPECT_THAT(body, HasSubstr("100"));
}

TEST(Tables, AtABookmarkWithTextStandBehindIt) {
  WordDocument document(Document("<w:p>" + TextRun("表：") + Mark("0", "a") + "</w:p>"));
  document.AddTable(1, 1, 1);
  const std::string body = BodyOf(document.Bytes());
  EXPECT_LT(body.find("bookmarkStart"), body.find("<w:tbl>"));
  EXPECT_THAT(body, testing::EndsWith("</w:tbl><w:p/>"));
}

TEST(Tables, AtTheEndStandBeforeTheSectionWithAParagraphBehind) {
  WordDocument document(Document("<w:p/>"));
  document.AddTableAtEnd(1, 1);
  EXPECT_THAT(BodyOf(document.Bytes()),
              testing::AllOf(testing::StartsWith("<w:p/><w:tbl>"), testing::EndsWith("</w:tbl><w:p/>")));
}

TEST(Tables, TakeTheTemplatesStylesAndRepeatTheirHeader) {
  const std::string styles =
      "<w:style w:type=\"table\" w:styleId=\"TableGrid\"><w:name w:val=\"Table Grid\"/></w:style>"
      "<w:style w:type=\"table\" w:customStyle=\"1\" w:styleId=\"own\"><w:name "
      "w:val=\"计算书表格\"/></w:style>"
      "<w:style w:type=\"paragraph\" w:styleId=\"h\"><w:name w:val=\"计算书表头\"/></w:style>"
      "<w:style w:type=\"paragraph\" w:styleId=\"t\"><w:name w:val=\"计算书文字\"/></w:style>"
      "<w:style w:type=\"paragraph\" w:styleId=\"n\"><w:name w:val=\"计算书数字\"/></w:style>";
  WordDocument document(Document("<w:p/>", "", styles));
  const WordTable table = document.AddTableAtEnd(2, 2);
  document.SetCell(table, 1, 1, "编号");
  document.SetCell(table, 2, 1, "1#-1层");
  document.SetCell(table, 2, 2, "0.438");
  const std::string body = BodyOf(document.Bytes());
  EXPECT_THAT(body, HasSubstr("<w:tblStyle w:val=\"own\"/>"));
  EXPECT_THAT(body, HasSubstr("<w:tblHeader/>"));
  EXPECT_THAT(body, HasSubstr("<w:pStyle w:val=\"h\"/></w:pPr><w:r>" + kText + "编号"));
  EXPECT_THAT(body, HasSubstr("<w:pStyle w:val=\"t\"/></w:pPr><w:r>" + kText + "1#-1层"));
  EXPECT_THAT(body, HasSubstr("<w:pStyle w:val=\"n\"/></w:pPr><w:r>" + kText + "0.438"));
}

TEST(Tables, WithoutAnyStyleHaveLines) {
  WordDocument document(Document("<w:p/>"));
  document.AddTableAtEnd(1, 1);
  EXPECT_THAT(BodyOf(document.Bytes()), HasSubstr("<w:insideH w:val=\"single\""));
}

TEST(Tables, CellsOutsideArePassedOver) {
  WordDocument document(Document("<w:p/>"));
  const WordTable table = document.AddTableAtEnd(1, 1);
  document.SetCell(table, 0, 1, "x");
  document.SetCell(table, 2, 1, "x");
  document.SetCell({}, 1, 1, "x");
  EXPECT_THAT(BodyOf(document.Bytes()), Not(HasSubstr("<w:r>")));
}

TEST(Document, KeepsEverythingElse) {
  const std::string source = Document("<w:p>  <w:r>\n<w:t> a </w:t></w:r><!-- note --></w:p>");
  const DocumentArchive before(source);
  const DocumentArchive after(WordDocument(source).Bytes());
  ASSERT_EQ(after.Parts().size(), before.Parts().size());
  for (std::size_t part = 0; part < before.Parts().size(); ++part) {
    EXPECT_EQ(after.Parts()[part].name, before.Parts()[part].name);
    EXPECT_TRUE(after.Parts()[part].bytes == before.Parts()[part].bytes) << before.Parts()[part].name;
  }
}

TEST(Document, WithoutATextIsRefused) {
  EXPECT_THROW(WordDocument{EmptyArchive()}, ReportError);
  DocumentArchive archive(Document("<w:p/>"));
  archive.Put("word/document.xml", "<w:document><w:body>");
  EXPECT_THROW(WordDocument{archive.Pack()}, ReportError);
}

}  // namespace
}  // namespace zwt::test
