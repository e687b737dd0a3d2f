// The scope that every panel lives in: while it is open, the module's own resources and language are in
// force.
#pragma once

#include "host/runtime/command_stack.h"
#include "host/runtime/language_switch.h"
#include "host/runtime/loaded_module.h"

/// Created on a command's stack before the panel, so that it outlives it. Scopes nest strictly: each restores
/// what it found.
class ZcUtPushResource {
 public:
  ZcUtPushResource();
  ZcUtPushResource(const ZcUtPushResource&) = delete;
  ZcUtPushResource& operator=(const ZcUtPushResource&) = delete;
  virtual ~ZcUtPushResource();

 private:
  zwt::KeepModulesLoaded keep_;
  HINSTANCE resourcesBefore_;
  ZcDtDictionary* languageBefore_;
};
