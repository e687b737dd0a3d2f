// Results over the drawing: rows of the panel and sections of the drawing follow each other, the side sheet
// tells how a row was computed, curves are shown and saved.
#include <QImage>

#include <gmock/gmock.h>

#include "desktop/drawing_overlay.h"
#include "desktop/profile_plot.h"
#include "drawing_desk.h"

namespace zwt::test {
namespace {

using testing::HasSubstr;

constexpr int kTable = 2012;
constexpr int kCalculate = 2148;
constexpr int kView = 2150;

class ResultsInDrawingTest : public testing::Test {
 protected:
  /// Opens the dwelling and has act work in the panel of the supply calculation.
  void InSupplyPanel(const std::function<void(PanelWindow&)>& act) {
    desk.Open("examples/dwelling-18-storeys.dxf");
    desk.AtQuestion([&] {
      desk.ClickAt(0, 1500);
      desk.Press(Qt::Key_Return);
    });
    desk.InPanel(act);
    desk.ChooseCommand(L"ZWTGSJS");
    EXPECT_TRUE(desk.AllDone());
  }

  DrawingDesk desk;
};

TEST_F(ResultsInDrawingTest, ARowLightsUpItsPipeAndBringsItIntoView) {
  InSupplyPanel([&](PanelWindow& panel) {
    ClickOn(panel, kCalculate);
    desk.Area().ZoomTo(QRectF(0, 0, 500, 500));
    ClickCell(panel, kTable, 10, 2);
    EXPECT_EQ(desk.Window().Results().Lit(), (TableRow{kTable, 10}));
    const auto place = desk.Window().Results().LitPlace();
    ASSERT_TRUE(place.has_value());
    EXPECT_TRUE(desk.Area().View().Shown().contains(place->center()));
  });
}

TEST_F(ResultsInDrawingTest, APipeThatIsPressedFindsItsRow) {
  InSupplyPanel([&](PanelWindow& panel) {
    ClickOn(panel, kCalculate);
    desk.AtQuestion([&] { desk.ClickAt(0, 10500); });
    desk.AtQuestion([&] { desk.Press(Qt::Key_Escape); });
    ClickOn(panel, kView);
    const auto& grid = dynamic_cast<CGridCtrl&>(panel.Panel().GetDlgItem(kTable));
    const int row = grid.GetSelectedCellRange().minRow;
    ASSERT_GT(row, 0);
    EXPECT_EQ(desk.Window().Results().Lit(), (TableRow{kTable, row}));
    const auto place = desk.Window().Results().LitPlace();
    ASSERT_TRUE(place.has_value());
    EXPECT_LE(place->top(), 10500);
    EXPECT_GE(place->bottom(), 10500);
  });
}

TEST_F(ResultsInDrawingTest, ResultsStayUntilTheNextCommand) {
  InSupplyPanel([&](PanelWindow& panel) { ClickOn(panel, kCalculate); });
  ASSERT_NE(CurrentOverlay(), nullptr);
  EXPECT_EQ(CurrentOverlay()->sections.size(), 18U);
  desk.AtQuestion([&] {
    EXPECT_EQ(CurrentOverlay(), nullptr);
    desk.Press(Qt::Key_Escape);
  });
  desk.ChooseCommand(L"ZWTPSJS");
  EXPECT_EQ(CurrentOverlay(), nullptr);
}

TEST_F(ResultsInDrawingTest, AnotherDrawingTakesTheResultsAway) {
  InSupplyPanel([&](PanelWindow& panel) { ClickOn(panel, kCalculate); });
  ASSERT_NE(CurrentOverlay(), nullptr);
  desk.Answer("不保存");
  desk.Window().Files().New();
  EXPECT_EQ(CurrentOverlay(), nullptr);
}

TEST_F(ResultsInDrawingTest, TheSheetTellsHowTheSelectedRowWasComputed) {
  InSupplyPanel([&](PanelWindow& panel) {
    SideSheet* sheet = panel.Sheet();
    ASSERT_NE(sheet, nullptr);
    auto* button = panel.findChild<QToolButton*>(QStringLiteral("sheetButton"));
    ASSERT_NE(button, nullptr);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(sheet->isVisible());
    EXPECT_EQ(sheet->Text().toPlainText(), QStringLiteral("请先计算，再在表格中选择一行。"));
    ClickOn(panel, kCalculate);
    ClickCell(panel, kTable, 2, 1);
    QCoreApplication::processEvents();
    const auto& grid = dynamic_cast<CGridCtrl&>(panel.Panel().GetDlgItem(kTable));
    const std::string told = sheet->Text().toPlainText().toStdString();
    EXPECT_THAT(told, HasSubstr("1#-2层"));
    EXPECT_THAT(told, HasSubstr("设计秒流量 qg"));
    EXPECT_THAT(told, HasSubstr(Utf8FromWide(grid.GetItemText(2, 6)) + " mH2O"));
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_FALSE(sheet->isVisible());
  });
}

TEST_F(ResultsInDrawingTest, TheSheetShowsTheRisersCurvesAndSavesThem) {
  InSupplyPanel([&](PanelWindow& panel) {
    ClickOn(panel, kCalculate);
    SideSheet& sheet = *panel.Sheet();
    ASSERT_EQ(sheet.Choice().count(), 1);
    EXPECT_EQ(sheet.Choice().currentText(), QStringLiteral("1#立管"));
    ASSERT_EQ(sheet.Plot().Shown().steps.size(), 18U);
    const QString file = ToQt(TextFromPath(desk.Folder() / "curves.png"));
    sheet.onAskPicture = [&] { return file; };
    sheet.findChild<QPushButton*>(QStringLiteral("savePicture"))->click();
    const QImage picture(file);
    EXPECT_GE(picture.width(), 600);
  });
}

TEST_F(ResultsInDrawingTest, PanelsThatTellNothingHaveNoSheet) {
  desk.InPanel([](PanelWindow& panel) { EXPECT_EQ(panel.Sheet(), nullptr); });
  desk.ChooseCommand(L"ZWTQYSG");
  EXPECT_TRUE(desk.AllDone());
}

TEST_F(ResultsInDrawingTest, HydrantSectionsRunByTheirFlowAndHydrantsInUseAreMarked) {
  desk.Open("examples/hydrants-6-risers.dxf");
  desk.AtQuestion([&] { desk.ClickAt(-3000, -1000); });
  desk.InPanel([&](PanelWindow& panel) {
    const auto press = [&](const wchar_t* label) {
      for (const auto& control : panel.Panel().Controls()) {
        if (control->Label() == label) ClickOn(panel, control->GetDlgCtrlID());
      }
    };
    press(L"水枪射流量(L/s)");
    press(L"计算");
    const Overlay* overlay = CurrentOverlay();
    ASSERT_NE(overlay, nullptr);
    EXPECT_EQ(overlay->look, OverlayLook::kWidth);
    EXPECT_TRUE(std::any_of(overlay->points.begin(), overlay->points.end(),
                            [](const OverlayPoint& point) { return point.marked; }));
    ClickCell(panel, overlay->pointTable, 3, 1);
    EXPECT_EQ(desk.Window().Results().Lit(), (TableRow{overlay->pointTable, 3}));
  });
  desk.ChooseCommand(L"ZWTXFJS");
  EXPECT_TRUE(desk.AllDone());
}

/// An overlay of two level sections, 100 mm apart, of 1 and 2 m/s.
Overlay TwoSections() {
  Overlay overlay;
  overlay.title = L"试算";
  overlay.quantity = L"流速";
  overlay.unit = L"m/s";
  overlay.sectionTable = 7;
  overlay.sections = {{.row = 1, .course = {{0, 0, 0}, {200, 0, 0}}, .value = 1.0},
                      {.row = 2, .course = {{0, 100, 0}, {200, 100, 0}}, .value = 2.0}};
  return overlay;
}

ViewTransform ViewOf(const QRectF& part) {
  ViewTransform view;
  view.SetSize({400, 400});
  view.Fit(part);
  return view;
}

QImage Painted(const DrawingOverlay& results, const ViewTransform& view, const QColor& ground) {
  QImage image(view.Size().toSize(), QImage::Format_RGB32);
  image.fill(ground);
  QPainter painter(&image);
  results.Paint(painter, view, ground);
  return image;
}

TEST(DrawingOverlayTest, SlowSectionsAreBlueAndFastOnesRed) {
  const DrawingOverlay results;
  PublishOverlay(TwoSections());
  const ViewTransform view = ViewOf({-50, -250, 300, 400});
  const QImage image = Painted(results, view, Qt::black);
  EXPECT_EQ(image.pixelColor(view.ToPixel(50, 0).toPoint()).rgb(), ColourOfShare(0).rgb());
  EXPECT_EQ(image.pixelColor(view.ToPixel(50, 100).toPoint()).rgb(), ColourOfShare(1).rgb());
}

TEST(DrawingOverlayTest, ARowThatIsLitHasARim) {
  DrawingOverlay results;
  PublishOverlay(TwoSections());
  const ViewTransform view = ViewOf({-50, -250, 300, 400});
  const QPoint beside = view.ToPixel(50, 100).toPoint() + QPoint(0, 4);
  EXPECT_EQ(Painted(results, view, Qt::black).pixelColor(beside), QColor(Qt::black));
  results.LightUp({7, 2});
  EXPECT_EQ(Painted(results, view, Qt::black).pixelColor(beside), QColor(0xff, 0x40, 0xd0));
}

TEST(DrawingOverlayTest, ALabelThatWouldCoverAnotherIsLeftOut) {
  const DrawingOverlay results;
  Overlay overlay;
  overlay.points = {{.row = 1, .place = {0, 0, 0}, .label = L"75.64"}, {.row = 2, .place = {0, 0, 0}}};
  PublishOverlay(overlay);
  const ViewTransform view = ViewOf({-50, -50, 100, 100});
  const QImage one = Painted(results, view, Qt::black);
  overlay.points[1].label = L"99.99";
  PublishOverlay(overlay);
  EXPECT_EQ(Painted(results, view, Qt::black), one);
}

TEST(DrawingOverlayTest, NothingIsPaintedWithoutResults) {
  const DrawingOverlay results;
  const ViewTransform view = ViewOf({0, 0, 100, 100});
  QImage empty(400, 400, QImage::Format_RGB32);
  empty.fill(Qt::white);
  EXPECT_EQ(Painted(results, view, Qt::white), empty);
}

TEST(DrawingOverlayTest, TheNearestRowWithinReachIsFound) {
  const DrawingOverlay results;
  PublishOverlay(TwoSections());
  EXPECT_EQ(results.RowAt({100, 20}, 30), (TableRow{7, 1}));
  EXPECT_EQ(results.RowAt({100, 80}, 30), (TableRow{7, 2}));
  EXPECT_EQ(results.RowAt({100, 50}, 30), std::nullopt);
}

TEST(DrawingOverlayTest, APointWinsOverTheSectionsThatEndInIt) {
  const DrawingOverlay results;
  Overlay overlay = TwoSections();
  overlay.pointTable = 8;
  overlay.points = {{.row = 4, .place = {0, 0, 0}}};
  PublishOverlay(overlay);
  EXPECT_EQ(results.RowAt({5, 0}, 30), (TableRow{8, 4}));
}

TEST(DrawingOverlayTest, TheLightGoesOutWithTheResults) {
  DrawingOverlay results;
  PublishOverlay(TwoSections());
  results.LightUp({7, 1});
  ClearOverlay();
  EXPECT_EQ(results.Lit(), TableRow());
}

/// How many pixels of a plot bear the ink of the first curve.
int InkOf(const OverlayProfile& profile) {
  ProfilePlot plot(nullptr);
  plot.Show(profile);
  const QImage picture = plot.grab().toImage();
  int count = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) count += picture.pixel(x, y) == qRgb(0x1f, 0x77, 0xc4) ? 1 : 0;
  }
  return count;
}

TEST(ProfilePlotTest, OnlyNumbersThatTheScaleHasArePainted) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  const auto profile = [](std::vector<double> values, bool logarithmic) {
    return OverlayProfile{.title = L"迭代过程",
                          .steps = {L"1", L"2", L"3"},
                          .curves = {{L"变化", L"", std::move(values)}},
                          .logarithmic = logarithmic};
  };
  EXPECT_GT(InkOf(profile({1, 2, 5}, false)), 100);
  EXPECT_GT(InkOf(profile({none, 1, 5}, true)), 50);
  EXPECT_EQ(InkOf(profile({none, none, none}, false)), 0);
  EXPECT_EQ(InkOf(profile({0, -1, none}, true)), 0);
  EXPECT_EQ(InkOf({.title = L"空"}), 0);
}

}  // namespace
}  // namespace zwt::test
