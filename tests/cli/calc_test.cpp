// One calculation from the command line: what each of the thirteen commands prints, and what stops it.
#include <cstdlib>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "cli/program_call.h"
#include "host/report/document_archive.h"
#include "support/child_process.h"

namespace zwt::test {
namespace {

using Json = nlohmann::ordered_json;

struct CalcCase {
  const char* name;
  std::vector<std::string> arguments;
  const char* output;
};

void PrintTo(const CalcCase& row, std::ostream* stream) {
  *stream << row.name;
}

class CalcOfPanel : public testing::TestWithParam<CalcCase> {};

TEST_P(CalcOfPanel, PrintsTheResultsAsATable) {
  std::vector<std::string> arguments = {"calc"};
  arguments.insert(arguments.end(), GetParam().arguments.begin(), GetParam().arguments.end());
  const Outcome outcome = Call(arguments);
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.errors, "");
  EXPECT_EQ(outcome.output, GetParam().output);
}

std::string CaseName(const testing::TestParamInfo<CalcCase>& info) {
  return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(
    Supply, CalcOfPanel,
    testing::Values(CalcCase{"MaximumDayAndHour",
                             {"ZWTGRGS", "quota=200", "users=100", "hourlyFactor=2.5", "hours=24"},
                             "最高日用水量(立方米)：  22.000\n"
                             "最高时用水量(立方米)：  2.521\n"},
                    CalcCase{"DesignFlowOfDwellings",
                             {"ZWTJDGS", "site=普通住宅Ⅱ", "usersPerHousehold=3.5", "equivalents=4"},
                             "设计管段流量(L/s)：  0.413\n"
                             "公称直径(mm)：       25\n"
                             "流速(m/s)：          0.63\n"},
                    CalcCase{"DesignFlowOfASchool",
                             {"ZWTJDGS", "site=学校", "equivalents=9"},
                             "设计管段流量(L/s)：  1.080\n"
                             "公称直径(mm)：       32\n"
                             "流速(m/s)：          1.06\n"}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(Fire, CalcOfPanel,
                         testing::Values(CalcCase{"JetOfAKnownFlow",
                                                  {"ZWTXHS", "inputText=5"},
                                                  "充实水柱长度(m)：       11.3\n"
                                                  "消火栓栓口水压(mH2O)：  18.93\n"
                                                  "消火栓保护半径(m)：     28.05\n"},
                                         CalcCase{"JetOfAKnownWaterColumn",
                                                  {"ZWTXHS", "knownMode=已知充实水柱长度", "inputText=12"},
                                                  "消火栓出口流量(L/s):    5.20\n"
                                                  "消火栓栓口水压(mH2O)：  20.31\n"
                                                  "消火栓保护半径(m)：     28.52\n"},
                                         // 36.00A on 2 points with units of 3A: 18 to a point, 6 units.
                                         CalcCase{"ExtinguishersOfTheSecondPanel",
                                                  {"ZWTMHQ", "area=100", "total=36.00A", "points=2",
                                                   "models=MF/ABC5"},
                                                  "总配置：    36.00A\n"
                                                  "最小配置：  3A\n"
                                                  "\n"
                                                  "每个配置点的配置量为      18.00A\n"
                                                  "所选的灭火器型号为        MF/ABC5\n"
                                                  "每个配置点的灭火器数量为  6\n"
                                                  "(注:每个设置点的灭火数量不宜多于 5 具)\n"},
                                         CalcCase{"ExtinguishersWithTheRatingOfTheFirstPanel",
                                                  {"ZWTMHQ", "area=100", "building=地下建筑",
                                                   "facility=未设室内消火栓系统和灭火系统", "points=1",
                                                   "models=0", "kind=推车式灭火器"},
                                                  "总配置：    2.60A\n"
                                                  "最小配置：  3A\n"
                                                  "\n"
                                                  "每个配置点的配置量为      2.60A\n"
                                                  "所选的灭火器型号为        MFT/ABC20\n"
                                                  "每个配置点的灭火器数量为  2\n"
                                                  "(根据:一个计算单元内的配置的灭火器数量不得少于 2 具)\n"}),
                         CaseName);

INSTANTIATE_TEST_SUITE_P(
    HotWater, CalcOfPanel,
    testing::Values(CalcCase{"AllDay",
                             {"ZWTRSJS", "Kh=2", "units=100", "waterQuota=200", "coldTemperature=10"},
                             "小时耗热量(kJ/h)：  343068.823\n"
                             "小时热水量(L/h)：   1666.667\n"},
                    // 300 · 50 · 0.98324 · 4.187
                    CalcCase{"AtSetTimes",
                             {"ZWTRSJS", "定时供应=on", "hourlyQuota=300", "coldTemperature=10"},
                             "小时耗热量(kJ/h)：  61752.388\n"
                             "小时热水量(L/h)：   300.000\n"}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(
    Storage, CalcOfPanel,
    testing::Values(CalcCase{"FireTank",
                             {"ZWTSXJS", "use=消防", "Qf=40",
                              "buildingClass=二类建筑(住宅除外)、一类建筑(住宅)"},
                             "消防水箱最小容积(立方米)：  24.00\n"
                             "生活水箱容积(立方米)：\n"
                             "总容积(立方米)：\n"
                             "注:算得结果大于最小值12m3(正常情况)\n"
                             "另注:消防用水量超过25L/s且算得的消防容积大于18m3时，也可取18m3\n"},
                    CalcCase{"DomesticTankWithPump",
                             {"ZWTSXJS", "mode=水泵、水箱联合工作", "a=10", "b=4"},
                             "消防水箱最小容积(立方米)：\n"
                             "生活水箱容积(立方米)：  14.40\n"
                             "总容积(立方米)：\n"
                             "注:(无)\n"
                             "另注:(无)\n"},
                    CalcCase{"SharedTankOfTheLeastFireVolume",
                             {"ZWTSXJS", "合用=on", "a=10", "b=1", "Qf=5"},
                             "消防水箱最小容积(立方米)：  18.00\n"
                             "生活水箱容积(立方米)：      10.00\n"
                             "总容积(立方米)：            28.00\n"
                             "注:算得结果3.0小于18取18\n"
                             "另注:(无)\n"},
                    CalcCase{"PressureTank",
                             {"ZWTQYSG", "pumpFlow=10", "heightDifference=20", "headLoss=5", "outletHead=5"},
                             "调节容积(立方米)：   1.500\n"
                             "总容积(立方米)：     6.250\n"
                             "最低工作压力(MPa)：  0.30\n"
                             "最高工作压力(MPa)：  0.47\n"},
                    CalcCase{"StoragePool",
                             {"ZWTZSC", "maximumDay=100", "hourlyUse=2"},
                             "调节容积(m3)：          10.00\n"
                             "生活储备用水量(m3)：    6.00\n"
                             "消防用水量(m3)：        864.00\n"
                             "进水管补充水量Qg(m3/h)  42.41\n"
                             "补充水量Qg(m3)：        127.23\n"
                             "水池总容积(m3)：        752.77\n"},
                    CalcCase{"AirDefenceShelter",
                             {"ZWTRFSL", "people=100"},
                             "饮用水总量(立方米)：    1.800\n"
                             "生活用水总量(立方米)：  0.000\n"},
                    CalcCase{"AirDefenceHospital",
                             {"ZWTRFSL", "projectType=中心医院、急救医院", "wounded=20", "staff=30"},
                             "饮用水总量(立方米)：    0.840\n"
                             "生活用水总量(立方米)：  1.400\n"}),
    CaseName);

/// A schematic from `zwtcal new` in a folder of the test's own.
class CalcOnPipes : public testing::Test {
 protected:
  std::string Draw(std::vector<std::string> arguments) {
    const std::string file = (folder_.Path() / "drawing.dxf").string();
    arguments.insert(arguments.begin(), "new");
    arguments.insert(arguments.end(), {"-o", file});
    EXPECT_EQ(Call(arguments).errors, "");
    return file;
  }
  std::string File(const char* name) const { return (folder_.Path() / name).string(); }

 private:
  const TemporaryFolder folder_;
};

// U0 7.0891 takes the point 7.0, U is 0.54758, q 0.43807; 32 has 24.8 mm inside.
TEST_F(CalcOnPipes, SupplyRiserOfDwellings) {
  const std::string drawing =
      Draw({"supply", "--storeys", "1", "--branch", "UserNum=7", "--branch", "Kh=2.8"});
  EXPECT_EQ(Call({"calc", "ZWTGSJS", drawing}).output,
            "编号    管长(m)  当量  U(%)  流量(L/s)  流速(m/s)  水损(mH2O)  管径(mm)\n"
            "1#-1层  3.00     4.00  0.55  0.44       0.907      0.136       32\n");
}

// q = 0.2 · 1.5 · 4; 50 has 38.8 mm inside.
TEST_F(CalcOnPipes, SupplyRiserOfAnOffice) {
  const std::string drawing = Draw({"supply", "--storeys", "1", "--branch", "Equivalent=16"});
  EXPECT_EQ(Call({"calc", "ZWTGSJS", drawing, "buildingClass=公共建筑", "place=办公楼、商场"}).output,
            "编号    管长(m)  当量   流量(L/s)  流速(m/s)  水损(mH2O)  管径(mm)\n"
            "1#-1层  3.00     16.00  1.20       1.015      0.099       50\n");
}

// q = 2.0 · 0.12 · √6 + 1.5 and 2.0 · 0.12 · √18 + 1.5; the velocity lies between the grades 0.002 and 0.003.
TEST_F(CalcOnPipes, DrainageStack) {
  const std::string drawing = Draw({"drainage", "--storeys", "3"});
  EXPECT_EQ(Call({"calc", "ZWTPSJS", drawing, "useCoefficient=2.0"}).output,
            "编号  当量  最大流量  额定流量  流量L/s  管径  坡度   流速   "
            "充满度\n"
            "1层   6     1.5       2         2.088    110   0.004  0.496  0.5\n"
            "2层   6     1.5       2         2.088    110   0.004  0.496  0.5\n"
            "3层   6     1.5       2         2.088    110   0.004  0.496  0.5\n"
            "立管设计秒流量为：2.518，管径为：110。\n");
}

TEST_F(CalcOnPipes, BranchDataArePrintedAsTheyStand) {
  const std::string drawing = Draw({"supply", "--storeys", "2"});
  const Outcome outcome = Call({"calc", "ZWTGSCS", drawing, "--save", File("out.dxf")});
  EXPECT_EQ(outcome.output,
            "每户当量：          4\n"
            "用水定额(L/人·d)：  250\n"
            "小时变化系数(Kh)：  2.5\n"
            "用水小时数(T)：     24\n"
            "可供户数：          1\n"
            "每户用水人数：      3.5\n");
  EXPECT_EQ(ReadBytes(File("out.dxf")), ReadBytes(drawing));
}

TEST_F(CalcOnPipes, BranchDataThatAreGivenAreWritten) {
  const std::string drawing = Draw({"supply", "--storeys", "2"});
  const Outcome outcome = Call({"calc", "ZWTGSCS", drawing, "equivalent=6.5", "--save", File("out.dxf")});
  EXPECT_EQ(outcome.output.substr(0, outcome.output.find('\n')), "每户当量：          6.5");
  const Outcome calculated = Call({"calc", "ZWTGSJS", File("out.dxf"), "--json"});
  const Json cells = Json::parse(calculated.output)["results"][0]["cells"];
  EXPECT_EQ(cells[1][2], "13.00");
  EXPECT_EQ(cells[2][2], "6.50");
  EXPECT_EQ(Failure({"calc", "ZWTGSCS", drawing, "equivalent=viel"}),
            "每户当量： \"viel\" is not what the calculation needs\n");
}

TEST_F(CalcOnPipes, ReportIsWrittenBesideTheTable) {
  const std::string drawing = Draw({"supply", "--storeys", "2"});
  const Outcome outcome = Call({"calc", "ZWTGSJS", drawing, "--report", File("report.docx")});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.errors, File("report.docx") + "\n");
  EXPECT_EQ(outcome.output, Call({"calc", "ZWTGSJS", drawing}).output);
  const DocumentArchive report(ReadBytes(File("report.docx")));
  EXPECT_NE(report.Find("word/document.xml")->bytes.find("1#-2层"), std::string::npos);
}

TEST_F(CalcOnPipes, AReportNeverReplacesAFile) {
  const std::string drawing = Draw({"supply", "--storeys", "2"});
  const std::string file = File("report.docx");
  WriteBytes(file, "mine");
  EXPECT_EQ(Failure({"calc", "ZWTGSJS", drawing, "--report", file}),
            "--report: " + file + " is there already; a report never replaces a file\n");
  EXPECT_EQ(ReadBytes(file), "mine");
  WriteBytes(File("other.pdf"), "mine, too");
  EXPECT_EQ(Failure({"calc", "ZWTGSJS", drawing, "--report", File("other.docx"), "--pdf"}),
            "--report: " + File("other.pdf") + " is there already; a report never replaces a file\n");
  EXPECT_FALSE(std::filesystem::exists(File("other.docx")));
}

TEST_F(CalcOnPipes, AReportThatCannotBeIsRefusedBeforeAnythingIsWritten) {
  const std::string drawing = Draw({"supply", "--storeys", "2"});
  const auto refusal = [&](std::vector<std::string> options) {
    std::vector<std::string> arguments = {"calc", "ZWTGSJS", drawing, "--save", File("saved.dxf")};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return Failure(arguments);
  };
  EXPECT_EQ(refusal({"--report", File("report.doc")}),
            "--report " + File("report.doc") + ": a name that ends in .docx is expected\n");
  EXPECT_EQ(refusal({"--report", File("no/report.docx")}), "--report: no folder " + File("no") + "\n");
  EXPECT_EQ(refusal({"--pdf"}), "--pdf: --report FILE is expected beside it\n");
  EXPECT_EQ(Failure({"calc", "ZWTGRGS", "--report", File("report.docx")}),
            "--report: panel 2000 writes no report\n");
  std::filesystem::create_directory(File("empty"));
  EXPECT_EQ(refusal({"--report", File("report.docx"), "--main-dir", File("empty") + "/"}),
            "--report: 无法加载计算书模板.\n");
  EXPECT_FALSE(std::filesystem::exists(File("saved.dxf")));
  EXPECT_FALSE(std::filesystem::exists(File("report.docx")));
}

/// The search path for programs without a single folder.
class EmptySearchPath {
 public:
  EmptySearchPath() : before_(std::getenv("PATH")) { setenv("PATH", "/nowhere", 1); }
  EmptySearchPath(const EmptySearchPath&) = delete;
  EmptySearchPath& operator=(const EmptySearchPath&) = delete;
  ~EmptySearchPath() { setenv("PATH", before_.c_str(), 1); }

 private:
  std::string before_;
};

TEST_F(CalcOnPipes, WithoutAnOfficeProgramTheReportIsThereAndThePdfIsMissed) {
  const std::string drawing = Draw({"supply", "--storeys", "2"});
  const EmptySearchPath nothingInstalled;
  const Outcome outcome = Call({"calc", "ZWTGSJS", drawing, "--report", File("report.docx"), "--pdf"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.errors,
            "--pdf: converting a document needs LibreOffice, which is not installed; the report itself is " +
                File("report.docx") + "\n");
  EXPECT_TRUE(std::filesystem::exists(File("report.docx")));
  EXPECT_FALSE(std::filesystem::exists(File("report.pdf")));
}

TEST(Calc, PrintsJsonForPrograms) {
  const Json result =
      Json::parse(Call({"calc", "ZWTGRGS", "quota=200", "users=100", "2004=0", "--json"}).output);
  EXPECT_EQ(result["panel"], 2000);
  EXPECT_EQ(result["results"][0]["control"], "2005");
  EXPECT_EQ(result["results"][0]["text"], "20.000");
  EXPECT_EQ(result["results"][1]["text"], "0.000");
}

TEST(Calc, JsonNamesThePanelThatHoldsTheResults) {
  const Json result = Json::parse(Call({"calc", "ZWTMHQ", "area=100", "points=2", "--json"}).output);
  EXPECT_EQ(result["panel"], 2021);
  EXPECT_EQ(result["results"][0]["text"], "1.80A");
}

TEST(Calc, SaysWhatItDoesNotTake) {
  EXPECT_EQ(Failure({"calc", "ZWTGRGS", "quote=1"}), "quote=1: no control \"quote\" in panel 2000\n");
  EXPECT_EQ(Failure({"calc", "ZWTGRGS", "maxDayText=1"}), "maxDayText=1: control 2005 is read-only\n");
  EXPECT_EQ(Failure({"calc", "ZWTGRGS", "quota=viel"}), "2007 \"viel\" is not what the calculation needs\n");
  EXPECT_EQ(Failure({"calc", "ZWTNIX"}), "COMMAND: no command \"ZWTNIX\"\n");
  EXPECT_EQ(Failure({"calc", "ZWTGRGS", "a.dxf", "b.dxf"}).find("DRAWING"), std::string::npos);
  EXPECT_EQ(Failure({"calc", "ZWTGRGS", "--annotate"}), "--annotate: panel 2000 annotates nothing\n");
  EXPECT_EQ(Failure({"calc", "ZWTMHQ", "area=100", "points=2", "nix=2"}),
            "nix=2: no control \"nix\" in panel 2021\n");
  EXPECT_EQ(Failure({"calc", "ZWTMHQ", "points=2", "models=MF/ABC1"}),
            "models=MF/ABC1: no row has this text\n");
  EXPECT_EQ(Failure({"calc", "ZWTMHQ", "points=2", "models=4"}), "models=4: control 2122 has no row 4\n");
}

TEST(Calc, AnUnknownValueIsNamedBeforeWhatStopsTheCalculation) {
  EXPECT_EQ(Failure({"calc", "ZWTQYSG", "pumpflow=10"}),
            "pumpflow=10: no control \"pumpflow\" in panel 2014\n");
}

TEST(Calc, PrintsTheHalfThatWasCalculatedAndSaysWhatTheOtherLacks) {
  const Outcome volumes = Call({"calc", "ZWTQYSG", "pumpFlow=10"});
  EXPECT_EQ(volumes.status, 0);
  EXPECT_EQ(volumes.output,
            "调节容积(立方米)：  1.500\n"
            "总容积(立方米)：    6.250\n"
            "最低工作压力(MPa)：\n"
            "最高工作压力(MPa)：\n");
  EXPECT_EQ(volumes.errors, "最低水位与最不利配水点的高程差(m)： \"\" is not what the calculation needs\n");
  const Outcome pressures = Call({"calc", "ZWTQYSG", "heightDifference=20", "headLoss=5", "outletHead=5"});
  EXPECT_EQ(pressures.status, 0);
  EXPECT_EQ(pressures.output,
            "调节容积(立方米)：\n"
            "总容积(立方米)：\n"
            "最低工作压力(MPa)：  0.30\n"
            "最高工作压力(MPa)：  0.47\n");
  EXPECT_EQ(pressures.errors, "水泵总出水量(L/s)： \"\" is not what the calculation needs\n");
}

TEST(Calc, ARatingWithoutPointsIsStillPrinted) {
  const Outcome outcome = Call({"calc", "ZWTMHQ", "area=100", "danger=中危险级"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output,
            "总配置：    1.20A\n"
            "最小配置：  2A\n"
            "\n"
            "请正确输入配置点的个数\n");
  EXPECT_EQ(outcome.errors, "配置点数： \"\" is not what the calculation needs\n");
}

TEST(Calc, NothingCalculatedIsAnErrorWithTheFirstReason) {
  EXPECT_EQ(Failure({"calc", "ZWTQYSG"}), "水泵总出水量(L/s)： \"\" is not what the calculation needs\n");
  EXPECT_EQ(Failure({"calc", "ZWTXHS", "knownMode=0", "inputText=30"}),
            "充实水柱长度应在6.0米至20.0米之间\n");
  EXPECT_EQ(Failure({"calc", "ZWTXHS", "inputText=30"}), "流量必须在3.5至9.6之间\n");
  EXPECT_EQ(Failure({"calc", "ZWTRFSL", "people=-1"}), "人数： \"-1\" is not what the calculation needs\n");
}

}  // namespace
}  // namespace zwt::test
