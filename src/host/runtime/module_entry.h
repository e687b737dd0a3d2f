// What a module and its host agree on: the two functions that a module exports, and the messages it is sent.
#pragma once

#include <cstdint>

namespace AcRx {

enum AppMsgCode : std::int32_t {
  kInitAppMsg = 1,
  kUnloadAppMsg = 2,
  kLoadDwgMsg = 3,
  kUnloadDwgMsg = 4,
  kInvkSubrMsg = 5,
};

}  // namespace AcRx

namespace zwt {

/// Edition of everything that a module includes from the host. A module of another edition is not loaded.
inline constexpr std::int32_t kHostApiVersion = 1;

/// Takes a message of the host; appId names the application in calls back to the host. Gives 0.
using ModuleEntry = std::int32_t(std::int32_t message, void* appId);
inline constexpr const char* kModuleEntryName = "acrxEntryPoint";

/// The edition that the module was built for.
using ModuleApiVersion = std::int32_t();
inline constexpr const char* kModuleApiVersionName = "acrxGetApiVersion";

}  // namespace zwt
