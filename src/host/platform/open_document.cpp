// Opening documents: the desktop's own opener on its own feet, so that it outlives us and never writes into
// our output.
#include "host/platform/open_document.h"

#include <string>
#include <system_error>

#include "host/platform/files.h"

#ifdef _WIN32
#include <shellapi.h>
#include <windows.h>
#else
#include <array>
#include <cerrno>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace zwt {

namespace {

constexpr const char* kTask = "cannot open";

#ifdef _WIN32

bool StartOpener(const std::filesystem::path& document) {
  constexpr std::intptr_t kLastErrorNumber = 32;
  const HINSTANCE result = ShellExecuteW(nullptr, L"open", document.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
  return reinterpret_cast<std::intptr_t>(result) > kLastErrorNumber;
}

#else

/// The grandchild: becomes the opener, or tells why not through the pipe, which a successful start closes.
[[noreturn]] void BecomeOpener(const char* document, int failurePipe) {
  const int nothing = open("/dev/null", O_RDWR);
  dup2(nothing, STDIN_FILENO);
  dup2(nothing, STDOUT_FILENO);
  dup2(nothing, STDERR_FILENO);
  execlp("xdg-open", "xdg-open", document, static_cast<char*>(nullptr));
  const char failed = 1;
  [[maybe_unused]] const ssize_t told = write(failurePipe, &failed, 1);
  _exit(1);
}

/// Starts the opener in a session of its own. The child between us and it ends at once, so that nobody has to
/// wait for the opener's end.
bool StartOpener(const std::filesystem::path& document) {
  std::array<int, 2> failurePipe{};
  if (pipe2(failurePipe.data(), O_CLOEXEC) != 0) return false;
  const pid_t child = fork();
  if (child == 0) {
    setsid();
    if (fork() == 0) BecomeOpener(document.c_str(), failurePipe[1]);
    _exit(0);
  }
  close(failurePipe[1]);
  char failed = 0;
  const ssize_t count = child < 0 ? -1 : read(failurePipe[0], &failed, 1);
  close(failurePipe[0]);
  if (child > 0) waitpid(child, nullptr, 0);
  return count == 0;
}

#endif

}  // namespace

void OpenDocument(const std::filesystem::path& document) {
  std::error_code ignored;
  if (!std::filesystem::exists(document, ignored)) {
    throw FileError(kTask, document, "no such file or folder");
  }
  // An absolute name never looks like an option of the opener.
  if (!StartOpener(std::filesystem::absolute(document))) {
    throw FileError(kTask, document, "the system has no program that opens documents");
  }
}

}  // namespace zwt
