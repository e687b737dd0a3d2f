// The module's two exports.
#include "host/runtime/module_entry.h"

#include "frame/module_life.h"

extern "C" std::int32_t acrxEntryPoint(std::int32_t message, void* appId);
extern "C" std::int32_t acrxGetApiVersion();

std::int32_t acrxEntryPoint(std::int32_t message, void* appId) {
  switch (message) {
    case AcRx::kInitAppMsg:
      zwt::OnLoad(appId);
      break;
    case AcRx::kUnloadAppMsg:
      zwt::OnUnload();
      break;
    default:  // drawings come and go and functions are called without the module
      break;
  }
  return 0;
}

std::int32_t acrxGetApiVersion() {
  return zwt::kHostApiVersion;
}
