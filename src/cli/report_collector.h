// Reports of a run: kept until the run has come to its end, so that a run that fails leaves no document
// behind.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "host/report/word_application.h"

namespace zwt {

class ReportCollector : public ReportDesk {
 public:
  /// Hears of a report: the template's path and the file that will hold the report.
  using Announcement = std::function<void(const CString& templatePath, const std::filesystem::path& file)>;

  /// folder: where the reports go, empty for the current one.
  ReportCollector(std::filesystem::path folder, Announcement announce);
  ReportCollector(const ReportCollector&) = delete;
  ReportCollector& operator=(const ReportCollector&) = delete;
  ~ReportCollector() override;

  /// Writes the reports as new files. Throws FileError.
  void WriteAll() const;

  bool CanWrite() override;
  /// The file is named after the template; a number behind the name keeps it from replacing another.
  void Deliver(const CString& templatePath, const std::string& bytes) override;
  void Fail(const std::string& reason) override;

 private:
  struct Report {
    std::filesystem::path file;
    std::string bytes;
  };

  bool IsTaken(const std::filesystem::path& file) const;

  std::filesystem::path folder_;
  Announcement announce_;
  std::vector<Report> reports_;
  ReportDesk* before_;
};

}  // namespace zwt
