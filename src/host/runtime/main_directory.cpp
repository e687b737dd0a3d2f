// Finding share/zwtcal: the host library lies below the same folder in an installation (lib/.../zwtcal) as in
// a build of the source tree (build/<preset>/lib), only at different depths.
#include "host/runtime/main_directory.h"

#include <filesystem>
#include <optional>
#include <system_error>

#include "host/platform/paths.h"

namespace zwt {

namespace {

std::optional<CString>& ChosenDirectory() {
  static std::optional<CString> chosen;
  return chosen;
}

}  // namespace

void SetMainDirectory(const CString& directory) {
  ChosenDirectory() = directory;
}

CString DefaultMainDirectory() {
  const std::filesystem::path relative = std::filesystem::path("share") / "zwtcal";
  const std::filesystem::path host = HostDirectory();
  std::filesystem::path folder = host;
  while (folder.has_relative_path()) {
    folder = folder.parent_path();
    std::error_code ignored;
    if (std::filesystem::is_directory(folder / relative, ignored))
      return TextFromPath(folder / relative) + L'\\';
  }
  // Nothing there: a name that can be shown, below which nothing will be found.
  return TextFromPath(host / relative) + L'\\';
}

}  // namespace zwt

CString GetMainDirectory() {
  const auto& chosen = zwt::ChosenDirectory();
  return chosen ? *chosen : zwt::DefaultMainDirectory();
}
