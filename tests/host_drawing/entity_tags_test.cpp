#include "host/drawing/entity_tags.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::Pair;
using zwt::Dialect;
using zwt::EntityFacts;
using zwt::SplitTags;

constexpr std::string_view kLine =
    "  0\nLINE\n  5\n2A\n  8\nPIPE\n 10\n0\n 20\n0\n 30\n0\n 11\n1\n 21\n0\n 31\n0\n";

std::string WithData(std::string_view data) {
  return std::string(kLine) + "1001\nZWT_PIPE\n" + std::string(data);
}

bool Find(const std::string& entity, const CString& key, CString& text) {
  const std::size_t data = entity.find("ZWT_PIPE\n") + 9;
  std::string_view value;
  const bool found = zwt::FindField(std::string_view(entity).substr(data), key, {}, value);
  text = zwt::TextEncoding().Decode(value);
  return found;
}

TEST(EntityTags, FactsOfAPipe) {
  const std::string entity = WithData("1000\nKind\n1000\n0\n1001\nZWT_ATTACH\n1005\n1F\n1005\n2F\n");
  const EntityFacts facts = zwt::ReadFacts(SplitTags(entity));
  EXPECT_EQ(facts.type, zwt::EntityType::Line);
  EXPECT_EQ(facts.handle, 0x2AU);
  EXPECT_EQ(facts.layer, "PIPE");
  EXPECT_TRUE(facts.canBePipe);
  EXPECT_EQ(facts.pipeData, 9);
  EXPECT_EQ(facts.attachedTo, 0x1FU);
}

TEST(EntityTags, MeshesAreNoPipes) {
  for (const char* flags : {"16", "64", "80"}) {
    const std::string entity =
        "  0\nPOLYLINE\n 70\n" + std::string(flags) + "\n1001\nZWT_PIPE\n  0\nSEQEND\n";
    EXPECT_FALSE(zwt::ReadFacts(SplitTags(entity)).canBePipe) << flags;
  }
  EXPECT_TRUE(zwt::ReadFacts(SplitTags("  0\nPOLYLINE\n 70\n8\n")).canBePipe);
}

TEST(EntityTags, TheFirstOfARepeatedKeyCounts) {
  CString text;
  EXPECT_TRUE(Find(WithData("1000\nKh\n1000\n1\n1000\nKh\n1000\n2\n"), L"Kh", text));
  EXPECT_EQ(text, L"1");
}

TEST(EntityTags, OtherGroupsStandBetweenPairs) {
  const std::string entity = WithData(
      "1070\n5\n1000\nKh\n999\ncomment\n1040\n1.5\n1000\n2.8\n1002\n{\n1000\nTime\n1000\n9\n1002\n}"
      "\n1000\nTime\n"
      "1000\n24\n");
  CString text;
  EXPECT_TRUE(Find(entity, L"Kh", text));
  EXPECT_EQ(text, L"2.8");
  EXPECT_TRUE(Find(entity, L"Time", text));
  EXPECT_EQ(text, L"24");
}

TEST(EntityTags, AKeyMayBeWrittenWithEscapes) {
  CString text;
  EXPECT_TRUE(Find(WithData("1000\n\\U+6C34\n1000\nyes\n"), L"水", text));
  EXPECT_EQ(text, L"yes");
}

TEST(EntityTags, AnotherApplicationsTextsAreNotThePipes) {
  const std::string entity = WithData("1001\nOTHER\n1000\nKh\n1000\n9\n1001\nZWT_PIPE\n1000\nKh\n1000\n3\n");
  CString text;
  EXPECT_TRUE(Find(entity, L"Kh", text));
  EXPECT_EQ(text, L"3");
}

TEST(EntityTags, SettingAFieldReplacesItsValueAlone) {
  const std::string entity = WithData(" 1000 \nKh\n1000\n  2.8  \n1070\n5\n999\nnote\n");
  const std::string changed = zwt::WithFields(entity, {{L"Kh", L"3"}}, Dialect{});
  EXPECT_EQ(changed, WithData(" 1000 \nKh\n1000\n3\n1070\n5\n999\nnote\n"));
}

