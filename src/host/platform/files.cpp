// Reading and replacing whole files on the system's own calls: streams do not tell a full disk from success
// until it is too late, and cannot flush to the disk.
#include "host/platform/files.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>

#ifdef _WIN32
#include <io.h>
#include <process.h>
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace zwt {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kChunk = std::size_t{1} << 16;
constexpr std::int64_t kNanosecondsPerSecond = 1'000'000'000;

FileFault::Answer& Fault() {
  static FileFault::Answer answer;
  return answer;
}

/// Why a system call failed, the same words under every locale.
std::string ReasonText(int error) {
  switch (error) {
    case ENOENT:
      return "no such file or folder";
    case EACCES:
    case EPERM:
      return "permission denied";
    case EISDIR:
      return "it is a folder";
    case ENOTDIR:
      return "a part of the path is no folder";
    case ENOSPC:
      return "the disk is full";
    case EFBIG:
      return "the file is too large";
    case ELOOP:
      return "its links lead in a circle";
    case EROFS:
      return "the disk is read-only";
    case ENAMETOOLONG:
      return "the name is too long";
    case EIO:
      return "the disk does not answer";
    default:
      return "system error " + std::to_string(error);
  }
}

#ifdef _WIN32

int OpenForReading(const fs::path& path) {
  return _wopen(path.c_str(), _O_RDONLY | _O_BINARY);
}
int OpenNew(const fs::path& path) {
  return _wopen(path.c_str(), _O_WRONLY | _O_BINARY | _O_CREAT | _O_EXCL, _S_IREAD | _S_IWRITE);
}
int OpenDevice(const fs::path& path) {
  return _wopen(path.c_str(), _O_WRONLY | _O_BINARY);
}
std::ptrdiff_t ReadSome(int file, char* to, std::size_t count) {
  return _read(file, to, static_cast<unsigned>(count));
}
std::ptrdiff_t WriteSome(int file, const char* from, std::size_t count) {
  return _write(file, from, static_cast<unsigned>(count));
}
int FlushToDisk(int file) {
  return _commit(file);
}
int CloseFile(int file) {
  return _close(file);
}
int ProcessId() {
  return _getpid();
}
bool IsWritable(const fs::path& path) {
  return _waccess(path.c_str(), 2) == 0;
}
void KeepPermissions(int, const fs::path&) {}
int RenameOver(const fs::path& from, const fs::path& to) {
  const bool done =
      MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
  errno = done ? 0 : EACCES;
  return done ? 0 : -1;
}
void FlushFolder(const fs::path&) {}

std::optional<FileState> LookAt(const fs::path& path) {
  struct _stat64 status {};
  if (_wstat64(path.c_str(), &status) != 0) return std::nullopt;
  return FileState{.modified = status.st_mtime * kNanosecondsPerSecond,
                   .size = static_cast<std::uint64_t>(status.st_size)};
}

#else

int OpenForReading(const fs::path& path) {
  return open(path.c_str(), O_RDONLY | O_CLOEXEC);
}
int OpenNew(const fs::path& path) {
  return open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
}
int OpenDevice(const fs::path& path) {
  return open(path.c_str(), O_WRONLY | O_CLOEXEC);
}
std::ptrdiff_t ReadSome(int file, char* to, std::size_t count) {
  return read(file, to, count);
}
std::ptrdiff_t WriteSome(int file, const char* from, std::size_t count) {
  return write(file, from, count);
}
int FlushToDisk(int file) {
  return fsync(file);
}
int CloseFile(int file) {
  return close(file);
}
int ProcessId() {
  return getpid();
}
bool IsWritable(const fs::path& path) {
  return access(path.c_str(), W_OK) == 0;
}

void KeepPermissions(int file, const fs::path& old) {
  struct stat status {};
  if (stat(old.c_str(), &status) != 0) return;
  // Giving a file away is the administrator's right; where it is refused, the file belongs to who wrote it.
  const bool given = fchown(file, status.st_uid, status.st_gid) == 0;
  [[maybe_unused]] const bool shared = given || fchown(file, static_cast<uid_t>(-1), status.st_gid) == 0;
  [[maybe_unused]] const int mode = fchmod(file, status.st_mode & 07777);
}

std::optional<FileState> LookAt(const fs::path& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) return std::nullopt;
  return FileState{.modified = status.st_mtim.tv_sec * kNanosecondsPerSecond + status.st_mtim.tv_nsec,
                   .size = static_cast<std::uint64_t>(status.st_size),
                   .identity = status.st_ino};
}

int RenameOver(const fs::path& from, const fs::path& to) {
  return rename(from.c_str(), to.c_str());
}

/// The new name is safe only when the folder is on the disk as well. Some disks cannot flush a folder; the
/// file is whole then too, so that a failure is none of the caller's.
void FlushFolder(const fs::path& folder) {
  const int file = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (file < 0) return;
  fsync(file);
  close(file);
}

#endif

