// Keeping one dictionary for each key.
#include "host/runtime/language_switch.h"

namespace {

ZaecLanguageSwitch languageSwitch;

}  // namespace

ZcDtDictionary* g_pCurModuleLang = nullptr;
ZaecLanguageSwitch* g_pZaecLangSwitch = &languageSwitch;

ZcDtDictionary* ZaecLanguageSwitch::Lookup(const CString& key) {
  if (maker_.make == nullptr) return nullptr;
  const auto found = dictionaries_.find(key);
  if (found != dictionaries_.end()) return found->second.get();
  return dictionaries_.emplace(key, Dictionary(maker_.make(), maker_.destroy)).first->second.get();
}

void ZaecLanguageSwitch::SetMaker(ZaecDictionaryMaker maker) {
  Withdraw();
  maker_ = maker;
}

void ZaecLanguageSwitch::Withdraw() {
  for (const auto& [key, dictionary] : dictionaries_) {
    if (g_pCurModuleLang == dictionary.get()) g_pCurModuleLang = nullptr;
  }
  dictionaries_.clear();
  maker_ = {nullptr, nullptr};
}
