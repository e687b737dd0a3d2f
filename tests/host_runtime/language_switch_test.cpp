// One dictionary for each key, owned by the switch.
#include "host/runtime/language_switch.h"

#include <gtest/gtest.h>

namespace {

int alive = 0;
int made = 0;

}  // namespace

class ZcDtDictionary {
 public:
  ZcDtDictionary() {
    ++alive;
    ++made;
  }
  ~ZcDtDictionary() { --alive; }
};

namespace {

constexpr ZaecDictionaryMaker kMaker = {[] { return new ZcDtDictionary; },
                                        [](ZcDtDictionary* dictionary) { delete dictionary; }};

TEST(LanguageSwitch, InstallationHasOne) {
  EXPECT_NE(g_pZaecLangSwitch, nullptr);
  EXPECT_EQ(g_pCurModuleLang, nullptr);
}

TEST(LanguageSwitch, EachKeyHasItsOwnDictionaryAndKeepsIt) {
  ZaecLanguageSwitch languages;
  languages.SetMaker(kMaker);
  ZcDtDictionary* first = languages.Lookup(L"zwtcalmodel");
  ZcDtDictionary* second = languages.Lookup(L"");
  EXPECT_NE(first, nullptr);
  EXPECT_NE(second, nullptr);
  EXPECT_NE(first, second);
  EXPECT_EQ(languages.Lookup(L"zwtcalmodel"), first);
  EXPECT_EQ(languages.Lookup(L""), second);
}

TEST(LanguageSwitch, WithoutAMakerItAnswersNull) {
  ZaecLanguageSwitch languages;
  EXPECT_EQ(languages.Lookup(L"zwtcalmodel"), nullptr);
}

TEST(LanguageSwitch, WithdrawingDestroysAllAndNoneIsInForceAnyMore) {
  alive = 0;
  ZaecLanguageSwitch languages;
  languages.SetMaker(kMaker);
  g_pCurModuleLang = languages.Lookup(L"a");
  languages.Lookup(L"b");
  EXPECT_EQ(alive, 2);
  languages.Withdraw();
  EXPECT_EQ(alive, 0);
  EXPECT_EQ(g_pCurModuleLang, nullptr);
  EXPECT_EQ(languages.Lookup(L"a"), nullptr);
}

TEST(LanguageSwitch, DictionaryOfAnotherOwnerStaysInForce) {
  ZcDtDictionary other;
  g_pCurModuleLang = &other;
  ZaecLanguageSwitch languages;
  languages.SetMaker(kMaker);
  languages.Lookup(L"a");
  languages.Withdraw();
  EXPECT_EQ(g_pCurModuleLang, &other);
  g_pCurModuleLang = nullptr;
}

TEST(LanguageSwitch, NextMakerStartsAnew) {
  alive = 0;
  ZaecLanguageSwitch languages;
  languages.SetMaker(kMaker);
  languages.Lookup(L"a");
  languages.SetMaker(kMaker);
  EXPECT_EQ(alive, 0);
  made = 0;
  languages.Lookup(L"a");
  EXPECT_EQ(made, 1);
}

TEST(LanguageSwitch, EndOfTheSwitchDestroysItsDictionaries) {
  alive = 0;
  {
    ZaecLanguageSwitch languages;
    languages.SetMaker(kMaker);
    languages.Lookup(L"a");
    EXPECT_EQ(alive, 1);
  }
  EXPECT_EQ(alive, 0);
}

}  // namespace
