// Running programs: spawn and wait on POSIX systems, CreateProcess on Windows.
#include "host/platform/run_program.h"

#include <csignal>
#include <cstdlib>
#include <system_error>

#ifdef _WIN32
#include <windows.h>
#else
#include <thread>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#endif

namespace zwt {

namespace fs = std::filesystem;

#ifdef _WIN32

std::optional<fs::path> FindProgram(const std::string& name) {
  wchar_t found[MAX_PATH];
  const std::wstring wide(name.begin(), name.end());
  const DWORD length = SearchPathW(nullptr, wide.c_str(), L".exe", MAX_PATH, found, nullptr);
  if (length == 0 || length >= MAX_PATH) return std::nullopt;
  return fs::path(found);
}

int RunProgram(const fs::path& program, const std::vector<std::string>& arguments,
               std::chrono::seconds allowed) {
  std::wstring line = L"\"" + program.wstring() + L"\"";
  for (const std::string& argument : arguments) {
    line += L" \"" + fs::path(std::u8string(argument.begin(), argument.end())).wstring() + L"\"";
  }
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr, nullptr,
                      &start, &process)) {
    return -1;
  }
  DWORD status = static_cast<DWORD>(-1);
  const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(allowed).count();
  if (WaitForSingleObject(process.hProcess, static_cast<DWORD>(milliseconds)) == WAIT_OBJECT_0) {
    GetExitCodeProcess(process.hProcess, &status);
  } else {
    TerminateProcess(process.hProcess, 1);
  }
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return static_cast<int>(status);
}

#else

namespace {

bool IsProgram(const fs::path& path) {
  std::error_code ignored;
  return fs::is_regular_file(path, ignored) && access(path.c_str(), X_OK) == 0;
}

/// Starts a program in a process group of its own, silent; -1 on failure.
pid_t Start(const fs::path& program, const std::vector<std::string>& arguments) {
  std::vector<std::string> texts{program.string()};
  texts.insert(texts.end(), arguments.begin(), arguments.end());
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawnattr_t attributes;
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
  pid_t child = -1;
  if (posix_spawn(&child, program.c_str(), &actions, &attributes, pointers.data(), environ) != 0) child = -1;
  posix_spawnattr_destroy(&attributes);
  posix_spawn_file_actions_destroy(&actions);
  return child;
}

}  // namespace

std::optional<fs::path> FindProgram(const std::string& name) {
  const char* searchPath = std::getenv("PATH");
  std::string folders = searchPath == nullptr ? "/usr/local/bin:/usr/bin:/bin" : searchPath;
  for (std::size_t begin = 0; begin <= folders.size();) {
    const std::size_t end = std::min(folders.find(':', begin), folders.size());
    const fs::path candidate = fs::path(folders.substr(begin, end - begin)) / name;
    if (IsProgram(candidate)) return candidate;
    begin = end + 1;
  }
  return std::nullopt;
}

int RunProgram(const fs::path& program, const std::vector<std::string>& arguments,
               std::chrono::seconds allowed) {
  const pid_t child = Start(program, arguments);
  if (child < 0) return -1;
  const auto deadline = std::chrono::steady_clock::now() + allowed;
  int status = 0;
  while (true) {
    const pid_t ended = waitpid(child, &status, WNOHANG);
    if (ended == child) return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    if (ended < 0) return -1;
    if (std::chrono::steady_clock::now() >= deadline) break;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  kill(-child, SIGKILL);
  waitpid(child, &status, 0);
  return -1;
}

#endif

}  // namespace zwt
