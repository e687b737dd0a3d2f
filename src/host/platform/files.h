// Whole files, read and replaced so that a failure never costs what was there before. No knowledge of what
// the bytes mean.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace zwt {

/// A file that could not be read or written; what() is one line with the path and the reason.
class FileError : public std::runtime_error {
 public:
  FileError(const std::string& task, const std::filesystem::path& path, const std::string& reason);

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

/// Larger files are refused, in bytes: nothing that this system reads comes near it, and a device may never
/// end.
constexpr std::size_t kLargestFile = std::size_t{1} << 30;

/// All bytes of a file or pipe. Throws FileError where it cannot be opened or read, is a folder or has more
/// than largest bytes.
std::string ReadWholeFile(const std::filesystem::path& path, std::size_t largest = kLargestFile);

/// What tells one state of a file from the next. Two writes within one step of the disk's clock may look
/// alike.
struct FileState {
  std::int64_t modified = 0;   // nanoseconds since 1970
  std::uint64_t size = 0;      // bytes
  std::uint64_t identity = 0;  // another one for a file that was put in the place of the old

  bool operator==(const FileState&) const = default;
};

/// The state of a file, in one call of the system. Nothing where there is none, or it cannot be looked at.
std::optional<FileState> StateOfFile(const std::filesystem::path& path);

/// Makes bytes the content of a file: a new file beside the old one is written and flushed to the disk, then
/// renamed over it, with the old one's permissions. Links are followed; a device or pipe is written to
/// directly. Throws FileError where that fails; then the old file is whole and no other file is left behind.
void WriteFileAtomically(const std::filesystem::path& path, std::string_view bytes);

/// The points at which writing can be made to fail on purpose.
enum class FileStep { Create, Write, Flush, Rename };

/// While it lives, every step of writing asks it first: an error number (ENOSPC, EACCES, ...) makes the step
/// fail with it, 0 lets it go on. For tests; one at a time.
class FileFault {
 public:
  using Answer = std::function<int(FileStep step)>;

  explicit FileFault(Answer answer);
  ~FileFault();
  FileFault(const FileFault&) = delete;
  FileFault& operator=(const FileFault&) = delete;
};

}  // namespace zwt
