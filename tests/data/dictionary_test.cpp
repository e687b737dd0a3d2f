#include "data/dictionary.h"

#include <chrono>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "data/design_tables.h"
#include "data/xml_text.h"
#include "support/data_folder.h"

namespace {

using zwt::test::DataFolder;

constexpr const char* kFile = "ZwtDataTable.xml";

constexpr const char* kSmall = R"(<?xml version="1.0" encoding="UTF-8"?>
<DataTables edition="GB 1">
  <!-- a comment -->
  <Table Name="TABLE01">
    <Row Name="别墅" Ql="200～350" Kh="2.3"/>
  </Table>
  <Table Name="TABLE02">
    <Group Name="空组"/>
    <Group Name="宿舍">
      <Row Name="Ⅰ类" L="150～200"/>
      <Row Name="Ⅱ类"/>
    </Group>
    <Row Name="书店" L="3～6"/>
  </Table>
  <Table Name="TABLE06">
    <Group Name="东北"><Row Name="吉林"/><Group Name="辽宁"><Row Name="大部"/></Group></Group>
  </Table>
  <Table Name="TABLE08">
    <Table Name="Class01"><Row M="100" Kh="5.12"/></Table>
    <Table Name="Class03"/>
  </Table>
</DataTables>
)";

ZcDtDictionary Read(std::string_view bytes) {
  ZcDtDictionary dictionary(nullptr, nullptr);
  dictionary.ReadFromBytes(bytes);
  return dictionary;
}

CString FailureOf(std::string_view bytes) {
  ZcDtDictionary dictionary = Read(kSmall);
  EXPECT_FALSE(dictionary.ReadFromBytes(bytes));
  EXPECT_EQ(dictionary.Tables().GetCount(), 0) << "a dictionary that could not be read is empty";
  return dictionary.Failure();
}

TEST(DictionaryTest, NewDictionaryIsEmpty) {
  const ZcDtDictionary dictionary(nullptr, nullptr);
  EXPECT_EQ(dictionary.FindItem(L"TABLE01"), nullptr);
  EXPECT_EQ(dictionary.Tables().GetCount(), 0);
  EXPECT_EQ(dictionary.Edition(), L"");
}

TEST(DictionaryTest, KindCodesTellLeavesFromGroupsAlsoWhenTheyAreEmpty) {
  const ZcDtDictionary dictionary = Read(kSmall);
  const ZcDtDictItem& table = zwt::FindTable(dictionary, L"TABLE02");
  EXPECT_EQ(table.GetKindCode(), 3);
  ASSERT_EQ(table.GetCount(), 3);
  EXPECT_EQ(table.GetAt(0)->GetKindCode(), 4);
  EXPECT_EQ(table.GetAt(0)->GetCount(), 0);
  EXPECT_EQ(table.GetAt(1)->GetKindCode(), 4);
  EXPECT_EQ(table.GetAt(2)->GetKindCode(), 5);
  EXPECT_EQ(table.GetAt(2)->GetCount(), 0);
}

TEST(DictionaryTest, ChildrenKeepTheOrderOfTheFile) {
  const ZcDtDictionary dictionary = Read(kSmall);
  const ZcDtDictItem* const group = zwt::FindTable(dictionary, L"TABLE02").GetAt(1);
  EXPECT_EQ(group->GetName(), L"宿舍");
  EXPECT_EQ(group->GetAt(0)->GetName(), L"Ⅰ类");
  EXPECT_EQ(group->GetAt(1)->GetName(), L"Ⅱ类");
  EXPECT_EQ(group->GetAt(2), nullptr);
  EXPECT_EQ(group->GetAt(-1), nullptr);
}

TEST(DictionaryTest, GroupsMayHoldGroups) {
  const ZcDtDictionary dictionary = Read(kSmall);
  const ZcDtDictItem* const region = zwt::FindTable(dictionary, L"TABLE06").GetAt(0);
  EXPECT_EQ(region->GetAt(0)->GetKindCode(), 5);
  EXPECT_EQ(region->GetAt(1)->GetKindCode(), 4);
  EXPECT_EQ(region->GetAt(1)->GetAt(0)->GetName(), L"大部");
}

