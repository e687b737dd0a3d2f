// Objects found by name and cast by their class at run time.
#include <gtest/gtest.h>

#include "host/runtime/command_stack.h"
#include "host/runtime/loaded_module.h"
#include "host/runtime/system_registry.h"

namespace {

TEST(Registry, SystemObjectsAreFoundByNameAndFitTheirClass) {
  EXPECT_NE(AcRxCast<AcRxDynamicLinker>(acrxSysRegistry()->at(L"DynamicLinker")), nullptr);
  EXPECT_NE(AcRxCast<AcEdCommandStack>(acrxSysRegistry()->at(L"ACAD_REGISTERED_COMMANDS")), nullptr);
}

TEST(Registry, FailedCastYieldsNull) {
  EXPECT_EQ(AcRxCast<AcEdCommandStack>(acrxSysRegistry()->at(L"DynamicLinker")), nullptr);
  EXPECT_EQ(AcRxCast<AcRxDynamicLinker>(acrxSysRegistry()->at(L"ACAD_REGISTERED_COMMANDS")), nullptr);
  EXPECT_EQ(AcRxCast<AcRxDynamicLinker>(nullptr), nullptr);
}

TEST(Registry, CastToTheBaseSucceeds) {
  AcRxObject* object = acrxSysRegistry()->at(L"DynamicLinker");
  EXPECT_EQ(AcRxCast<AcRxObject>(object), object);
  EXPECT_FALSE(object->isKindOf(AcRxDictionary::desc()));
}

TEST(Registry, UnknownNameGivesNull) {
  EXPECT_EQ(acrxSysRegistry()->at(L"dynamiclinker"), nullptr);
  EXPECT_EQ(acrxSysRegistry()->at(L""), nullptr);
}

TEST(Registry, ApplicationThatIsNotLoadedIsNeitherUnlockedNorRegistered) {
  zwt::LoadedModule stranger;
  auto* linker = AcRxCast<AcRxDynamicLinker>(acrxSysRegistry()->at(L"DynamicLinker"));
  EXPECT_FALSE(acrxUnlockApplication(&stranger));
  EXPECT_FALSE(linker->registerAppMDIAware(&stranger));
  EXPECT_FALSE(linker->registerAppMDIAware(nullptr));
  EXPECT_FALSE(stranger.unlocked);
  EXPECT_FALSE(stranger.registered);
}

TEST(Registry, LoadedApplicationIsUnlockedAndRegistered) {
  zwt::LoadedModule module;
  zwt::EnterModule(module);
  EXPECT_TRUE(acrxUnlockApplication(&module));
  EXPECT_TRUE(
      AcRxCast<AcRxDynamicLinker>(acrxSysRegistry()->at(L"DynamicLinker"))->registerAppMDIAware(&module));
  zwt::ForgetModule(module);
  EXPECT_TRUE(module.unlocked);
  EXPECT_TRUE(module.registered);
}

TEST(ExtensionModules, ModuleThatIsNotLoadedCannotBeInitialised) {
  zwt::LoadedModule stranger;
  AFX_EXTENSION_MODULE state;
  EXPECT_FALSE(AfxInitExtensionModule(state, &stranger));
  EXPECT_FALSE(AfxInitExtensionModule(state, nullptr));
  EXPECT_FALSE(state.bInitialized);
  EXPECT_EQ(state.hModule, nullptr);
}

TEST(ExtensionModules, LinkLastsAsLongAsItsObject) {
  zwt::LoadedModule module;
  zwt::EnterModule(module);
  AFX_EXTENSION_MODULE state;
  ASSERT_TRUE(AfxInitExtensionModule(state, &module));
  EXPECT_EQ(state.hModule, &module);
  {
    const CDynLinkLibrary link(state);
    EXPECT_EQ(zwt::LinkedModules(), std::vector<HINSTANCE>{&module});
  }
  EXPECT_TRUE(zwt::LinkedModules().empty());
  AfxTermExtensionModule(state);
  EXPECT_FALSE(state.bInitialized);
  EXPECT_EQ(state.hModule, nullptr);
  zwt::ForgetModule(module);
}

TEST(ExtensionModules, FileNameIsThatOfALoadedModule) {
  zwt::LoadedModule module{L"\\lib\\A.so"};
  EXPECT_EQ(zwt::FileNameOfModule(&module), L"");
  zwt::EnterModule(module);
  EXPECT_EQ(zwt::FileNameOfModule(&module), L"\\lib\\A.so");
  zwt::ForgetModule(module);
  EXPECT_EQ(zwt::FileNameOfModule(nullptr), L"");
}

}  // namespace
