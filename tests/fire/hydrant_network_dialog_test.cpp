// The panels of ZWTXFJS.
#include "fire/hydrant_network_dialog.h"

#include <gmock/gmock.h>

#include "fire/hydrant_drawing.h"
#include "host/text/number_text.h"
#include "support/drawing_fixture.h"
#include "support/main_directory_fixture.h"
#include "support/panel_fixture.h"
#include "support/report_fixture.h"

namespace zwt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing_rings::DrawHydrants;
using testing_rings::HydrantDrawing;
using testing_rings::HydrantSizes;

class HydrantPanelTest : public DrawingTest {
 protected:
  void Open(AcDbObjectId mainEnd, const PanelRun::UserFunction& act) {
    user.selections.push_back({mainEnd});
    run.User(act);
    RunHydrantNetworkCommand();
  }
  static void Press(PanelUser& hands, const wchar_t* button) { hands.Click(hands.Find(button)); }
  static const CGridCtrl& Table(PanelUser& hands, const wchar_t* name) {
    return dynamic_cast<CGridCtrl&>(hands.Find(name));
  }
  static int LivingTexts() {
    int texts = 0;
    for (int index = 0; index < WorkingDrawing().EntityCount(); ++index) {
      const auto& entity = WorkingDrawing().Entity(index);
      if (entity.alive && entity.pipe < 0) ++texts;
    }
    return texts;
  }
  MainDirectory directory;
  Printed printed;
  PanelRun run;
};

TEST_F(HydrantPanelTest, AsksForOnePipeOfTheFireSystem) {
  RunHydrantNetworkCommand();
  EXPECT_THAT(user.prompts, ElementsAre(L"\n请选择要计算的消防原理图干管末端: "));
  EXPECT_TRUE(user.askedForOne);
  EXPECT_THAT(run.opened, IsEmpty());
}

TEST_F(HydrantPanelTest, NetworkWithoutALoopIsRefusedAndLeavesNoLabels) {
  HydrantSizes sizes;
  sizes.upperMain = false;
  Open(DrawHydrants(sizes).mainEnd, [](PanelUser&, CDialog&) {});
  EXPECT_THAT(run.opened, IsEmpty());
  EXPECT_THAT(printed.lines, ElementsAre(L"\n无法计算枝状消火栓系统."));
  EXPECT_EQ(LivingTexts(), 0);
}

TEST_F(HydrantPanelTest, NetworkWithoutATopHydrantIsRefused) {
  Open(testing_rings::DrawFirePipe({0, 0, 0}, {1000, 0, 0}, L"干管"), [](PanelUser&, CDialog&) {});
  EXPECT_THAT(printed.lines, ElementsAre(L"\n创建管网数据失败."));
}

TEST_F(HydrantPanelTest, OpensWithItsDefaultsAndTables) {
  Open(DrawHydrants({}).mainEnd, [](PanelUser& hands, CDialog& panel) {
    for (const auto& [name, text] :
         std::vector<std::pair<const wchar_t*, const wchar_t*>>{{L"hydrantFlow", L"10"},
                                                                {L"gunCount", L"2"},
                                                                {L"gunMinFlow", L"5"},
                                                                {L"riserMinFlow", L"10"},
                                                                {L"nozzleDiameter", L"19"},
                                                                {L"hoseLength", L"25"},
                                                                {L"hoseDiameter", L"50"},
                                                                {L"waterColumn", L"12"},
                                                                {L"hoseMaterial", L"衬胶"},
                                                                {L"jetFlow", L"0"}}) {
      EXPECT_EQ(hands.Find(name).GetWindowText(), text) << Utf8FromWide(name);
    }
    EXPECT_FALSE(dynamic_cast<CButton&>(hands.Find(L"keepNumbers")).GetCheck());
    const CGridCtrl& sections = Table(hands, L"sectionTable");
    const CGridCtrl& nodes = Table(hands, L"nodeTable");
    EXPECT_GT(sections.GetRowCount(), 2);
    EXPECT_GT(nodes.GetRowCount(), 2);
    EXPECT_EQ(sections.GetItemText(0, 0), L"管段编号");
    EXPECT_THAT(sections.GetItemText(1, 0), testing::HasSubstr(L"-"));
    EXPECT_NE(sections.GetItemText(1, 1), L"");
    EXPECT_EQ(sections.GetItemText(1, 2), L"");
    EXPECT_EQ(nodes.GetItemText(1, 0), L"1");
    EXPECT_EQ(LivingTexts(), nodes.GetRowCount() - 1);
    EXPECT_EQ(CString(panel.Shape().title), L"消火栓环状管网水力计算");
  });
}

