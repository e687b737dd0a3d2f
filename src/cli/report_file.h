// The report of one calculation under the name that the user gave it. A file that stands there already is
// never replaced.
#pragma once

#include <filesystem>
#include <string>

#include "host/report/word_application.h"

namespace zwt {

class ReportFile : public ReportDesk {
 public:
  /// Takes reports from here on. Throws ArgumentError where the file, or the PDF beside it if it is wanted,
  /// is there already, where its folder is not, and for a name that does not end in .docx.
  ReportFile(std::filesystem::path file, bool withPdf);
  ReportFile(const ReportFile&) = delete;
  ReportFile& operator=(const ReportFile&) = delete;
  ~ReportFile() override;

  /// Writes the report, and the PDF if it is wanted. Gives the names of the files with line feeds behind
  /// them. Throws ArgumentError where nothing has been reported, a file cannot be written, or the PDF cannot
  /// be made; a report that was written stays. printed: the last words of the command.
  std::string Write(const std::string& printed) const;

  bool CanWrite() override { return true; }
  void Deliver(const CString& templatePath, const std::string& bytes) override;
  void Fail(const std::string& reason) override;

 private:
  std::filesystem::path Pdf() const;

  std::filesystem::path file_;
  bool withPdf_;
  std::string bytes_;
  std::string failure_;
  ReportDesk* before_;
};

}  // namespace zwt
