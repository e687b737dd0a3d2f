// Conversions through LibreOffice, with a user folder of their own: a running office program is left alone.
#include "host/report/document_converter.h"

#include <atomic>
#include <system_error>

#include "host/platform/files.h"
#include "host/platform/run_program.h"
#include "host/report/report_error.h"

namespace zwt {

namespace fs = std::filesystem;

namespace {

constexpr std::chrono::seconds kAllowed{120};

/// A new folder below the system's folder for such things, gone with the object.
class WorkFolder {
 public:
  WorkFolder() {
    std::error_code error;
    const fs::path top = fs::temp_directory_path(error);
    if (error) throw ReportError("no folder for temporary files: " + error.message());
    static std::atomic<unsigned> counter{0};
    for (unsigned attempt = 0; attempt < 1000; ++attempt) {
      path_ = top / ("zwtcal-" + std::to_string(reinterpret_cast<std::uintptr_t>(&counter) & 0xffffff) + "-" +
                     std::to_string(counter++));
      if (fs::create_directory(path_, error)) return;
    }
    throw ReportError("no folder for temporary files can be made in " + top.string());
  }
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;
  ~WorkFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  const fs::path& Path() const { return path_; }

 private:
  fs::path path_;
};

/// Converts bytes from one kind of document to another, told by their endings.
std::string Convert(std::string_view bytes, const std::string& from, const std::string& to) {
  const auto office = FindProgram("soffice");
  if (!office) throw ReportError("converting a document needs LibreOffice, which is not installed");
  const WorkFolder work;
  const fs::path input = work.Path() / ("document." + from);
  const fs::path output = work.Path() / "out";
  WriteFileAtomically(input, bytes);
  const int status =
      RunProgram(*office,
                 {"--headless", "-env:UserInstallation=file://" + (work.Path() / "user").string(),
                  "--convert-to", to, "--outdir", output.string(), input.string()},
                 kAllowed);
  const fs::path converted = output / ("document." + to);
  std::error_code ignored;
  if (status != 0 || !fs::exists(converted, ignored))
    throw ReportError("LibreOffice could not convert the document");
  return ReadWholeFile(converted);
}

}  // namespace

bool IsOldDocument(std::string_view bytes) {
  return bytes.starts_with("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
}

std::string ConvertOldDocument(std::string_view bytes) {
  return Convert(bytes, "doc", "docx");
}

void ConvertToPdf(const fs::path& document, const fs::path& pdf) {
  WriteFileAtomically(pdf, Convert(ReadWholeFile(document), "docx", "pdf"));
}

}  // namespace zwt
