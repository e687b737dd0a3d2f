// Running a program from a test: its standard streams go through files, so that nothing can wait for
// anything.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zwt::test {

/// A fresh folder that goes with its object.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "zwt-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = pattern;
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

inline std::string ReadBytes(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw std::runtime_error("cannot read " + file.string());
  return {std::istreambuf_iterator<char>(stream), {}};
}

inline void WriteBytes(const std::filesystem::path& file, const std::string& bytes) {
  std::ofstream stream(file, std::ios::binary);
  stream << bytes;
  if (!stream.flush()) throw std::runtime_error("cannot write " + file.string());
}

struct ChildResult {
  int status = -1;  // exit status; -1 where a signal ended it
  std::string output;
  std::string errors;
};

/// Runs a program to its end.
inline ChildResult RunChild(const std::string& program, const std::vector<std::string>& arguments,
                            const std::string& input = "") {
  const TemporaryFolder folder;
  const std::string in = folder.Path() / "in";
  const std::string out = folder.Path() / "out";
  const std::string err = folder.Path() / "err";
  WriteBytes(in, input);
  posix_spawn_file_actions_t streams;
  posix_spawn_file_actions_init(&streams);
  posix_spawn_file_actions_addopen(&streams, STDIN_FILENO, in.c_str(), O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&streams, STDOUT_FILENO, out.c_str(), O_WRONLY | O_CREAT, 0600);
  posix_spawn_file_actions_addopen(&streams, STDERR_FILENO, err.c_str(), O_WRONLY | O_CREAT, 0600);
  std::vector<char*> line = {const_cast<char*>(program.c_str())};
  for (const std::string& argument : arguments) line.push_back(const_cast<char*>(argument.c_str()));
  line.push_back(nullptr);
  pid_t child = 0;
  const int failure = posix_spawn(&child, program.c_str(), &streams, nullptr, line.data(), environ);
  posix_spawn_file_actions_destroy(&streams);
  if (failure != 0) throw std::runtime_error("cannot run " + program);
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadBytes(out), ReadBytes(err)};
}

}  // namespace zwt::test
