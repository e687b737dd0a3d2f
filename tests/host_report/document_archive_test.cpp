// Archives in and out.
#include "host/report/document_archive.h"

#include <gmock/gmock.h>

#include "host/report/report_error.h"
#include "host_report/document_fixture.h"

namespace zwt::test {
namespace {

TEST(DocumentArchive, KeepsPartsAndTheirOrder) {
  const DocumentArchive archive(Document("<w:p/>"));
  EXPECT_EQ(archive.Parts().front().name, "[Content_Types].xml");
  EXPECT_EQ(archive.Find("custom/kept.bin")->bytes, std::string("\0\1\2", 3));
  EXPECT_EQ(archive.Find("word/none.xml"), nullptr);
}

TEST(DocumentArchive, PacksTheSameBytesWhenever) {
  const DocumentArchive archive(Document("<w:p/>"));
  EXPECT_EQ(archive.Pack(), archive.Pack());
  EXPECT_EQ(DocumentArchive(archive.Pack()).Pack(), archive.Pack());
}

TEST(DocumentArchive, RefusesWhatIsNone) {
  EXPECT_THROW(DocumentArchive(""), ReportError);
  EXPECT_THROW(DocumentArchive("no archive at all"), ReportError);
}

TEST(DocumentArchive, EveryCutIsRefusedOrReadWithoutHarm) {
  const std::string whole = Document("<w:p/>");
  int refused = 0;
  for (std::size_t length = 0; length < whole.size(); ++length) {
    try {
      const DocumentArchive archive(std::string_view(whole).substr(0, length));
    } catch (const ReportError&) {
      ++refused;
    }
  }
  EXPECT_EQ(refused, static_cast<int>(whole.size()));
}

}  // namespace
}  // namespace zwt::test