TEST_F(HydrantPanelTest, LabelsGoWithThePanelUnlessTheyAreKept) {
  const HydrantDrawing drawing = DrawHydrants({});
  Open(drawing.mainEnd, [](PanelUser& hands, CDialog&) { Press(hands, L"退出"); });
  EXPECT_EQ(LivingTexts(), 0);
  Open(drawing.mainEnd, [](PanelUser& hands, CDialog&) {
    Press(hands, L"退出保留节点编号");
    Press(hands, L"退出");
  });
  EXPECT_GT(LivingTexts(), 0);
}

TEST_F(HydrantPanelTest, CloseBoxKeepsTheLabelsAlsoWithAFieldThatIsNoNumber) {
  Open(DrawHydrants({}).mainEnd, [](PanelUser& hands, CDialog&) {
    hands.Set(hands.Find(L"gunCount"), L"viele");
    Press(hands, L"退出保留节点编号");
    hands.Close();
  });
  EXPECT_THAT(run.closed, ElementsAre(PanelRun::Closed{2028, 2}));
  EXPECT_THAT(run.focuses, IsEmpty());
  EXPECT_GT(LivingTexts(), 0);
}

TEST_F(HydrantPanelTest, CalculatingWithoutTheJetFlowStops) {
  Open(DrawHydrants({}).mainEnd, [](PanelUser& hands, CDialog&) { Press(hands, L"计算"); });
  EXPECT_THAT(run.messages, ElementsAre(PanelRun::Message{L"参数不足！", L"错误", MessageIcon::kStop}));
  EXPECT_THAT(run.progress, IsEmpty());
}

TEST_F(HydrantPanelTest, JetFlowComesFromNozzleAndWaterColumn) {
  Open(DrawHydrants({}).mainEnd, [](PanelUser& hands, CDialog&) {
    Press(hands, L"水枪射流量(L/s)");
    EXPECT_EQ(hands.Find(L"jetFlow").GetWindowText(), L"5.153");
    hands.Set(hands.Find(L"gunMinFlow"), L"6");
    Press(hands, L"水枪射流量(L/s)");
    EXPECT_EQ(hands.Find(L"jetFlow").GetWindowText(), L"6.000");
    hands.Set(hands.Find(L"gunMinFlow"), L"0");
    Press(hands, L"水枪射流量(L/s)");
    EXPECT_EQ(hands.Find(L"jetFlow").GetWindowText(), L"6.000");
  });
}

TEST_F(HydrantPanelTest, CalculatesWithAProgressPanelAndFillsBothTables) {
  Open(DrawHydrants({.risers = 4, .storeys = 6}).mainEnd, [](PanelUser& hands, CDialog&) {
    Press(hands, L"水枪射流量(L/s)");
    Press(hands, L"计算");
    const CGridCtrl& sections = Table(hands, L"sectionTable");
    const CGridCtrl& nodes = Table(hands, L"nodeTable");
    for (int row = 1; row < sections.GetRowCount(); ++row) {
      EXPECT_GE(_wtoi(sections.GetItemText(row, 2)), 100);
      EXPECT_NE(sections.GetItemText(row, 3), L"");
    }
    EXPECT_NE(nodes.GetItemText(1, 1), L"0.00");
    EXPECT_NE(nodes.GetItemText(1, 2), L"");
  });
  EXPECT_THAT(run.progress, ElementsAre(L"正在计算,请稍候..."));
}

