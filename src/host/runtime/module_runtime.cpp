// The life of a loaded module.
#include "host/runtime/module_runtime.h"

#include <algorithm>
#include <exception>
#include <utility>
#include <vector>

#include "host/platform/paths.h"
#include "host/runtime/command_stack.h"
#include "host/runtime/language_switch.h"
#include "host/runtime/module_entry.h"

namespace zwt {

namespace {

/// Why a module must not be unloaded now; null where it may.
const char* ReasonToStay(const LoadedModule& module) {
  if (IsCommandRunning()) return "a command is running";
  if (KeepModulesLoaded::Any()) return "a panel is open";
  if (!module.unlocked) return "it has not allowed it";
  return nullptr;
}

/// Leaves a module in memory until the program ends: its code and what names it stay valid.
void KeepForever(std::unique_ptr<DynamicLibrary> library, std::unique_ptr<LoadedModule> record) {
  using Kept = std::pair<std::unique_ptr<DynamicLibrary>, std::unique_ptr<LoadedModule>>;
  static auto* kept = new std::vector<Kept>;  // never destroyed: that would unload them
  kept->emplace_back(std::move(library), std::move(record));
}

}  // namespace

std::filesystem::path DefaultModuleFile() {
  return HostDirectory() / ModuleFileName("ZwtCalModel");
}

ModuleRuntime::ModuleRuntime(std::filesystem::path file) : file_(std::move(file)) {}

ModuleRuntime::~ModuleRuntime() {
  if (!IsLoaded()) return;
  if (ReasonToStay(*record_) != nullptr) {
    KeepForever(std::move(library_), std::move(record_));
    return;
  }
  Send(AcRx::kUnloadAppMsg);
  CloseLibrary();
}

void ModuleRuntime::Load() {
  if (IsLoaded()) return;
  OpenLibrary();
  const std::string failure = Send(AcRx::kInitAppMsg);
  if (failure.empty()) return;
  CloseLibrary();
  throw ModuleError("cannot load " + file_.string() + ": " + failure);
}

void ModuleRuntime::Unload() {
  if (!IsLoaded()) return;
  if (const char* reason = ReasonToStay(*record_)) {
    throw ModuleError("cannot unload " + file_.string() + ": " + reason);
  }
  const std::string failure = Send(AcRx::kUnloadAppMsg);
  CloseLibrary();
  if (!failure.empty()) throw ModuleError("unloaded " + file_.string() + ", which failed: " + failure);
}

/// Gives what went wrong, empty if nothing did. An exception is gone when this returns: its code may be the
/// module's.
std::string ModuleRuntime::Send(std::int32_t message) {
  try {
    const std::int32_t answer = library_->FindFunction<ModuleEntry>(kModuleEntryName)(message, record_.get());
    return answer == 0 ? "" : "the module answers " + std::to_string(answer);
  } catch (const std::exception& error) {
    return std::string("the module throws: ") + error.what();
  } catch (...) {
    return "the module throws an exception without a text";
  }
}

void ModuleRuntime::OpenLibrary() {
  std::error_code ignored;
  const std::filesystem::path fullName = std::filesystem::weakly_canonical(file_, ignored);
  auto record = std::make_unique<LoadedModule>();
  record->fileName = BackslashTextFromPath(ignored ? file_ : fullName);
  const auto& others = LoadedModules();
  if (std::any_of(others.begin(), others.end(),
                  [&](const LoadedModule* other) { return other->fileName == record->fileName; })) {
    throw ModuleError("cannot load " + file_.string() + ": it is loaded already");
  }
  try {
    auto library = std::make_unique<DynamicLibrary>(file_);
    library->FindFunction<ModuleEntry>(kModuleEntryName);
    const std::int32_t version = library->FindFunction<ModuleApiVersion>(kModuleApiVersionName)();
    if (version != kHostApiVersion) {
      throw ModuleError("cannot load " + file_.string() + ": it was built for edition " +
                        std::to_string(version) + " of the host, this is " + std::to_string(kHostApiVersion));
    }
    library_ = std::move(library);
  } catch (const LibraryError& error) {
    throw ModuleError(error.what());
  }
  record_ = std::move(record);
  EnterModule(*record_);
}

/// Takes out of the host what the module should have taken out itself, then lets the code go.
void ModuleRuntime::CloseLibrary() {
  if (g_pZaecLangSwitch != nullptr &&
      library_->Holds(reinterpret_cast<const void*>(g_pZaecLangSwitch->Maker().make))) {
    g_pZaecLangSwitch->Withdraw();
  }
  CommandStack().removeIf([this](const AcEdCommand& command) {
    return library_->Holds(reinterpret_cast<const void*>(command.function));
  });
  ForgetModule(*record_);
  library_.reset();
  record_.reset();
}

}  // namespace zwt
