// The scope of resources and language, with dictionaries that the test makes.
#include "frame/scope/push_resource.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "frame/scope/module_state.h"

class ZcDtDictionary {};

namespace {

int asked = 0;

/// A loaded module of a given file name, in a host with a language switch of its own.
class Scopes : public testing::Test {
 protected:
  void SetUp() override {
    asked = 0;
    languages_.SetMaker({[] {
                           ++asked;
                           return new ZcDtDictionary;
                         },
                         [](ZcDtDictionary* dictionary) { delete dictionary; }});
    g_pZaecLangSwitch = &languages_;
    zwt::EnterModule(module_);
    zwt::ThisModule().handle = &module_;
  }
  void TearDown() override {
    zwt::ForgetModule(module_);
    zwt::ThisModule() = {};
    g_pZaecLangSwitch = switchBefore_;
    g_pCurModuleLang = nullptr;
    AfxSetResourceHandle(nullptr);
  }

  zwt::LoadedModule module_{L"C:\\Zwt\\ZwtCalModel5.arx"};
  zwt::LoadedModule otherModule_;
  ZcDtDictionary otherLanguage_;
  ZaecLanguageSwitch languages_;
  ZaecLanguageSwitch* switchBefore_ = g_pZaecLangSwitch;
};

TEST_F(Scopes, ModulesOwnResourcesAndLanguageAreInForceInside) {
  AfxSetResourceHandle(&otherModule_);
  g_pCurModuleLang = &otherLanguage_;
  {
    const ZcUtPushResource scope;
    EXPECT_EQ(AfxGetResourceHandle(), &module_);
    EXPECT_EQ(g_pCurModuleLang, languages_.Lookup(L"zwtcalmodel"));
  }
  EXPECT_EQ(AfxGetResourceHandle(), &otherModule_);
  EXPECT_EQ(g_pCurModuleLang, &otherLanguage_);
}

TEST_F(Scopes, NestedScopesRestoreInReverseOrderToTheFirstValues) {
  AfxSetResourceHandle(&otherModule_);
  g_pCurModuleLang = &otherLanguage_;
  {
    const ZcUtPushResource outer;
    ZcDtDictionary* language = g_pCurModuleLang;
    // What a panel of another module would leave in force when it opens one of ours.
    zwt::LoadedModule third;
    ZcDtDictionary thirdLanguage;
    AfxSetResourceHandle(&third);
    g_pCurModuleLang = &thirdLanguage;
    {
      const ZcUtPushResource inner;
      EXPECT_EQ(AfxGetResourceHandle(), &module_);
      EXPECT_EQ(g_pCurModuleLang, language);
    }
    EXPECT_EQ(AfxGetResourceHandle(), &third);
    EXPECT_EQ(g_pCurModuleLang, &thirdLanguage);
  }
  EXPECT_EQ(AfxGetResourceHandle(), &otherModule_);
  EXPECT_EQ(g_pCurModuleLang, &otherLanguage_);
}

TEST_F(Scopes, ExceptionClosesTheScope) {
  AfxSetResourceHandle(&otherModule_);
  g_pCurModuleLang = &otherLanguage_;
  try {
    const ZcUtPushResource scope;
    throw std::runtime_error("a panel is left");
  } catch (const std::runtime_error&) {
    EXPECT_EQ(AfxGetResourceHandle(), &otherModule_);
    EXPECT_EQ(g_pCurModuleLang, &otherLanguage_);
  }
}

TEST_F(Scopes, SwitchIsAskedOnceForTheWholeLoad) {
  { const ZcUtPushResource first; }
  ZcDtDictionary* language = zwt::ThisModule().language;
  EXPECT_EQ(asked, 1);
  EXPECT_NE(language, nullptr);
  {
    const ZcUtPushResource second;
    EXPECT_EQ(g_pCurModuleLang, language);
  }
  EXPECT_EQ(asked, 1);
}

TEST_F(Scopes, KnownLanguageNeedsNoSwitch) {
  zwt::ThisModule().language = &otherLanguage_;
  const ZcUtPushResource scope;
  EXPECT_EQ(g_pCurModuleLang, &otherLanguage_);
  EXPECT_EQ(asked, 0);
}

TEST_F(Scopes, WithoutASwitchThereIsNoLanguageInside) {
  g_pZaecLangSwitch = nullptr;
  g_pCurModuleLang = &otherLanguage_;
  {
    const ZcUtPushResource scope;
    EXPECT_EQ(AfxGetResourceHandle(), &module_);
    EXPECT_EQ(g_pCurModuleLang, nullptr);
  }
  EXPECT_EQ(g_pCurModuleLang, &otherLanguage_);
}

TEST_F(Scopes, ModuleWithoutAKeyDoesNotAsk) {
  module_.fileName = L"ZwtCalModel.so";
  const ZcUtPushResource scope;
  EXPECT_EQ(g_pCurModuleLang, nullptr);
  EXPECT_EQ(asked, 0);
}

TEST_F(Scopes, SwitchThatFailsLeavesEverythingAsItWas) {
  languages_.SetMaker(
      {[]() -> ZcDtDictionary* { throw std::runtime_error("no memory"); }, [](ZcDtDictionary*) {}});
  AfxSetResourceHandle(&otherModule_);
  g_pCurModuleLang = &otherLanguage_;
  EXPECT_THROW(ZcUtPushResource(), std::runtime_error);
  EXPECT_EQ(AfxGetResourceHandle(), &otherModule_);
  EXPECT_EQ(g_pCurModuleLang, &otherLanguage_);
  EXPECT_FALSE(zwt::KeepModulesLoaded::Any());
}

TEST_F(Scopes, ModulesStayLoadedInside) {
  EXPECT_FALSE(zwt::KeepModulesLoaded::Any());
  {
    const ZcUtPushResource scope;
    EXPECT_TRUE(zwt::KeepModulesLoaded::Any());
  }
  EXPECT_FALSE(zwt::KeepModulesLoaded::Any());
}

}  // namespace
