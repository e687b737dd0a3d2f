// Loading libraries by the system's own calls.
#include "host/platform/dynamic_library.h"

#include <string>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace zwt {

namespace {

#ifdef _WIN32

constexpr const char* kModuleEnding = ".dll";

std::string LastReason() {
  return "system error " + std::to_string(GetLastError());
}
void* Open(const std::filesystem::path& file) {
  return LoadLibraryW(file.c_str());
}
void* Find(void* library, const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), name));
}
void Close(void* library) {
  FreeLibrary(static_cast<HMODULE>(library));
}
void* LibraryAt(const void* address) {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     static_cast<LPCWSTR>(address), &module);
  return module;
}

#else

constexpr const char* kModuleEnding = ".so";

std::string LastReason() {
  const char* reason = dlerror();
  return reason == nullptr ? "no reason given" : reason;
}
void* Open(const std::filesystem::path& file) {
  return dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
}
void* Find(void* library, const char* name) {
  return dlsym(library, name);
}
void Close(void* library) {
  dlclose(library);
}
void* LibraryAt(const void* address) {
  Dl_info info{};
  // The name is the one that the library was loaded by, so that opening it again gives the same handle.
  if (dladdr(address, &info) == 0) return nullptr;
  void* library = dlopen(info.dli_fname, RTLD_LAZY | RTLD_NOLOAD);
  if (library != nullptr) dlclose(library);
  return library;
}

#endif

}  // namespace

// An absolute name: a bare one would be looked for in the system's folders instead of the current one.
DynamicLibrary::DynamicLibrary(const std::filesystem::path& file)
    : handle_(Open(std::filesystem::absolute(file))) {
  if (handle_ == nullptr) throw LibraryError("cannot load " + file.string() + ": " + LastReason());
}

DynamicLibrary::~DynamicLibrary() {
  Close(handle_);
}

void* DynamicLibrary::FindSymbol(const char* name) const {
  void* symbol = Find(handle_, name);
  if (symbol == nullptr) throw LibraryError(std::string("the library lacks ") + name + ": " + LastReason());
  return symbol;
}

bool DynamicLibrary::Holds(const void* address) const {
  return LibraryAt(address) == handle_;
}

std::filesystem::path ModuleFileName(const char* name) {
  return std::string(name) + kModuleEnding;
}

}  // namespace zwt