TEST(EntityTags, ANewFieldStandsAtTheEndOfItsData) {
  const std::string entity = WithData("1000\nKh\n1000\n2\n999\nnote\n1001\nOTHER\n1070\n1\n");
  const std::string changed = zwt::WithFields(entity, {{L"A", L"1"}, {L"B", L"2"}}, Dialect{});
  EXPECT_EQ(changed,
            WithData("1000\nKh\n1000\n2\n1000\nA\n1000\n1\n1000\nB\n1000\n2\n999\nnote\n1001\nOTHER\n"
                     "1070\n1\n"));
}

TEST(EntityTags, ANewFieldIsNotSwallowedByABrokenPairOrBrace) {
  for (const char* data : {"1000\nKh\n", "1002\n{\n1000\nKh\n1000\n1\n", "1000\nA\n1000\n1\n1000\nKh\n"}) {
    SCOPED_TRACE(data);
    const std::string changed = zwt::WithFields(WithData(data), {{L"Time", L"24"}, {L"Kh", L"2"}}, Dialect{});
    EXPECT_EQ(changed, WithData("1000\nKh\n1000\n2\n1000\nTime\n1000\n24\n" + std::string(data)));
    CString text;
    EXPECT_TRUE(Find(changed, L"Time", text));
    EXPECT_EQ(text, L"24");
    EXPECT_TRUE(Find(changed, L"Kh", text));
    EXPECT_EQ(text, L"2");
  }
}

TEST(EntityTags, ALineBecomesAPipe) {
  const std::string changed = zwt::WithFields(kLine, {{L"Kind", L"0"}}, Dialect{});
  EXPECT_EQ(changed, WithData("1000\nKind\n1000\n0\n"));
}

TEST(EntityTags, APolylinesDataStandsInFrontOfItsVerticesAndOfComments) {
  const std::string head = "  0\nPOLYLINE\n  8\n0\n 66\n1\n";
  const std::string rest = "999\nnote\n  0\nVERTEX\n  8\n0\n 10\n0\n 20\n0\n  0\nSEQEND\n";
  Dialect crlf;
  crlf.lineEnd = "\r\n";
  EXPECT_EQ(zwt::WithFields(head + rest, {{L"Kind", L"0"}}, crlf),
            head + "1001\r\nZWT_PIPE\r\n1000\r\nKind\r\n1000\r\n0\r\n" + rest);
}

TEST(EntityTags, TheLayerChangesOnVerticesToo) {
  const std::string entity =
      "  0\nPOLYLINE\n  8\nA\n 66\n1\n  0\nVERTEX\n  8\nA\n 10\n0\n 20\n0\n  0\nSEQEND\n  8\nB\n";
  EXPECT_EQ(
      zwt::WithLayer(entity, "NEW", Dialect{}),
      "  0\nPOLYLINE\n  8\nNEW\n 66\n1\n  0\nVERTEX\n  8\nNEW\n 10\n0\n 20\n0\n  0\nSEQEND\n  8\nNEW\n");
  EXPECT_EQ(zwt::WithLayer("  0\nTEXT\n  5\n1\n330\nF\n100\nAcDbEntity\n100\nAcDbText\n", "N", Dialect{}),
            "  0\nTEXT\n  5\n1\n330\nF\n100\nAcDbEntity\n  8\nN\n100\nAcDbText\n");
}

TEST(EntityTags, MovedEndReplacesItsNumbersAlone) {
  EXPECT_EQ(
      zwt::WithLineEnd(WithData("1000\nKind\n1000\n0\n"), false, {7.5, -2, 0}, Dialect{}),
      "  0\nLINE\n  5\n2A\n  8\nPIPE\n 10\n0\n 20\n0\n 30\n0\n 11\n7.5\n 21\n-2.0\n 31\n0.0\n1001\nZWT_PIPE\n"
      "1000\nKind\n1000\n0\n");
}

TEST(EntityTags, HeightOfAMovedEndIsAddedOnlyWhereItIsNeeded) {
  const std::string flat = "  0\nLINE\n 10\n0\n 20\n0\n 11\n1\n 21\n0\n";
  EXPECT_EQ(zwt::WithLineEnd(flat, true, {1, 2, 0}, Dialect{}),
            "  0\nLINE\n 10\n1.0\n 20\n2.0\n 11\n1\n 21\n0\n");
  EXPECT_EQ(zwt::WithLineEnd(flat, true, {1, 2, 3}, Dialect{}),
            "  0\nLINE\n 10\n1.0\n 20\n2.0\n 30\n3.0\n 11\n1\n 21\n0\n");
}

}  // namespace
