// Panels in real windows: what the user does reaches the panel as from any other presenter, and what the
// panel does is seen.
#include "desktop/panel_window.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>

#include <gtest/gtest.h>

#include "desktop/look.h"
#include "host_dialog/sample_panel.h"
#include "panel_desk.h"

namespace zwt::test {
namespace {

TEST(PanelWindow, TypedTextReachesTheControl) {
  PanelDesk desk;
  SamplePanel panel;
  desk.User([&](PanelWindow& window) {
    TypeInto(window, 2001, "12.5");
    EXPECT_EQ(panel.GetDlgItemText(2001), L"12.5");
  });
  panel.DoModal();
}

TEST(PanelWindow, ChangedControlIsSeen) {
  PanelDesk desk;
  SamplePanel panel;
  desk.User([&](PanelWindow& window) {
    panel.SetDlgItemText(2004, L"3.141");
    EXPECT_EQ(WidgetOf<QLineEdit>(window, 2004).text(), QStringLiteral("3.141"));
    panel.Combo(2010).SetCurSel(2);
    EXPECT_EQ(WidgetOf<QComboBox>(window, 2010).currentText(), QStringLiteral("蓝"));
    panel.GetDlgItem(2031).EnableWindow();
    EXPECT_TRUE(window.WidgetOf(2031)->isEnabled());
    panel.GetDlgItem(2060).ShowWindow(true);
    EXPECT_TRUE(window.WidgetOf(2060)->isVisible());
  });
  panel.DoModal();
}

TEST(PanelWindow, EnterPressesTheDefaultButtonAndKeepsTheFocusInTheField) {
  PanelDesk desk;
  SamplePanel panel;
  int pressed = 0;
  int left = 0;
  panel.OnClick(1, [&] { ++pressed; });
  panel.OnLeave(2001, [&] { ++left; });
  desk.User([&](PanelWindow& window) {
    TypeInto(window, 2001, "7");
    QTest::keyClick(window.WidgetOf(2001), Qt::Key_Return);
    EXPECT_EQ(pressed, 1);
    EXPECT_EQ(left, 1);
    EXPECT_TRUE(window.WidgetOf(2001)->hasFocus());
    EXPECT_EQ(panel.FocusedControl(), &panel.GetDlgItem(2001));
  });
  panel.DoModal();
}

TEST(PanelWindow, EscapeAndCloseBoxTakeTheCancelPath) {
  PanelDesk desk;
  for (const bool escape : {true, false}) {
    SamplePanel panel;
    int cancelled = 0;
    panel.OnClick(2, [&] {
      ++cancelled;
      panel.EndDialog(42);
    });
    desk.User([&](PanelWindow& window) {
      escape ? QTest::keyClick(&window, Qt::Key_Escape) : static_cast<void>(window.close());
    });
    EXPECT_EQ(panel.DoModal(), 42);
    EXPECT_EQ(cancelled, 1);
  }
}

TEST(PanelWindow, CloseBoxThatIsRefusedLeavesThePanelOpen) {
  PanelDesk desk;
  SamplePanel panel;
  int asked = 0;
  panel.OnClick(2, [&] {
    if (++asked > 1) panel.EndDialog(2);
  });
  desk.User([&](PanelWindow& window) {
    window.close();
    EXPECT_TRUE(window.isVisible());
  });
  panel.DoModal();
  EXPECT_EQ(asked, 2);
}

TEST(PanelWindow, RefusedFieldGetsTheFocusItsContentSelectedAndAMark) {
  PanelDesk desk;
  SamplePanel panel;
  desk.User([&](PanelWindow& window) {
    auto& field = WidgetOf<QLineEdit>(window, 2002);
    TypeInto(window, 2002, "2.5");
    QTest::mouseClick(window.WidgetOf(2003), Qt::LeftButton);
    ClickOn(window, 1);
    EXPECT_FALSE(panel.HasEnded());
    EXPECT_TRUE(field.hasFocus());
    EXPECT_EQ(field.selectedText(), QStringLiteral("2.5"));
    EXPECT_TRUE(HasLook(field, Look::kRefused));
    QTest::keyClicks(&field, QStringLiteral("3"));
    EXPECT_EQ(field.text(), QStringLiteral("3"));
    EXPECT_FALSE(HasLook(field, Look::kRefused));
    ClickOn(window, 1);
    EXPECT_EQ(panel.count, 3);
  });
  EXPECT_EQ(panel.DoModal(), IDOK);
}

TEST(PanelWindow, ResultIsReadOnlyButCanBeCopied) {
  PanelDesk desk;
  SamplePanel panel;
  desk.User([&](PanelWindow& window) {
    auto& field = WidgetOf<QLineEdit>(window, 2004);
    panel.SetDlgItemText(2004, L"22.000");
    EXPECT_TRUE(HasLook(field, Look::kResult));
    TypeInto(window, 2004, "9");
    EXPECT_EQ(panel.GetDlgItemText(2004), L"22.000");
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("22.000"));
  });
  panel.DoModal();
}

TEST(PanelWindow, RadioButtonsExcludeEachOtherAndAChosenOneRunsAgain) {
  PanelDesk desk;
  SamplePanel panel;
  int pressed = 0;
  panel.OnClick(2021, [&] { ++pressed; });
  desk.User([&](PanelWindow& window) {
    EXPECT_TRUE(WidgetOf<QAbstractButton>(window, 2020).isChecked());
    ClickOn(window, 2021);
    ClickOn(window, 2021);
    EXPECT_FALSE(WidgetOf<QAbstractButton>(window, 2020).isChecked());
    EXPECT_TRUE(WidgetOf<QAbstractButton>(window, 2021).isChecked());
    EXPECT_FALSE(panel.Button(2020).GetCheck());
    EXPECT_TRUE(panel.Button(2021).GetCheck());
    EXPECT_EQ(pressed, 2);
    ClickOn(window, 2023);
    EXPECT_TRUE(panel.Button(2023).GetCheck());
    ClickOn(window, 2023);
    EXPECT_FALSE(panel.Button(2023).GetCheck());
  });
  panel.DoModal();
}

TEST(PanelWindow, ArrowKeysMoveTheChoiceWithinARadioGroup) {
  PanelDesk desk;
  SamplePanel panel;
  desk.User([&](PanelWindow& window) {
    ClickOn(window, 2020);
    QTest::keyClick(window.WidgetOf(2020), Qt::Key_Down);
    EXPECT_TRUE(panel.Button(2021).GetCheck());
    EXPECT_FALSE(panel.Button(2020).GetCheck());
  });
  panel.DoModal();
}

TEST(PanelWindow, PickingInAComboBoxGivesBothNoticesButTheShownItemIsNoChange) {
  PanelDesk desk;
  SamplePanel panel;
  int changed = 0;
  int closed = 0;
  panel.OnSelectionChange(2010, [&] { ++changed; });
  panel.OnDropDownClosed(2010, [&] { ++closed; });
  desk.User([&](PanelWindow& window) {
    QWidget* box = window.WidgetOf(2010);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down);
    EXPECT_EQ(panel.Combo(2010).GetCurSel(), 1);
    EXPECT_EQ(changed, 1);
    emit dynamic_cast<QComboBox*>(box)->activated(1);
    EXPECT_EQ(changed, 1);
    EXPECT_EQ(closed, 2);
  });
  panel.DoModal();
}

