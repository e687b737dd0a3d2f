// JSON from outside: what is kept, what is refused, and where.
#include "cli/json_tree.h"

#include <string>

#include <gtest/gtest.h>

namespace zwt {
namespace {

std::string Problem(const std::string& bytes) {
  try {
    ReadJson(bytes);
  } catch (const ScriptError& error) {
    return error.what();
  }
  return "";
}

std::string Repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

TEST(JsonTree, MembersKeepTheirOrder) {
  const JsonNode tree = ReadJson(R"({"z": 1, "a": "二", "m": [true, null, 2.5]})");
  ASSERT_EQ(tree.members.size(), 3U);
  EXPECT_EQ(tree.members[0].first, "z");
  EXPECT_EQ(tree.members[0].second.whole, 1);
  EXPECT_EQ(tree.members[1].first, "a");
  EXPECT_EQ(tree.members[1].second.text, "二");
  EXPECT_EQ(tree.members[2].second.items.size(), 3U);
  EXPECT_EQ(tree.members[2].second.items[2].kind, JsonNode::Kind::kFraction);
}

TEST(JsonTree, ANumberPastTheWholeOnesIsNoWholeNumber) {
  EXPECT_EQ(ReadJson("9223372036854775807").kind, JsonNode::Kind::kWhole);
  EXPECT_EQ(ReadJson("9223372036854775808").kind, JsonNode::Kind::kFraction);
  EXPECT_EQ(ReadJson("-9223372036854775808").whole, INT64_MIN);
  EXPECT_EQ(ReadJson("1e300").kind, JsonNode::Kind::kFraction);
}

TEST(JsonTree, ANumberWithoutFractionIsWholeHoweverItIsWritten) {
  EXPECT_EQ(ReadJson("2.0").kind, JsonNode::Kind::kWhole);
  EXPECT_EQ(ReadJson("2.0").whole, 2);
  EXPECT_EQ(ReadJson("1e3").whole, 1000);
  EXPECT_EQ(ReadJson("2.5").kind, JsonNode::Kind::kFraction);
}

TEST(JsonTree, BrokenTextNamesLineAndColumnInCharacters) {
  EXPECT_EQ(Problem("{\"数\": x}"), "script: not JSON (line 1, column 7)");
  EXPECT_EQ(Problem("{\n  \"a\": 1,\n  ]\n}"), "script: not JSON (line 3, column 3)");
  EXPECT_EQ(Problem(""), "script: not JSON (line 1, column 1)");
  EXPECT_EQ(Problem("{} {}"), "script: not JSON (line 1, column 4)");
  EXPECT_EQ(Problem("[1e999]"), "script: not JSON (line 1, column 6)");
}

TEST(JsonTree, BytesThatAreNotUtf8AreRefused) {
  EXPECT_EQ(Problem("[\"\xff\"]"), "script: not JSON (line 1, column 3)");
  EXPECT_EQ(Problem("[\"\\ud800\"]"), "script: not JSON (line 1, column 9)");
}

TEST(JsonTree, AByteOrderMarkInFrontIsPassedOver) {
  EXPECT_EQ(ReadJson("\xEF\xBB\xBF[1]").items.size(), 1U);
}

TEST(JsonTree, AKeyThatStandsTwiceIsRefusedWithItsPointer) {
  EXPECT_EQ(Problem(R"({"a": [{"b/c": 1, "b/c": 2}]})"), "/a/0/b~1c: the key stands twice");
}

TEST(JsonTree, TheDeepestAllowedNestingIsRead) {
  const auto depth = static_cast<std::size_t>(kMaxJsonDepth);
  EXPECT_EQ(Problem(std::string(depth, '[') + std::string(depth, ']')), "");
}

TEST(JsonTree, DeeperNestingIsRefusedWithoutReadingOn) {
  EXPECT_EQ(Problem(Repeated("[", 10'000'000)), Repeated("/0", kMaxJsonDepth) + ": nested too deeply");
  EXPECT_EQ(Problem(Repeated("{\"k\":", 100'000)), Repeated("/k", kMaxJsonDepth) + ": nested too deeply");
}

TEST(JsonTree, TooManyValuesAreRefused) {
  const std::string most = "[" + Repeated("0,", static_cast<int>(kMaxJsonValues) - 2) + "0]";
  EXPECT_EQ(Problem(most), "");
  EXPECT_EQ(Problem("[0," + most.substr(1)), "/999999: too many values");
}

TEST(JsonTree, ATextPastTheSizeLimitIsRefused) {
  EXPECT_EQ(Problem(std::string(kMaxJsonBytes, ' ')), "script: not JSON (line 1, column 33554433)");
  EXPECT_EQ(Problem(std::string(kMaxJsonBytes + 1, ' ')), "script: larger than 32 MB");
}

TEST(JsonTree, AnObjectOfVeryManyKeysIsReadInLinearTime) {
  // A map that scans for each key would need a minute for this.
  std::string bytes = "{";
  for (int i = 0; i < 200'000; ++i) bytes += (i == 0 ? "\"k" : ",\"k") + std::to_string(i) + "\":0";
  EXPECT_EQ(ReadJson(bytes + "}").members.size(), 200'000U);
}

TEST(JsonTree, PointersEscapeTheirTwoSpecialCharacters) {
  EXPECT_EQ(PointerTo("/steps/0", "a/b~c"), "/steps/0/a~1b~0c");
  EXPECT_EQ(PointerTo("", 7), "/7");
}

}  // namespace
}  // namespace zwt
