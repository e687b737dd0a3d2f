// Panels inside panels, messages, progress, and giving way to the drawing.
#include <QPushButton>

#include <gtest/gtest.h>

#include "desktop/desktop_presenter.h"
#include "host_dialog/sample_panel.h"
#include "panel_desk.h"

namespace zwt::test {
namespace {

inline constexpr ControlTemplate kProgressControls[] = {
    {.id = 3001, .label = L"正在计算,请稍候...", .kind = ControlKind::kStatic}};
inline constexpr PanelTemplate kProgressPanel = {
    .resource = 2998, .className = L"ProgressPanel", .controls = kProgressControls};

class ProgressPanel : public CDialog {
 public:
  explicit ProgressPanel(CDialog* parent) : CDialog(kProgressPanel, parent) {}
};

TEST(Presenter, InnerPanelIsModalOverTheOuterOne) {
  PanelDesk desk;
  SamplePanel outer;
  SamplePanel inner;
  int outerPressed = 0;
  outer.OnClick(2030, [&] { inner.DoModal(); });
  outer.OnClick(2023, [&] { ++outerPressed; });
  PanelWindow* outerWindow = nullptr;
  desk.User([&](PanelWindow& window) {
    outerWindow = &window;
    ClickOn(window, 2030);
    EXPECT_TRUE(inner.HasEnded());
    EXPECT_FALSE(outer.HasEnded());
    EXPECT_EQ(desk.presenter.Innermost(), outerWindow);
    const QWidget* box = window.WidgetOf(2023);
    const QPoint place = box->mapTo(&window, box->rect().center());
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(outerPressed, 1);
  });
  desk.User([&](PanelWindow& window) {
    EXPECT_EQ(desk.presenter.Innermost(), &window);
    EXPECT_EQ(QApplication::activeModalWidget(), &window);
    const QWidget* box = outerWindow->WidgetOf(2023);
    const QPoint place = box->mapTo(outerWindow, box->rect().center());
    QTest::mouseClick(outerWindow->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(outerPressed, 0);
  });
  outer.DoModal();
  EXPECT_EQ(OpenPanelCount(), 0);
}

TEST(Presenter, MessageShowsCaptionAndTextAndWaits) {
  PanelDesk desk;
  SamplePanel panel;
  panel.OnClick(2030, [&] { panel.MessageBoxW(L"参数不足！", L"错误", MB_ICONSTOP); });
  panel.OnClick(2023, [&] { AfxMessageBox(L"无标题"); });
  desk.presenter.onMessageShown = [&](QMessageBox& box) {
    desk.messages.push_back(FromQt(box.text()));
    const bool stop = box.text() == QStringLiteral("参数不足！");
    EXPECT_EQ(box.icon(), stop ? QMessageBox::Critical : QMessageBox::NoIcon);
    EXPECT_EQ(box.windowTitle(), stop ? QStringLiteral("错误") : QStringLiteral("样板"));
    ASSERT_EQ(box.buttons().size(), 1);
    EXPECT_EQ(box.buttons().front()->text(), QStringLiteral("确定"));
    QTest::mouseClick(box.buttons().front(), Qt::LeftButton);
  };
  desk.User([&](PanelWindow& window) {
    ClickOn(window, 2030);
    ClickOn(window, 2023);
  });
  panel.DoModal();
  EXPECT_EQ(desk.messages, (std::vector<CString>{L"参数不足！", L"无标题"}));
}

TEST(Presenter, GivingWayHidesAllPanelsAndLiftsModalityWithoutEndingThem) {
  PanelDesk desk;
  SamplePanel panel;
  std::vector<bool> wanted;
  desk.presenter.onDrawingWanted = [&](bool on) { wanted.push_back(on); };
  PanelWindow* shown = nullptr;
  panel.OnClick(2030, [&] {
    panel.BeginEditorCommand();
    EXPECT_FALSE(shown->isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    QCoreApplication::processEvents();
    EXPECT_FALSE(panel.HasEnded());
    panel.CompleteEditorCommand();
    EXPECT_TRUE(shown->isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), shown);
  });
  desk.User([&](PanelWindow& window) {
    shown = &window;
    TypeInto(window, 2003, "kept");
    ClickOn(window, 2030);
    EXPECT_FALSE(panel.HasEnded());
    EXPECT_EQ(panel.GetDlgItemText(2003), L"kept");
  });
  panel.DoModal();
  EXPECT_EQ(wanted, (std::vector<bool>{true, false}));
}

TEST(Presenter, ProgressPanelIsPaintedBeforeWorkGoesOn) {
  PanelDesk desk;
  SamplePanel panel;
  bool painted = false;
  desk.presenter.onProgressShown = [&](PanelWindow& window) {
    painted = window.WasPainted();
    EXPECT_EQ(dynamic_cast<QLabel*>(window.WidgetOf(3001))->text(), QStringLiteral("正在计算,请稍候..."));
  };
  panel.OnClick(2030, [&] {
    ProgressPanel progress(&panel);
    progress.ShowModeless();
    EXPECT_TRUE(painted);
    progress.CloseModeless();
  });
  desk.User([&](PanelWindow& window) { ClickOn(window, 2030); });
  panel.DoModal();
  EXPECT_TRUE(painted);
  EXPECT_EQ(OpenPanelCount(), 0);
}

TEST(Presenter, ClicksQueuedDuringProgressPressNothing) {
  PanelDesk desk;
  SamplePanel panel;
  int pressed = 0;
  panel.OnClick(2023, [&] { ++pressed; });
  PanelWindow* shown = nullptr;
  const auto queueClick = [&] {
    QWidget* target = shown->WidgetOf(2023);
    const QPointF place = target->rect().center();
    const QPointF onScreen = target->mapToGlobal(place);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      const bool down = type == QEvent::MouseButtonPress;
      QCoreApplication::postEvent(
          target, new QMouseEvent(type, place, onScreen, Qt::LeftButton, down ? Qt::LeftButton : Qt::NoButton,
                                  Qt::NoModifier));
    }
  };
  panel.OnClick(2030, [&] {
    ProgressPanel progress(&panel);
    progress.ShowModeless();
    queueClick();
    progress.CloseModeless();
  });
  desk.User([&](PanelWindow& window) {
    shown = &window;
    ClickOn(window, 2030);
    QCoreApplication::processEvents();
    EXPECT_EQ(pressed, 0);
    queueClick();
    QCoreApplication::processEvents();
    EXPECT_EQ(pressed, 1);
  });
  panel.DoModal();
}

TEST(Presenter, CancellingGoesFromTheInnermostOut) {
  PanelDesk desk;
  SamplePanel outer;
  SamplePanel inner;
  std::vector<std::string> order;
  outer.OnClick(2030, [&] {
    inner.DoModal();
    order.emplace_back("inner returned");
  });
  outer.OnClick(2, [&] {
    order.emplace_back("outer cancelled");
    outer.EndDialog(2);
  });
  inner.OnClick(2, [&] {
    order.emplace_back("inner cancelled");
    inner.EndDialog(2);
  });
  desk.User([&](PanelWindow& window) { ClickOn(window, 2030); });
  desk.User([&](PanelWindow&) { desk.waits.CancelAll(); });
  EXPECT_EQ(outer.DoModal(), 2);
  EXPECT_EQ(order, (std::vector<std::string>{"inner cancelled", "inner returned", "outer cancelled"}));
  EXPECT_TRUE(desk.waits.IsEmpty());
}

TEST(Presenter, CancellingClosesAMessageFirst) {
  PanelDesk desk;
  SamplePanel panel;
  bool seen = false;
  panel.OnClick(2030, [&] {
    panel.MessageBoxW(L"?");
    seen = !panel.HasEnded();
  });
  desk.presenter.onMessageShown = [&](QMessageBox&) { desk.waits.CancelAll(); };
  desk.User([&](PanelWindow& window) { ClickOn(window, 2030); });
  EXPECT_EQ(panel.DoModal(), 2);
  EXPECT_TRUE(seen);
}

TEST(Presenter, PanelThatRefusesToCloseIsEndedAllTheSame) {
  PanelDesk desk;
  SamplePanel panel;
  panel.OnClick(2, [&] { panel.MessageBoxW(L"不能退出"); });
  desk.User([&](PanelWindow&) { desk.waits.CancelAll(); });
  EXPECT_EQ(panel.DoModal(), 2);
  EXPECT_TRUE(desk.messages.empty());
}

TEST(Presenter, PanelAskedForWhileCancellingIsNotShown) {
  PanelDesk desk;
  SamplePanel outer;
  SamplePanel late;
  int shown = 0;
  outer.OnClick(2, [&] {
    EXPECT_EQ(late.DoModal(), 2);
    outer.EndDialog(2);
  });
  desk.User([&](PanelWindow&) {
    ++shown;
    desk.waits.CancelAll();
  });
  desk.User([&](PanelWindow&) { ++shown; });
  outer.DoModal();
  EXPECT_EQ(shown, 1);
  desk.waits.CommandEnded();
}

}  // namespace
}  // namespace zwt::test
