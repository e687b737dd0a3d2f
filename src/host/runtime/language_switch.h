// The language dictionaries of modules: which one is in force, and the switch that gives each module its own.
// What a dictionary is only the module knows; here it is a pointer that the module made and the switch keeps.
#pragma once

#include <map>
#include <memory>

#include "host/text/wide_text.h"

class ZcDtDictionary;

/// How dictionaries are made and destroyed: functions of the one module that knows the class.
struct ZaecDictionaryMaker {
  ZcDtDictionary* (*make)();
  void (*destroy)(ZcDtDictionary*);
};

/// Gives every key its own dictionary and owns it.
class ZaecLanguageSwitch {
 public:
  /// The dictionary of a key: the same one on each call, empty as it was made. Null while nobody can make
  /// one.
  ZcDtDictionary* Lookup(const CString& key);

  /// From now on dictionaries are made by this maker. Those of a maker before are destroyed.
  void SetMaker(ZaecDictionaryMaker maker);
  ZaecDictionaryMaker Maker() const { return maker_; }
  /// Destroys all dictionaries and forgets the maker; for the module's way out, while its code is still
  /// there. The dictionary in force, if it is one of them, is no longer in force.
  void Withdraw();

 private:
  using Dictionary = std::unique_ptr<ZcDtDictionary, void (*)(ZcDtDictionary*)>;

  ZaecDictionaryMaker maker_ = {nullptr, nullptr};
  std::map<CString, Dictionary> dictionaries_;
};

/// The language dictionary in force; null where there is none.
extern ZcDtDictionary* g_pCurModuleLang;
/// The language switch of the installation; null where it has none.
extern ZaecLanguageSwitch* g_pZaecLangSwitch;
