// The report writer as the module uses it: a template is loaded, bookmarks are filled by their index, tables
// are copied cell by cell. The finished report is handed to the front end when the writer goes, on every path
// on which a template was loaded.
#pragma once

#include <cstdint>
#include <memory>

#include "host/text/wide_text.h"

/// A value as the word processor's automation takes it; only whole numbers are used.
struct VARIANT {
  std::uint16_t vt = 0;
  std::int16_t iVal = 0;
};
inline constexpr std::uint16_t VT_I2 = 2;

namespace zwt {

class WordDocument;
struct WordTable;

/// Where reports go. Each front end installs one.
class ReportDesk {
 public:
  virtual ~ReportDesk() = default;

  /// Whether reports can be written where they go.
  virtual bool CanWrite() = 0;
  /// Takes a finished report: writes it as a new file, and says or shows where it is.
  virtual void Deliver(const CString& templatePath, const std::string& bytes) = 0;
  /// A report could not be finished or written; reason is one line in UTF-8.
  virtual void Fail(const std::string& reason) = 0;
};

/// Puts a desk in force and gives back the one before it; null: no reports can be written.
ReportDesk* SetReportDesk(ReportDesk* desk);

}  // namespace zwt

/// A table in the report; copies mean the same table.
class _Table {
 public:
  _Table() = default;
  explicit _Table(std::shared_ptr<zwt::WordTable> table) : table_(std::move(table)) {}

  /// Gives the table up; cells are no longer written through this object.
  void ReleaseDispatch() { table_.reset(); }
  const zwt::WordTable* Get() const { return table_.get(); }

 private:
  std::shared_ptr<zwt::WordTable> table_;
};

class ZcUtWordApplication {
 public:
  ZcUtWordApplication();
  ZcUtWordApplication(const ZcUtWordApplication&) = delete;
  ZcUtWordApplication& operator=(const ZcUtWordApplication&) = delete;
  virtual ~ZcUtWordApplication();

  /// Makes the writer ready; 0 if reports cannot be written.
  std::int32_t InitWordApplication(std::int32_t visible);
  /// The current place is the document's end from the start, since nothing else moves it.
  void GoToTheEnd() {}
  /// Writes a cell; rows and columns count from 1, cells outside the table are passed over.
  void SetItemText(const _Table& table, std::int32_t row, std::int32_t column, const CString& text);

 protected:
  std::unique_ptr<zwt::WordDocument> document_;
  CString templatePath_;
};

class ZwtWordApplication : public ZcUtWordApplication {
 public:
  /// Opens a new document on a template; 0 if it is missing, damaged, or has fewer bookmarks than the report
  /// fills.
  std::int32_t LoadTemplate(const CString& path, std::int32_t bookmarks = 0);
  void WriteBookMarks(const VARIANT& bookmark, const CString& text);
  _Table AddTable(const VARIANT& bookmark, std::int32_t rows, std::int32_t columns);
  /// At the current place, which is the document's end.
  _Table AddTable(std::int32_t rows, std::int32_t columns);
};
