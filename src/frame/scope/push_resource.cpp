// Opening and closing the scope.
#include "frame/scope/push_resource.h"

#include "frame/scope/module_state.h"

ZcUtPushResource::ZcUtPushResource()
    : resourcesBefore_(AfxGetResourceHandle()), languageBefore_(g_pCurModuleLang) {
  // Asked first: should it throw, nothing has been changed that nobody would restore.
  ZcDtDictionary* language = zwt::ModuleLanguage();
  AfxSetResourceHandle(zwt::ThisModule().handle);
  g_pCurModuleLang = language;
}

ZcUtPushResource::~ZcUtPushResource() {
  AfxSetResourceHandle(resourcesBefore_);
  g_pCurModuleLang = languageBefore_;
}
