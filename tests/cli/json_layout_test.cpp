// The form of results.
#include "cli/json_layout.h"

#include <limits>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace zwt {
namespace {

using Json = nlohmann::ordered_json;

TEST(JsonLayout, WhatFitsStandsOnOneLine) {
  EXPECT_EQ(LayOutJson({{"b", {1, "二", nullptr}}, {"a", Json::object()}}),
            R"({"b": [1, "二", null], "a": {}})");
}

TEST(JsonLayout, WhatDoesNotFitIsBrokenByMembers) {
  const std::string text(100, 'x');
  EXPECT_EQ(LayOutJson({{"event", "print"}, {"text", text}, {"list", {1, 2}}}),
            "{\n  \"event\": \"print\",\n  \"text\": \"" + text + "\",\n  \"list\": [1, 2]\n}");
}

TEST(JsonLayout, TheTextReadsBackAsTheValue) {
  Json rows = Json::array();
  for (int row = 0; row < 40; ++row) {
    Json cells = Json::array();
    for (int column = 0; column < row; ++column) cells.push_back("格\"\\\n" + std::to_string(row * column));
    rows.push_back({{"cells", cells}, {"empty", Json::array()}, {"width", 0.5 * row}});
  }
  EXPECT_EQ(Json::parse(LayOutJson(rows)), rows);
}

TEST(JsonLayout, BytesThatAreNotUtf8AreReplaced) {
  EXPECT_EQ(LayOutJson("a\xff"), "\"a\uFFFD\"");
}

TEST(JsonNumber, WholeValuesAreWholeNumbers) {
  EXPECT_EQ(JsonNumber(150).dump(), "150");
  EXPECT_EQ(JsonNumber(-0.0).dump(), "0");
  EXPECT_EQ(JsonNumber(0.1).dump(), "0.1");
  EXPECT_EQ(JsonNumber(1e300).dump(), "1e+300");
}

TEST(JsonNumber, WhatIsNoNumberIsNull) {
  EXPECT_TRUE(JsonNumber(std::numeric_limits<double>::infinity()).is_null());
  EXPECT_TRUE(JsonNumber(std::numeric_limits<double>::quiet_NaN()).is_null());
}

}  // namespace
}  // namespace zwt
