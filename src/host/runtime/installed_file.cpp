#include "host/runtime/installed_file.h"

#include <chrono>

#include "host/platform/paths.h"

namespace zwt {
namespace {

// The coarsest clock of a disk in use counts in steps of two seconds.
constexpr std::chrono::nanoseconds kCoarsestStep = std::chrono::seconds(2);

}  // namespace

InstalledFile::InstalledFile(const CString& path) : path_(PathFromText(path)) {}

std::string InstalledFile::Read(std::size_t largest) const {
  return ReadWholeFile(path_, largest);
}

std::optional<FileState> InstalledFile::SettledState() const {
  const std::optional<FileState> state = StateOfFile(path_);
  if (!state) return std::nullopt;
  const std::chrono::nanoseconds now = std::chrono::system_clock::now().time_since_epoch();
  if (now.count() - state->modified <= kCoarsestStep.count()) return std::nullopt;
  return state;
}

}  // namespace zwt