TEST_F(HydrantPanelTest, DemandTableGivesItsRowByDoubleClick) {
  user.selections.push_back({DrawHydrants({}).mainEnd});
  run.User([](PanelUser& hands, CDialog&) {
    Press(hands, L"建筑物室内消火栓用水量");
    EXPECT_NE(hands.Find(L"gunCount").GetWindowText(), L"");
    EXPECT_EQ(hands.Find(L"jetFlow").GetWindowText(), L"0");
    EXPECT_EQ(hands.Find(L"hydrantFlow").GetWindowText(), L"25");
    EXPECT_EQ(hands.Find(L"gunCount").GetWindowText(), L"5");
    EXPECT_EQ(hands.Find(L"gunMinFlow").GetWindowText(), L"5");
    EXPECT_EQ(hands.Find(L"riserMinFlow").GetWindowText(), L"15");
  });
  run.User([](PanelUser& hands, CDialog& panel) {
    const CGridCtrl& table = Table(hands, L"demandTable");
    EXPECT_EQ(table.GetItemText(0, 1), L"高度、层数、体积或座位数");
    EXPECT_EQ(table.GetItemFormat(0, 1), CellAlign::kLeft);
    EXPECT_TRUE(table.IsReadOnly(1, 2));
    EXPECT_EQ(table.GetItemText(1, 0), L"厂房");
    EXPECT_EQ(table.GetItemText(2, 0), L"");
    EXPECT_FALSE(table.MergedAreas().empty());
    hands.DoubleClickCell(hands.Find(L"demandTable"), 0, 1);
    EXPECT_FALSE(panel.HasEnded());
    hands.DoubleClickCell(hands.Find(L"demandTable"), 3, 0);
    EXPECT_TRUE(panel.HasEnded());
  });
  RunHydrantNetworkCommand();
}

TEST_F(HydrantPanelTest, ClosedDemandTableChangesNothing) {
  user.selections.push_back({DrawHydrants({}).mainEnd});
  run.User([](PanelUser& hands, CDialog&) {
    Press(hands, L"建筑物室内消火栓用水量");
    EXPECT_EQ(hands.Find(L"hydrantFlow").GetWindowText(), L"10");
  });
  RunHydrantNetworkCommand();
}

TEST_F(HydrantPanelTest, MissingDataFileLeavesTheDemandTablesHeader) {
  directory.UseNone();
  user.selections.push_back({DrawHydrants({}).mainEnd});
  run.User([](PanelUser& hands, CDialog&) { Press(hands, L"建筑物室内消火栓用水量"); });
  run.User([](PanelUser& hands, CDialog&) { EXPECT_EQ(Table(hands, L"demandTable").GetRowCount(), 1); });
  RunHydrantNetworkCommand();
}

TEST_F(HydrantPanelTest, WritingBackBeforeACalculationWritesZeros) {
  const HydrantDrawing drawing = DrawHydrants({});
  SetDiameterOf(drawing.mainEnd, 65);
  Open(drawing.mainEnd, [](PanelUser& hands, CDialog&) { Press(hands, L"赋回图中"); });
  EXPECT_EQ(DiameterOf(drawing.mainEnd), 0);
}

TEST_F(HydrantPanelTest, WritesCalculatedDiametersIntoThePipes) {
  const HydrantDrawing drawing = DrawHydrants({.risers = 4, .storeys = 6});
  Open(drawing.mainEnd, [](PanelUser& hands, CDialog&) {
    Press(hands, L"水枪射流量(L/s)");
    Press(hands, L"计算");
    Press(hands, L"赋回图中");
  });
  EXPECT_GE(DiameterOf(drawing.mainEnd), 100);
}

TEST_F(HydrantPanelTest, ViewingTheDrawingComesBack) {
  user.points = {RTNORM, RTERROR, RTCAN};
  Open(DrawHydrants({}).mainEnd, [](PanelUser& hands, CDialog&) { Press(hands, L"查看图面"); });
  EXPECT_EQ(user.pointsAsked, 3);
  EXPECT_EQ(run.gaveWay, 1);
  EXPECT_EQ(run.returned, 1);
}

TEST_F(HydrantPanelTest, ReportBeforeACalculationHasTitlesAndLengths) {
  Desk desk;
  CString length;
  Open(DrawHydrants({}).mainEnd, [&](PanelUser& hands, CDialog&) {
    length = Table(hands, L"sectionTable").GetItemText(1, 1);
    hands.Set(hands.Find(L"hydrantFlow"), L"99");
    Press(hands, L"计算书");
  });
  ASSERT_EQ(desk.bodies.size(), 1U);
  EXPECT_THAT(desk.bodies[0], testing::HasSubstr("管段编号"));
  EXPECT_THAT(desk.bodies[0], testing::HasSubstr(Utf8FromWide(length)));
  EXPECT_THAT(desk.bodies[0], testing::Not(testing::HasSubstr(">99<")));
}

}  // namespace
}  // namespace zwt::test
