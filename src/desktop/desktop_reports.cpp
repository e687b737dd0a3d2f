// Where reports go.
#include "desktop/desktop_reports.h"

#include <QStandardPaths>
#include <system_error>

#include "desktop/qt_text.h"
#include "host/dialog/presenter.h"
#include "host/platform/files.h"
#include "host/platform/open_document.h"
#include "host/platform/paths.h"
#include "host/runtime/command_line.h"

namespace zwt {

DesktopReports::DesktopReports(const Document& document)
    : open(&OpenDocument), document_(document), before_(SetReportDesk(this)) {}

DesktopReports::~DesktopReports() {
  SetReportDesk(before_);
}

std::filesystem::path DesktopReports::Folder() const {
  if (document_.HasFile()) return document_.Path().parent_path();
  return PathFromText(FromQt(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)));
}

bool DesktopReports::CanWrite() {
  std::error_code ignored;
  std::filesystem::create_directories(Folder(), ignored);
  return std::filesystem::is_directory(Folder(), ignored);
}

std::filesystem::path DesktopReports::NewFile(const std::filesystem::path& templatePath) const {
  std::filesystem::path name = templatePath.stem();
  if (document_.HasFile()) name = document_.Path().stem() += "-" + name.string();
  std::filesystem::path file = Folder() / (name.string() + ".docx");
  std::error_code ignored;
  for (int number = 2; std::filesystem::exists(file, ignored); ++number) {
    file = Folder() / (name.string() + "-" + std::to_string(number) + ".docx");
  }
  return file;
}

void DesktopReports::Deliver(const CString& templatePath, const std::string& bytes) {
  const std::filesystem::path file = NewFile(PathFromText(templatePath));
  try {
    WriteFileAtomically(file, bytes);
  } catch (const FileError& error) {
    Fail(error.what());
    return;
  }
  PrintText(L"\n计算书已写入 " + TextFromPath(file));
  try {
    open(file);
  } catch (const FileError& error) {
    AfxMessageBox(L"计算书已写入 " + TextFromPath(file) + L"\n但未能打开：" + WideFromUtf8(error.what()));
  }
}

void DesktopReports::Fail(const std::string& reason) {
  AfxMessageBox(L"计算书未能完成：" + WideFromUtf8(reason));
}

}  // namespace zwt
