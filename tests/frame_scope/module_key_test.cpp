// The key of a module from its file name.
#include "frame/scope/module_key.h"

#include <string>

#include <gtest/gtest.h>

namespace zwt {

void PrintTo(const ModuleKey& key, std::ostream* out) {
  *out << (key.asksSwitch ? "asks for '" : "does not ask: '") << Utf8FromWide(key.text) << "'";
}

}  // namespace zwt

namespace {

using zwt::KeyOfModule;
using zwt::ModuleKey;

ModuleKey Asks(const CString& key) {
  return {key, true};
}
const ModuleKey kDoesNotAsk = {L"", false};

TEST(ModuleKeys, BaseNameIsFoldedToLowerCase) {
  EXPECT_EQ(KeyOfModule(L"\\usr\\lib\\zwtcal\\ZwtCalModel.so"), Asks(L"zwtcalmodel"));
  EXPECT_EQ(KeyOfModule(L"C:\\ZWT\\ZWTCALMODEL.ARX"), Asks(L"zwtcalmodel"));
}

TEST(ModuleKeys, DigitAtTheEndIsDeleted) {
  EXPECT_EQ(KeyOfModule(L"C:\\Zwt\\ZwtCalModel9.arx"), Asks(L"zwtcalmodel"));
  EXPECT_EQ(KeyOfModule(L"C:\\Zwt\\ZwtCalModel0.arx"), Asks(L"zwtcalmodel"));
}

TEST(ModuleKeys, NameThatEndsInTwoDigitsLosesOnlyTheLast) {
  EXPECT_EQ(KeyOfModule(L"C:\\Zwt\\ZwtCalModel20.arx"), Asks(L"zwtcalmodel2"));
}

TEST(ModuleKeys, DigitInsideTheNameStays) {
  EXPECT_EQ(KeyOfModule(L"C:\\Zwt\\Zwt2Cal.arx"), Asks(L"zwt2cal"));
}

TEST(ModuleKeys, OnlyDecimalDigitsOfTheBasicKindAreDeleted) {
  EXPECT_EQ(KeyOfModule(L"C:\\Zwt\\Cal９.arx"), Asks(L"cal９"));
}

TEST(ModuleKeys, NameThatIsOneDigitAsksForTheEmptyKey) {
  EXPECT_EQ(KeyOfModule(L"C:\\Zwt\\7.arx"), Asks(L""));
}

TEST(ModuleKeys, NameWithoutBackslashHasTheEmptyKey) {
  EXPECT_EQ(KeyOfModule(L"ZwtCalModel.so"), kDoesNotAsk);
  EXPECT_EQ(KeyOfModule(L"/usr/lib/ZwtCalModel.so"), kDoesNotAsk);
  EXPECT_EQ(KeyOfModule(L""), kDoesNotAsk);
}

TEST(ModuleKeys, BackslashAsTheFirstCharacterDoesNotCount) {
  EXPECT_EQ(KeyOfModule(L"\\ZwtCalModel.so"), kDoesNotAsk);
  EXPECT_EQ(KeyOfModule(L"a\\ZwtCalModel.so"), Asks(L"zwtcalmodel"));
}

TEST(ModuleKeys, BackslashAsTheLastCharacterHasTheEmptyKey) {
  EXPECT_EQ(KeyOfModule(L"C:\\Zwt\\"), kDoesNotAsk);
}

TEST(ModuleKeys, NameWithoutFullStopHasTheEmptyKey) {
  EXPECT_EQ(KeyOfModule(L"C:\\Zwt\\ZwtCalModel"), kDoesNotAsk);
  EXPECT_EQ(KeyOfModule(L"C:\\Zwt.d\\ZwtCalModel"), kDoesNotAsk);
}

TEST(ModuleKeys, NameThatBeginsWithAFullStopHasTheEmptyKey) {
  EXPECT_EQ(KeyOfModule(L"C:\\Zwt\\.arx"), kDoesNotAsk);
  EXPECT_EQ(KeyOfModule(L"C:\\Zwt\\.zwt.arx"), kDoesNotAsk);
}

TEST(ModuleKeys, FirstFullStopEndsTheKey) {
  EXPECT_EQ(KeyOfModule(L"C:\\Zwt\\Cal1.2.arx"), Asks(L"cal"));
}

TEST(ModuleKeys, OnlyTheFirst1023CharactersCount) {
  const CString folder = L"C:\\" + CString(1015, L'x') + L"\\";  // 1,019 characters
  EXPECT_EQ(KeyOfModule(folder + L"abc.so"), Asks(L"abc"));      // the full stop is character 1,023
  EXPECT_EQ(KeyOfModule(folder + L"abcd.so"), kDoesNotAsk);      // it is cut off
  EXPECT_EQ(KeyOfModule(L"x" + folder + L"ab1.so"), kDoesNotAsk);
  EXPECT_EQ(KeyOfModule(L"x" + folder + L"a1.so"), Asks(L"a"));
  EXPECT_EQ(KeyOfModule(L"xxx" + folder + L"a.so"), kDoesNotAsk);
  EXPECT_EQ(KeyOfModule(L"xxxx" + folder + L"a.so"), kDoesNotAsk);  // the backslash is the last that counts
}

}  // namespace
