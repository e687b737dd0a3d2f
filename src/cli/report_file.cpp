// Names that a report may have, and what keeps it from being written.
#include "cli/report_file.h"

#include <system_error>
#include <utility>

#include "cli/verbs.h"
#include "host/platform/files.h"
#include "host/report/document_converter.h"
#include "host/report/report_error.h"

namespace zwt {

namespace fs = std::filesystem;

namespace {

void RequireFree(const fs::path& file) {
  std::error_code ignored;
  if (fs::exists(fs::symlink_status(file, ignored)))
    throw ArgumentError("--report: " + file.string() + " is there already; a report never replaces a file");
}

}  // namespace

ReportFile::ReportFile(fs::path file, bool withPdf) : file_(std::move(file)), withPdf_(withPdf) {
  std::error_code ignored;
  if (file_.extension() != ".docx")
    throw ArgumentError("--report " + file_.string() + ": a name that ends in .docx is expected");
  const fs::path folder = file_.parent_path();
  if (!folder.empty() && !fs::is_directory(folder, ignored))
    throw ArgumentError("--report: no folder " + folder.string());
  RequireFree(file_);
  if (withPdf_) RequireFree(Pdf());
  before_ = SetReportDesk(this);
}

ReportFile::~ReportFile() {
  SetReportDesk(before_);
}

fs::path ReportFile::Pdf() const {
  return fs::path(file_).replace_extension(".pdf");
}

std::string ReportFile::Write(const std::string& printed) const {
  if (bytes_.empty()) throw ArgumentError("--report: " + (failure_.empty() ? printed : failure_));
  RequireFree(file_);
  try {
    WriteFileAtomically(file_, bytes_);
    if (!withPdf_) return file_.string() + '\n';
    ConvertToPdf(file_, Pdf());
    return file_.string() + '\n' + Pdf().string() + '\n';
  } catch (const FileError& error) {
    throw ArgumentError(std::string("--report: ") + error.what());
  } catch (const ReportError& error) {
    throw ArgumentError(std::string("--pdf: ") + error.what() + "; the report itself is " + file_.string());
  }
}

void ReportFile::Deliver(const CString&, const std::string& bytes) {
  bytes_ = bytes;
}

void ReportFile::Fail(const std::string& reason) {
  failure_ = reason;
}

}  // namespace zwt