TEST(DictionaryTest, ChildTablesAreFoundThroughTheirTable) {
  const ZcDtDictionary dictionary = Read(kSmall);
  const ZcDtDictItem* const table = dictionary.FindItem(L"TABLE08");
  ASSERT_NE(table, nullptr);
  ASSERT_NE(table->FindItem(L"Class01"), nullptr);
  EXPECT_EQ(table->FindItem(L"Class01")->GetAt(0)->GetAttributeValue(L"M"), L"100");
  EXPECT_EQ(table->FindItem(L"Class02"), nullptr);
  EXPECT_EQ(table->FindItem(L"Class03")->GetCount(), 0);
  EXPECT_EQ(dictionary.FindItem(L"Class01"), nullptr);
}

TEST(DictionaryTest, AttributesReadAsTextAndAsNumber) {
  const ZcDtDictionary dictionary = Read(kSmall);
  const ZcDtDictItem* const row = zwt::FindTable(dictionary, L"TABLE01").GetAt(0);
  EXPECT_EQ(row->GetAttributeValue(L"Ql"), L"200～350");
  EXPECT_EQ(row->GetAttributeDoubleValue(L"Kh"), 2.3);
  EXPECT_EQ(row->GetAttributeDoubleValue(L"Ql"), 200);
}

TEST(DictionaryTest, MissingKeyIsEmptyTextAndZero) {
  const ZcDtDictionary dictionary = Read(kSmall);
  const ZcDtDictItem* const row = zwt::FindTable(dictionary, L"TABLE01").GetAt(0);
  EXPECT_EQ(row->GetAttributeValue(L"WareSet"), L"");
  EXPECT_EQ(row->GetAttributeDoubleValue(L"WareSet"), 0);
  EXPECT_EQ(row->GetAttributeValue(L"Name"), L"") << "the name is no attribute";
}

TEST(DictionaryTest, MissingTableReadsAsAnEmptyOne) {
  const ZcDtDictionary dictionary = Read(kSmall);
  EXPECT_EQ(dictionary.FindItem(L"TABLE99"), nullptr);
  EXPECT_EQ(zwt::FindTable(dictionary, L"TABLE99").GetCount(), 0);
  EXPECT_EQ(zwt::FindTable(dictionary, L"TABLE99").GetKindCode(), 3);
}

TEST(DictionaryTest, OfARepeatedTableAndKeyTheFirstCounts) {
  const ZcDtDictionary dictionary =
      Read("<DataTables><Table Name='A'><Row L='1' L='2'/></Table><Table Name='A'/></DataTables>");
  EXPECT_EQ(zwt::FindTable(dictionary, L"A").GetAt(0)->GetAttributeValue(L"L"), L"1");
}

TEST(DictionaryTest, ByteOrderMarkIsPassedOver) {
  EXPECT_EQ(Read(std::string("\xEF\xBB\xBF") + kSmall).Edition(), L"GB 1");
}

TEST(DictionaryTest, SecondReadingReplacesTheFirst) {
  ZcDtDictionary dictionary = Read(kSmall);
  EXPECT_TRUE(dictionary.ReadFromBytes("<DataTables><Table Name='B'/></DataTables>"));
  EXPECT_EQ(dictionary.Tables().GetCount(), 1);
  EXPECT_EQ(dictionary.Edition(), L"");
}

TEST(BrokenDictionaryTest, UnknownElementsAreNamedWithTheirLine) {
  EXPECT_EQ(FailureOf("<DataTables>\n<Table Name='A'>\n<Rwo/></Table></DataTables>"),
            L"line 3: expected Table, Group or Row, found element Rwo");
  EXPECT_EQ(FailureOf("<DataTables>\n<Row/></DataTables>"), L"line 2: expected Table, found element Row");
  EXPECT_EQ(FailureOf("<Materials/>"), L"line 1: expected DataTables, found element Materials");
  EXPECT_EQ(FailureOf("<DataTables/>\n<DataTables/>"),
            L"line 2: expected DataTables, found element DataTables");
}

TEST(BrokenDictionaryTest, KindsOutOfTheirPlaceAreRefused) {
  EXPECT_EQ(FailureOf("<DataTables><Table><Row><Row/></Row></Table></DataTables>"),
            L"line 1: expected nothing inside a Row, found element Row");
  EXPECT_EQ(FailureOf("<DataTables><Table><Group><Table/></Group></Table></DataTables>"),
            L"line 1: expected Group or Row, found element Table");
  EXPECT_EQ(FailureOf("<DataTables><Table>stray</Table></DataTables>"),
            L"line 1: expected Table, Group or Row, found text");
}

