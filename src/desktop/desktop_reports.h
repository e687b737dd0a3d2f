// Reports of the panels: written as new files beside the drawing, or into the user's documents where the
// drawing has no file, and opened with the user's word processor.
#pragma once

#include <filesystem>
#include <functional>

#include "desktop/document.h"
#include "host/report/word_application.h"

namespace zwt {

class DesktopReports : public ReportDesk {
 public:
  /// Puts itself in force for as long as it lives.
  explicit DesktopReports(const Document& document);
  DesktopReports(const DesktopReports&) = delete;
  DesktopReports& operator=(const DesktopReports&) = delete;
  ~DesktopReports() override;

  bool CanWrite() override;
  /// The file is named after the drawing and the template; a number behind the name keeps it from replacing
  /// another.
  void Deliver(const CString& templatePath, const std::string& bytes) override;
  void Fail(const std::string& reason) override;

  /// Opens a finished report; at first with the program that the user's system has for it. May throw
  /// FileError.
  std::function<void(const std::filesystem::path&)> open;

 private:
  std::filesystem::path Folder() const;
  std::filesystem::path NewFile(const std::filesystem::path& templatePath) const;

  const Document& document_;
  ReportDesk* before_;
};

}  // namespace zwt
