// A library loaded while the program runs: loaded, asked for its symbols, unloaded. Whether it may go is for
// the caller to know.
#pragma once

#include <filesystem>
#include <stdexcept>

namespace zwt {

/// A library that cannot be loaded or lacks a symbol; what() is one line with the reason.
class LibraryError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Loaded for as long as this object lives.
class DynamicLibrary {
 public:
  /// Throws LibraryError where the file is no library or needs what is not there.
  explicit DynamicLibrary(const std::filesystem::path& file);
  ~DynamicLibrary();
  DynamicLibrary(const DynamicLibrary&) = delete;
  DynamicLibrary& operator=(const DynamicLibrary&) = delete;

  /// An exported function. Throws LibraryError where the library has none of that name.
  template <typename Function>
  Function* FindFunction(const char* name) const {
    return reinterpret_cast<Function*>(FindSymbol(name));
  }

  /// Whether a function or constant lies in this library.
  bool Holds(const void* address) const;

 private:
  void* FindSymbol(const char* name) const;

  void* handle_;
};

/// Name of a loadable module's file: no "lib" before it, the system's own ending behind it.
std::filesystem::path ModuleFileName(const char* name);

}  // namespace zwt
