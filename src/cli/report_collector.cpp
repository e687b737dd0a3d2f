// Names of report files, and writing them at the end.
#include "cli/report_collector.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "host/platform/files.h"
#include "host/platform/paths.h"
#include "host/runtime/command_line.h"

namespace zwt {

ReportCollector::ReportCollector(std::filesystem::path folder, Announcement announce)
    : folder_(std::move(folder)), announce_(std::move(announce)), before_(SetReportDesk(this)) {}

ReportCollector::~ReportCollector() {
  SetReportDesk(before_);
}

void ReportCollector::WriteAll() const {
  for (const Report& report : reports_) WriteFileAtomically(report.file, report.bytes);
}

bool ReportCollector::CanWrite() {
  std::error_code ignored;
  return std::filesystem::is_directory(folder_.empty() ? "." : folder_, ignored);
}

bool ReportCollector::IsTaken(const std::filesystem::path& file) const {
  std::error_code ignored;
  return std::filesystem::exists(file, ignored) ||
         std::any_of(reports_.begin(), reports_.end(),
                     [&](const Report& report) { return report.file == file; });
}

void ReportCollector::Deliver(const CString& templatePath, const std::string& bytes) {
  const std::string name = PathFromText(templatePath).stem().string();
  std::filesystem::path file = folder_ / (name + ".docx");
  for (int number = 2; IsTaken(file); ++number)
    file = folder_ / (name + "-" + std::to_string(number) + ".docx");
  reports_.push_back({file, bytes});
  announce_(templatePath, file);
}

void ReportCollector::Fail(const std::string& reason) {
  PrintText(L"\n" + WideFromUtf8(reason));
}

}  // namespace zwt
