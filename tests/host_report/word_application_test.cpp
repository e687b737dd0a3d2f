// The writer that the module uses, on the templates of the installation.
#include "host/report/word_application.h"

#include <cstdlib>
#include <filesystem>
#include <vector>

#include <gmock/gmock.h>

#include "host/platform/files.h"
#include "host/platform/paths.h"
#include "host/report/word_document.h"
#include "host/text/number_text.h"
#include "host_report/document_fixture.h"

namespace zwt::test {
namespace {

namespace fs = std::filesystem;

const CString kHydrantTemplate = WideFromUtf8(ZWT_SOURCE_DIR) + L"\\share\\zwtcal\\Template\\ZWT-XHSJS.doc";
const CString kSupplyTemplate = WideFromUtf8(ZWT_SOURCE_DIR) + L"\\share\\zwtcal\\Template\\ZWT-GSJS-ZZ.doc";

class Desk : public ReportDesk {
 public:
  Desk() : before_(SetReportDesk(this)) {}
  ~Desk() override { SetReportDesk(before_); }
  bool CanWrite() override { return writable; }
  void Deliver(const CString& templatePath, const std::string& bytes) override {
    if (failing) throw FileError("write", "report.docx", "disk full");
    templates.push_back(templatePath);
    reports.push_back(bytes);
  }
  void Fail(const std::string& reason) override { failures.push_back(reason); }

  bool writable = true;
  bool failing = false;
  std::vector<CString> templates;
  std::vector<std::string> reports;
  std::vector<std::string> failures;

 private:
  ReportDesk* before_;
};

VARIANT Bookmark(std::int16_t index) {
  return {VT_I2, index};
}

TEST(WordApplication, StartsOnlyWhereReportsCanBeWritten) {
  ZwtWordApplication without;
  EXPECT_EQ(without.InitWordApplication(1), 0);
  Desk desk;
  ZwtWordApplication with;
  EXPECT_NE(with.InitWordApplication(1), 0);
  desk.writable = false;
  EXPECT_EQ(with.InitWordApplication(1), 0);
}

TEST(WordApplication, MissingDamagedAndShortTemplatesAreNotLoaded) {
  const Desk desk;
  ZwtWordApplication word;
  EXPECT_EQ(word.LoadTemplate(L"/none/ZWT-XHSJS.doc"), 0);
  const fs::path damaged = fs::path(testing::TempDir()) / "damaged.doc";
  WriteFileAtomically(damaged, "PK but nothing behind");
  EXPECT_EQ(word.LoadTemplate(TextFromPath(damaged)), 0);
  EXPECT_EQ(word.LoadTemplate(kSupplyTemplate, 1), 0);
  EXPECT_NE(word.LoadTemplate(kHydrantTemplate, 6), 0);
}

TEST(WordApplication, DeliversOneReportWhenItGoes) {
  Desk desk;
  {
    ZwtWordApplication word;
    ASSERT_NE(word.LoadTemplate(kHydrantTemplate, 6), 0);
    word.WriteBookMarks(Bookmark(1), L"10");
    _Table table = word.AddTable(Bookmark(5), 2, 4);
    word.SetItemText(table, 2, 1, L"1-2");
    table.ReleaseDispatch();
    word.SetItemText(table, 2, 2, L"给弃");
  }
  ASSERT_EQ(desk.reports.size(), 1U);
  EXPECT_EQ(desk.templates.front(), kHydrantTemplate);
  const std::string body = BodyOf(desk.reports.front());
  EXPECT_THAT(body, testing::HasSubstr("1-2"));
  EXPECT_THAT(body, testing::Not(testing::HasSubstr("给弃")));
}

TEST(WordApplication, NothingIsDeliveredWithoutATemplate) {
  const Desk desk;
  { const ZwtWordApplication word; }
  EXPECT_TRUE(desk.reports.empty());
}

TEST(WordApplication, FailedDeliveryIsToldNotThrown) {
  Desk desk;
  desk.failing = true;
  {
    ZwtWordApplication word;
    word.LoadTemplate(kSupplyTemplate);
  }
  ASSERT_EQ(desk.failures.size(), 1U);
  EXPECT_THAT(desk.failures.front(), testing::HasSubstr("disk full"));
}

TEST(WordApplication, HydrantTemplateHasItsSixBookmarksInOrder) {
  Desk desk;
  {
    ZwtWordApplication word;
    ASSERT_NE(word.LoadTemplate(kHydrantTemplate, 6), 0);
    for (std::int16_t index = 1; index <= 6; ++index)
      word.WriteBookMarks(Bookmark(index), L"#" + ZwtNum2Str(std::int32_t{index}));
  }
  const std::string body = BodyOf(desk.reports.front());
  std::size_t at = 0;
  for (const char* text : {"消火栓用水量", "#1", "同时使用水枪数量", "#2", "每支水枪最小流量", "#3",
                           "每根竖管最小流量", "#4", "管段计算结果", "#5", "节点计算结果", "#6"}) {
    const std::size_t found = body.find(text, at);
    ASSERT_NE(found, std::string::npos) << text;
    at = found;
  }
}

/// Writes the sample report that the check with other programs opens, which may name another template.
TEST(WordApplication, SampleReportHoldsAllItsCells) {
  Desk desk;
  {
    ZwtWordApplication word;
    const char* other = std::getenv("ZWT_HYDRANT_TEMPLATE");
    ASSERT_NE(word.LoadTemplate(other == nullptr ? kHydrantTemplate : WideFromUtf8(other), 6), 0);
    for (std::int16_t index = 1; index <= 4; ++index)
      word.WriteBookMarks(Bookmark(index), L"A&B<" + ZwtNum2Str(std::int32_t{index}));
    const _Table sections = word.AddTable(Bookmark(5), 40, 4);
    const _Table nodes = word.AddTable(Bookmark(6), 3, 3);
    for (int row = 1; row <= 40; ++row) {
      for (int column = 1; column <= 4; ++column) {
        word.SetItemText(sections, row, column, L"S" + ZwtNum2Str(row) + L"." + ZwtNum2Str(column));
        word.SetItemText(nodes, row, column, L"N" + ZwtNum2Str(row) + L"." + ZwtNum2Str(column));
      }
    }
  }
  const fs::path file = fs::path(testing::TempDir()) / "zwt-sample-report.docx";
  WriteFileAtomically(file, desk.reports.front());
  EXPECT_EQ(WordDocument(ReadBytes(file.string())).BookmarkCount(), 6);
  EXPECT_THAT(BodyOf(desk.reports.front()), testing::HasSubstr("S40.4"));
}

}  // namespace
}  // namespace zwt::test
