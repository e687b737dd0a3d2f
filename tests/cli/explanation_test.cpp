// Results that tell how they were computed, from the command line and in scripts.
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "cli/program_call.h"

namespace zwt {
namespace {

using Json = nlohmann::ordered_json;
using test::Call;
using test::Failure;
using test::Outcome;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

const char* const kDwelling = ZWT_SOURCE_DIR "/examples/dwelling-18-storeys.dxf";
const char* const kStack = ZWT_SOURCE_DIR "/examples/drainage-stack.dxf";

std::string Script(const std::string& explain) {
  return R"({"drawing": ")" + std::string(kDwelling) + R"(", )" + explain +
         R"("steps": [{"command": "ZWTGSJS", "select": "all", "panel": [{"click": "计    算"}, {"read": [2012, 2147]}]}]})";
}

/// The grid that a script's first read event holds.
Json ReadGrid(const std::string& output) {
  const Json result = Json::parse(output);
  for (const Json& event : result["events"]) {
    if (event["event"] == "read") return event["values"]["2012"];
  }
  return nullptr;
}

TEST(Explanation, StandsBehindTheTableRowByRow) {
  const Outcome outcome = Call({"calc", "ZWTGSJS", kDwelling, "--explain"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(
      outcome.output,
      HasSubstr("\n1#-18层\n  最大用水时平均出流概率 U0：100·q0·m·Kh / (0.2·Ng·T·3600) = 100 × 250 × 3.5 × "
                "2.5 / (0.2 × 4 × 24 × 3600) = 3.165 %  [GB 50015-2003 第3.6.4条]\n"));
  EXPECT_THAT(outcome.output, EndsWith(" = 0.130 mH2O\n"));
}

TEST(Explanation, IsNotGivenUnasked) {
  EXPECT_THAT(Call({"calc", "ZWTGSJS", kDwelling}).output, Not(HasSubstr("U0")));
  const Json grid = ReadGrid(Call({"run", "-"}, Script("")).output);
  EXPECT_TRUE(grid.contains("cells"));
  EXPECT_FALSE(grid.contains("explanation"));
}

TEST(Explanation, PanelsThatTellNothingPrintTheirTableAlone) {
  const std::vector<std::string> plain = {"calc", "ZWTXHS", "inputText=5"};
  std::vector<std::string> asked = plain;
  asked.emplace_back("--explain");
  EXPECT_EQ(Call(asked).output, Call(plain).output);
}

TEST(Explanation, AFieldIsToldUnderItsLabel) {
  const std::string output =
      Call({"calc", "ZWTGRGS", "quota=300", "users=320", "hourlyFactor=2.2", "hours=24", "--explain"}).output;
  EXPECT_EQ(output.substr(output.find("\n\n")),
            "\n\n最高日用水量(立方米)：\n"
            "  用水量 Q：q0·m = 300 × 320 = 96000 L  [GB 50015-2003 第3.1.9条]\n"
            "  未预见水量 ΔQ：Q·p·0.01 = 96000 × 10 × 0.01 = 9600 L\n"
            "  最高日用水量 Qd：(Q + ΔQ)·0.001 = (96000 + 9600) × 0.001 = 105.600 m³\n"
            "\n最高时用水量(立方米)：\n"
            "  平均时用水量 Qp：Qd / T = 105600 / 24 = 4400 L  [GB 50015-2003 第3.1.10条]\n"
            "  高峰时用水量 Q1：Kh·Qp = 2.2 × 4400 = 9680 L  [GB 50015-2003 第3.1.10条]\n"
            "  最高时用水量 Qh：(Q1 + Q1·p·0.01)·0.001 = (9680 + 9680 × 10 × 0.01) × 0.001 = 10.648 m³\n");
}

TEST(Explanation, IsPartOfTheJson) {
  const Json result = Json::parse(Call({"calc", "ZWTPSJS", kStack, "--explain", "--json"}).output);
  const Json& grid = result["results"][0];
  ASSERT_TRUE(grid.contains("explanation"));
  const Json& first = grid["explanation"][0];
  EXPECT_EQ(first["row"], 1);
  EXPECT_EQ(first["steps"][0]["subject"], "设计秒流量 qp");
  EXPECT_EQ(first["steps"][0]["result"], grid["cells"][1][4].get<std::string>() + " L/s");
}

TEST(Explanation, AScriptAsksForItAsAWhole) {
  const Json grid = ReadGrid(Call({"run", "-"}, Script(R"("explain": true, )")).output);
  ASSERT_EQ(grid["explanation"].size(), grid["cells"].size() - 1);
  for (const Json& row : grid["explanation"]) {
    const auto index = row["row"].get<std::size_t>();
    EXPECT_EQ(row["steps"].back()["result"], grid["cells"][index][6].get<std::string>() + " mH2O");
  }
}

TEST(Explanation, TheKeyTakesTrueOrFalse) {
  EXPECT_EQ(Failure({"run", "-"}, Script(R"("explain": 1, )")), "/explain: true or false is expected\n");
}

}  // namespace
}  // namespace zwt
