// The report writer on the document engine.
#include "host/report/word_application.h"

#include <stdexcept>
#include <utility>

#include "host/platform/files.h"
#include "host/platform/paths.h"
#include "host/report/document_converter.h"
#include "host/report/report_error.h"
#include "host/report/word_document.h"

namespace zwt {

namespace {

ReportDesk*& CurrentDesk() {
  static ReportDesk* desk = nullptr;
  return desk;
}

std::unique_ptr<WordDocument> OpenTemplate(const CString& path) {
  std::string bytes = ReadWholeFile(PathFromText(path));
  if (IsOldDocument(bytes)) bytes = ConvertOldDocument(bytes);
  return std::make_unique<WordDocument>(bytes);
}

}  // namespace

ReportDesk* SetReportDesk(ReportDesk* desk) {
  return std::exchange(CurrentDesk(), desk);
}

}  // namespace zwt

ZcUtWordApplication::ZcUtWordApplication() = default;

ZcUtWordApplication::~ZcUtWordApplication() {
  zwt::ReportDesk* desk = zwt::CurrentDesk();
  if (!document_ || desk == nullptr) return;
  try {
    desk->Deliver(templatePath_, document_->Bytes());
  } catch (const std::runtime_error& error) {
    desk->Fail(error.what());
  }
}

std::int32_t ZcUtWordApplication::InitWordApplication(std::int32_t) {
  zwt::ReportDesk* desk = zwt::CurrentDesk();
  return desk != nullptr && desk->CanWrite() ? 1 : 0;
}

void ZcUtWordApplication::SetItemText(const _Table& table, std::int32_t row, std::int32_t column,
                                      const CString& text) {
  if (document_ && table.Get() != nullptr)
    document_->SetCell(*table.Get(), row, column, zwt::Utf8FromWide(text));
}

std::int32_t ZwtWordApplication::LoadTemplate(const CString& path, std::int32_t bookmarks) {
  try {
    auto opened = zwt::OpenTemplate(path);
    if (opened->BookmarkCount() < bookmarks) return 0;
    document_ = std::move(opened);
    templatePath_ = path;
    return 1;
  } catch (const zwt::ReportError&) {
    return 0;
  } catch (const zwt::FileError&) {
    return 0;
  }
}

void ZwtWordApplication::WriteBookMarks(const VARIANT& bookmark, const CString& text) {
  if (document_) document_->WriteBookmark(bookmark.iVal, zwt::Utf8FromWide(text));
}

_Table ZwtWordApplication::AddTable(const VARIANT& bookmark, std::int32_t rows, std::int32_t columns) {
  if (!document_) return {};
  return _Table(std::make_shared<zwt::WordTable>(document_->AddTable(bookmark.iVal, rows, columns)));
}

_Table ZwtWordApplication::AddTable(std::int32_t rows, std::int32_t columns) {
  if (!document_) return {};
  return _Table(std::make_shared<zwt::WordTable>(document_->AddTableAtEnd(rows, columns)));
}
