// What the module does when the host loads and unloads it.
#pragma once

namespace zwt {

/// Makes the module known to the framework and the host and registers its commands and panels. appId is the
/// application id that came with the load message.
void OnLoad(void* appId);

/// Takes out of the host everything that OnLoad put there.
void OnUnload();

}  // namespace zwt