/// An open file that is closed on every way out.
class OpenFile {
 public:
  explicit OpenFile(int file) : file_(file) {}
  ~OpenFile() {
    if (file_ >= 0) CloseFile(file_);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  int Number() const { return file_; }
  bool Close() { return CloseFile(std::exchange(file_, -1)) == 0; }

 private:
  int file_;
};

/// A file that is removed on every way out but success.
class NewFile {
 public:
  explicit NewFile(fs::path path) : path_(std::move(path)) {}
  ~NewFile() {
    std::error_code ignored;
    if (!path_.empty()) fs::remove(path_, ignored);
  }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  void Keep() { path_.clear(); }

 private:
  fs::path path_;
};

[[noreturn]] void FailToWrite(const fs::path& path, int error) {
  throw FileError("cannot write", path, ReasonText(error));
}

void AskFault(FileStep step, const fs::path& path) {
  const int error = Fault() ? Fault()(step) : 0;
  if (error != 0) FailToWrite(path, error);
}

void WriteAll(int file, std::string_view bytes, const fs::path& path) {
  while (!bytes.empty()) {
    AskFault(FileStep::Write, path);
    const std::ptrdiff_t count = WriteSome(file, bytes.data(), std::min(bytes.size(), kChunk));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) FailToWrite(path, errno);
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

/// Where a link leads to in the end, so that replacing the file leaves the link a link.
fs::path FollowLinks(fs::path path) {
  constexpr int kMostLinks = 40;
  std::error_code ignored;
  for (int i = 0; i < kMostLinks && fs::is_symlink(path, ignored); ++i) {
    path = path.parent_path() / fs::read_symlink(path, ignored);
  }
  return path;
}

/// Opens a file of a new name in a folder; its name goes to path.
int CreateBeside(const fs::path& target, fs::path& path) {
  constexpr int kMostNames = 1000;
  for (int i = 0; i < kMostNames; ++i) {
    path = target.parent_path() / (".zwt-" + std::to_string(ProcessId()) + "-" + std::to_string(i) + ".tmp");
    const int file = OpenNew(path);
    if (file >= 0 || errno != EEXIST) return file;
  }
  return -1;
}

void WriteDevice(const fs::path& path, std::string_view bytes) {
  AskFault(FileStep::Create, path);
  OpenFile file(OpenDevice(path));
  if (file.Number() < 0) FailToWrite(path, errno);
  WriteAll(file.Number(), bytes, path);
  if (!file.Close()) FailToWrite(path, errno);
}

void Replace(const fs::path& path, const fs::path& target, std::string_view bytes) {
  AskFault(FileStep::Create, path);
  fs::path besideName;
  OpenFile file(CreateBeside(target, besideName));
  if (file.Number() < 0) FailToWrite(path, errno);
  NewFile beside(besideName);
  KeepPermissions(file.Number(), target);
  WriteAll(file.Number(), bytes, path);
  AskFault(FileStep::Flush, path);
  if (FlushToDisk(file.Number()) != 0) FailToWrite(path, errno);
  if (!file.Close()) FailToWrite(path, errno);
  AskFault(FileStep::Rename, path);
  if (RenameOver(besideName, target) != 0) FailToWrite(path, errno);
  beside.Keep();
  FlushFolder(target.has_parent_path() ? target.parent_path() : fs::path("."));
}

}  // namespace

FileError::FileError(const std::string& task, const fs::path& path, const std::string& reason)
    : std::runtime_error(task + " " + path.string() + ": " + reason), path_(path) {}

std::string ReadWholeFile(const fs::path& path, std::size_t largest) {
  const OpenFile file(OpenForReading(path));
  if (file.Number() < 0) throw FileError("cannot read", path, ReasonText(errno));
  std::error_code ignored;
  const auto expected = fs::file_size(path, ignored);
  std::string bytes;
  if (!ignored && expected <= largest) bytes.reserve(expected + kChunk);
  for (;;) {
    const std::size_t used = bytes.size();
    bytes.resize(used + kChunk);
    const std::ptrdiff_t count = ReadSome(file.Number(), bytes.data() + used, kChunk);
    bytes.resize(used + static_cast<std::size_t>(std::max<std::ptrdiff_t>(count, 0)));
    if (count < 0 && errno != EINTR) throw FileError("cannot read", path, ReasonText(errno));
    if (count == 0) return bytes;
    if (bytes.size() > largest) throw FileError("cannot read", path, ReasonText(EFBIG));
  }
}

std::optional<FileState> StateOfFile(const fs::path& path) {
  return LookAt(path);
}

void WriteFileAtomically(const fs::path& path, std::string_view bytes) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (status.type() == fs::file_type::none) FailToWrite(path, error.value());
  if (fs::is_directory(status)) FailToWrite(path, EISDIR);
  if (fs::exists(status) && !fs::is_regular_file(status)) {
    WriteDevice(path, bytes);
    return;
  }
  const fs::path target = FollowLinks(path);
  // Renaming asks only for the folder's permission: a file that its owner protected must be refused by hand.
  if (fs::exists(status) && !IsWritable(target)) FailToWrite(path, EACCES);
  Replace(path, target, bytes);
}

FileFault::FileFault(Answer answer) {
  Fault() = std::move(answer);
}
FileFault::~FileFault() {
  Fault() = nullptr;
}

}  // namespace zwt