TEST(PanelWindow, EditableComboBoxTakesTypedText) {
  PanelDesk desk;
  SamplePanel panel;
  desk.User([&](PanelWindow& window) {
    TypeInto(window, 2011, "1.8");
    EXPECT_EQ(panel.GetDlgItemText(2011), L"1.8");
    EXPECT_EQ(panel.Combo(2011).GetCurSel(), -1);
    TypeInto(window, 2011, "2.0");
    EXPECT_EQ(panel.Combo(2011).GetCurSel(), 1);
  });
  panel.DoModal();
}

TEST(PanelWindow, LabelControlShowsItsChangesAndHidesByItself) {
  PanelDesk desk;
  SamplePanel panel;
  desk.User([&](PanelWindow& window) {
    auto& label = WidgetOf<QLabel>(window, 3005);
    EXPECT_TRUE(label.isVisible());
    panel.SetDlgItemText(3005, L"水深(m):");
    EXPECT_EQ(label.text(), QStringLiteral("水深(m):"));
    panel.GetDlgItem(3005).ShowWindow(false);
    EXPECT_FALSE(label.isVisible());
    EXPECT_TRUE(window.WidgetOf(2005)->isVisible());
  });
  panel.DoModal();
}

TEST(PanelWindow, HiddenFieldLeavesNoHole) {
  PanelDesk desk;
  SamplePanel panel;
  desk.User([&](PanelWindow& window) {
    const auto top = [&](int id) { return window.WidgetOf(id)->mapTo(&window, QPoint(0, 0)).y(); };
    const auto settle = [] { QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); };
    settle();
    const int before = top(2004);
    panel.GetDlgItem(2003).ShowWindow(false);
    settle();
    EXPECT_LT(top(2004), before - window.WidgetOf(2002)->height() / 2);
    EXPECT_EQ(top(2004) - top(2002), top(2002) - top(2001));
  });
  panel.DoModal();
}

