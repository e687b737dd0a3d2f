// Loading and unloading a module as a host does: by its entry alone. After unloading nothing of the module is
// left in the host, however carelessly the module leaves.
#pragma once

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

#include "host/platform/dynamic_library.h"
#include "host/runtime/loaded_module.h"

namespace zwt {

/// A module that cannot be loaded or unloaded; what() is one line.
class ModuleError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// File of the calculation module: beside the host library.
std::filesystem::path DefaultModuleFile();

/// One module, loaded by Load and unloaded by Unload or on destruction.
class ModuleRuntime {
 public:
  explicit ModuleRuntime(std::filesystem::path file = DefaultModuleFile());
  ModuleRuntime(const ModuleRuntime&) = delete;
  ModuleRuntime& operator=(const ModuleRuntime&) = delete;
  /// A module that must not be unloaded now stays in memory until the program ends.
  ~ModuleRuntime();

  /// Loads the library and sends it the load message; nothing where it is loaded. Throws ModuleError where
  /// the file is no module, was built for another host, is loaded already by another object, or fails on
  /// loading; then nothing of it is left.
  void Load();

  /// Sends the unload message and unloads the library; nothing where it is not loaded. Throws ModuleError,
  /// and the module stays loaded, while a command runs, a panel is open, or the module has not allowed it. A
  /// module that fails on the unload message is unloaded all the same, and ModuleError says so.
  void Unload();

  bool IsLoaded() const { return library_ != nullptr; }
  /// The module's handle, null where it is not loaded.
  HINSTANCE Handle() const { return record_.get(); }

 private:
  std::string Send(std::int32_t message);
  void OpenLibrary();
  void CloseLibrary();

  std::filesystem::path file_;
  std::unique_ptr<DynamicLibrary> library_;
  std::unique_ptr<LoadedModule> record_;
};

}  // namespace zwt