TEST(BrokenDictionaryTest, FileCutAnywhereIsRefusedWithoutHarm) {
  const std::string whole = kSmall;
  const std::size_t end = whole.rfind('>');
  for (std::size_t length = 0; length < end; ++length) {
    ZcDtDictionary dictionary(nullptr, nullptr);
    ASSERT_FALSE(dictionary.ReadFromBytes(whole.substr(0, length))) << length;
    ASSERT_NE(dictionary.Failure(), L"") << length;
  }
}

TEST(BrokenDictionaryTest, OtherEncodingsAreRefused) {
  EXPECT_EQ(FailureOf("<DataTables><Table Name='\xB8\xF8\xCB\xAE'/></DataTables>"), L"expected UTF-8");
  std::string utf16 = "\xFF\xFE";
  for (const char c : std::string("<DataTables/>")) utf16.append({c, '\0'});
  EXPECT_EQ(FailureOf(utf16), L"expected UTF-8");
}

TEST(BrokenDictionaryTest, NestingIsBounded) {
  std::string deep = "<DataTables>";
  for (int i = 0; i < 200'000; ++i) deep += "<Table>";
  EXPECT_NE(FailureOf(deep), L"");
  for (int i = 0; i < 200'000; ++i) deep += "</Table>";
  EXPECT_EQ(FailureOf(deep + "</DataTables>"), L"line 1: expected no deeper nesting, found element Table");
}

TEST(DictionaryFileTest, EitherSeparatorNamesTheFile) {
  const DataFolder folder;
  folder.Write(kFile, kSmall);
  ZcDtDictionary dictionary(nullptr, nullptr);
  EXPECT_TRUE(dictionary.ReadFromXML(folder.Text() + L"\\Common2\\ZwtDataTable.xml"));
  EXPECT_TRUE(dictionary.ReadFromXML(folder.Text() + L"/Common2/ZwtDataTable.xml"));
}

TEST(DictionaryFileTest, MainDirectoryWithoutSeparatorIsNotRepaired) {
  const DataFolder folder;
  folder.Write(kFile, kSmall);
  ZcDtDictionary dictionary(nullptr, nullptr);
  EXPECT_TRUE(zwt::ReadDesignTables(dictionary));
  zwt::SetMainDirectory(folder.Text());
  EXPECT_FALSE(zwt::ReadDesignTables(dictionary));
}

TEST(DictionaryFileTest, EveryReadingSeesTheFileAsItIs) {
  const DataFolder folder;
  ZcDtDictionary dictionary(nullptr, nullptr);
  folder.Write(kFile, "<DataTables edition='1'/>");
  EXPECT_TRUE(zwt::ReadDesignTables(dictionary));
  EXPECT_EQ(dictionary.Edition(), L"1");
  folder.Write(kFile, "<DataTables edition='2'/>");
  EXPECT_TRUE(zwt::ReadDesignTables(dictionary));
  EXPECT_EQ(dictionary.Edition(), L"2");
}

TEST(DictionaryFileTest, AbsentFileAndFolderCannotBeRead) {
  const DataFolder folder;
  ZcDtDictionary dictionary(nullptr, nullptr);
  EXPECT_FALSE(zwt::ReadDesignTables(dictionary));
  EXPECT_NE(dictionary.Failure(), L"");
  std::filesystem::create_directory(folder.File(kFile));
  EXPECT_FALSE(zwt::ReadDesignTables(dictionary));
  EXPECT_FALSE(dictionary.ReadFromXML(L""));
}

TEST(DictionaryFileTest, HundredMegabytesOfNestedElementsAreRefusedUnread) {
  const DataFolder folder;
  {
    std::ofstream file(folder.File(kFile), std::ios::binary);
    std::string block;
    for (int i = 0; i < 100'000; ++i) block += "<Table>";
    for (int i = 0; i < 150; ++i) file << block;
  }
  ASSERT_GT(std::filesystem::file_size(folder.File(kFile)), 100'000'000U);
  ZcDtDictionary dictionary(nullptr, nullptr);
  EXPECT_FALSE(zwt::ReadDesignTables(dictionary));
}

TEST(DictionaryFileTest, LargestFileIsRefusedByItsNestingAlone) {
  const DataFolder folder;
  std::string deep = "<DataTables>";
  while (deep.size() < zwt::kLargestDataFile - 10) deep += "<Table>";
  folder.Write(kFile, deep);
  ZcDtDictionary dictionary(nullptr, nullptr);
  EXPECT_FALSE(zwt::ReadDesignTables(dictionary));
}

}  // namespace