TEST(PanelWindow, LeavingAFieldRunsItsHandlerOnce) {
  PanelDesk desk;
  SamplePanel panel;
  int left = 0;
  panel.OnLeave(2001, [&] { ++left; });
  desk.User([&](PanelWindow& window) {
    TypeInto(window, 2001, "4");
    QTest::keyClick(window.WidgetOf(2001), Qt::Key_Tab);
    EXPECT_TRUE(window.WidgetOf(2002)->hasFocus());
    EXPECT_EQ(left, 1);
  });
  panel.DoModal();
}

TEST(PanelWindow, LeaveHandlerMaySendTheFocusBack) {
  PanelDesk desk;
  SamplePanel panel;
  panel.OnLeave(2001, [&] {
    if (panel.GetDlgItemText(2001) == L"bad") panel.Edit(2001).FocusAndSelect();
  });
  desk.User([&](PanelWindow& window) {
    TypeInto(window, 2001, "bad");
    QTest::mouseClick(window.WidgetOf(2003), Qt::LeftButton);
    EXPECT_TRUE(window.WidgetOf(2001)->hasFocus());
    EXPECT_EQ(panel.FocusedControl(), &panel.GetDlgItem(2001));
  });
  panel.DoModal();
}

TEST(PanelWindow, TabGoesThroughTheControlsInTheOrderOfTheTemplateAndStopsOnceInARadioGroup) {
  PanelDesk desk;
  SamplePanel panel;
  desk.User([&](PanelWindow& window) {
    std::vector<QWidget*> order;
    for (const auto& control : panel.Controls()) {
      QWidget* widget = window.WidgetOf(control->GetDlgCtrlID());
      const bool stops =
          widget->isEnabled() && widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) != 0;
      if (stops && widget != window.WidgetOf(2021)) order.push_back(widget);
    }
    ASSERT_GT(order.size(), 10U);
    order.front()->setFocus();
    for (std::size_t i = 0; i + 1 < order.size(); ++i) {
      QWidget* present = QApplication::focusWidget();
      EXPECT_TRUE(present == order[i] || order[i]->isAncestorOf(present))
          << order[i]->objectName().toStdString();
      QTest::keyClick(present, Qt::Key_Tab);
    }
  });
  panel.DoModal();
}

TEST(PanelWindow, ExceptionOfAHandlerReachesWhoOpenedThePanel) {
  PanelDesk desk;
  SamplePanel panel;
  panel.OnClick(2030, [] { throw std::runtime_error("a broken handler"); });
  desk.User([&](PanelWindow& window) { ClickOn(window, 2030); });
  EXPECT_THROW(panel.DoModal(), std::runtime_error);
  EXPECT_EQ(OpenPanelCount(), 0);
}

TEST(PanelWindow, ExceptionOfANestedPanelCrossesBothLoops) {
  PanelDesk desk;
  SamplePanel outer;
  SamplePanel inner;
  inner.OnClick(2030, [] { throw std::runtime_error("inside"); });
  outer.OnClick(2030, [&] { inner.DoModal(); });
  desk.User([&](PanelWindow& window) { ClickOn(window, 2030); });
  desk.User([&](PanelWindow& window) { ClickOn(window, 2030); });
  EXPECT_THROW(outer.DoModal(), std::runtime_error);
}

}  // namespace
}  // namespace zwt::test
