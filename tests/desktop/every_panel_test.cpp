// Every panel that the module registers, shown in a window: what the user sets arrives in the model, what the
// program sets is seen, and nothing is cut off.
#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <set>

#include <gtest/gtest.h>

#include "desktop/list_view.h"
#include "host/runtime/module_runtime.h"
#include "panel_desk.h"

namespace zwt::test {
namespace {

/// Opens each registered template as a panel without handlers and gives it to the test.
template <typename Check>
void ForEveryPanel(Check check) {
  ModuleRuntime module;
  module.Load();
  ASSERT_FALSE(RegisteredPanels().empty());
  for (const PanelTemplate* shape : RegisteredPanels()) {
    SCOPED_TRACE("panel " + std::to_string(shape->resource));
    CDialog panel(*shape);
    for (const auto& control : panel.Controls()) {
      control->EnableWindow();
      control->ShowWindow(true);
    }
    PanelDesk desk;
    int shown = 0;
    desk.User([&](PanelWindow& window) {
      ++shown;
      check(panel, window);
    });
    panel.DoModal();
    EXPECT_EQ(shown, 1);
  }
}

void Settle() {
  QCoreApplication::processEvents();
  QCoreApplication::processEvents();
}

void CheckEdit(CEdit& edit, PanelWindow& window) {
  const int id = edit.GetDlgCtrlID();
  edit.SetReadOnly(false);
  const bool multiLine = (edit.Shape().style & kMultiLine) != 0;
  const auto seen = [&] {
    return multiLine ? WidgetOf<QPlainTextEdit>(window, id).toPlainText()
                     : WidgetOf<QLineEdit>(window, id).text();
  };
  TypeInto(window, id, "37");
  EXPECT_EQ(edit.GetWindowText(), L"37");
  edit.SetWindowText(L"4.25");
  EXPECT_EQ(seen(), QStringLiteral("4.25"));
  edit.SetReadOnly();
  TypeInto(window, id, "9");
  EXPECT_EQ(seen(), QStringLiteral("4.25"));
}

void CheckButton(CButton& button, PanelWindow& window) {
  auto& widget = WidgetOf<QAbstractButton>(window, button.GetDlgCtrlID());
  EXPECT_EQ(FromQt(widget.text()), button.GetWindowText());
  if (button.Shape().kind == ControlKind::kButton) return;
  button.SetCheck(false);
  EXPECT_FALSE(widget.isChecked());
  QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, QPoint(8, widget.height() / 2));
  EXPECT_TRUE(button.GetCheck());
  EXPECT_TRUE(widget.isChecked());
}

void CheckCombo(CComboBox& combo, PanelWindow& window) {
  auto& box = WidgetOf<QComboBox>(window, combo.GetDlgCtrlID());
  if (combo.GetCount() == 0) {
    combo.AddString(L"甲");
    combo.AddString(L"乙");
  }
  ASSERT_EQ(box.count(), combo.GetCount());
  for (int item = 0; item < combo.GetCount(); ++item) {
    combo.SetCurSel(item);
    EXPECT_EQ(box.currentIndex(), item);
    EXPECT_EQ(FromQt(box.currentText()), combo.GetWindowText());
  }
  box.setFocus();
  QTest::keyClick(&box, Qt::Key_Home);
  EXPECT_EQ(combo.GetCurSel(), box.currentIndex());
  QTest::keyClick(&box, Qt::Key_Down);
  EXPECT_EQ(combo.GetCurSel(), box.currentIndex());
}

void CheckGrid(CGridCtrl& grid, PanelWindow& window) {
  const int id = grid.GetDlgCtrlID();
  grid.SetColumnCount(3);
  grid.SetRowCount(3);
  grid.SetFixedRowCount(1);
  grid.SetEditable(true);
  grid.SetItemText(1, 1, L"值");
  Settle();
  auto& table = WidgetOf<GridTable>(window, id);
  EXPECT_EQ(table.model()->index(1, 1).data().toString(), QStringLiteral("值"));
  ClickCell(window, id, 2, 2);
  EXPECT_EQ(grid.GetSelectedCellRange(), (CCellRange{2, 2, 2, 2}));
  QTest::keyClicks(&table, QStringLiteral("8"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  Settle();
  EXPECT_EQ(grid.GetItemText(2, 2), L"8");
}

void CheckList(CListCtrl& list, PanelWindow& window) {
  list.InsertColumn(L"类型", 60);
  list.InsertItem(L"甲");
  list.InsertItem(L"乙");
  Settle();
  auto& table = WidgetOf<QTableView>(window, list.GetDlgCtrlID());
  const int last = list.GetItemCount() - 1;
  table.scrollTo(table.model()->index(last, 0));
  QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::NoModifier,
                    table.visualRect(table.model()->index(last, 0)).center());
  EXPECT_EQ(list.GetFirstSelectedItem(), last);
  list.SelectItem(0);
  EXPECT_TRUE(table.selectionModel()->isRowSelected(0));
}

TEST(EveryPanel, WidgetAndModelAgreeForEveryControl) {
  ForEveryPanel([](CDialog& panel, PanelWindow& window) {
    for (const auto& control : panel.Controls()) {
      SCOPED_TRACE("control " + std::to_string(control->GetDlgCtrlID()));
      if (auto* edit = dynamic_cast<CEdit*>(control.get())) CheckEdit(*edit, window);
      if (auto* button = dynamic_cast<CButton*>(control.get())) CheckButton(*button, window);
      if (auto* combo = dynamic_cast<CComboBox*>(control.get())) CheckCombo(*combo, window);
      if (auto* grid = dynamic_cast<CGridCtrl*>(control.get())) CheckGrid(*grid, window);
      if (auto* list = dynamic_cast<CListCtrl*>(control.get())) CheckList(*list, window);
      ASSERT_FALSE(panel.HasEnded());
    }
  });
}

TEST(EveryPanel, StateOfEveryControlIsFollowed) {
  ForEveryPanel([](CDialog& panel, PanelWindow& window) {
    for (const auto& control : panel.Controls()) {
      SCOPED_TRACE("control " + std::to_string(control->GetDlgCtrlID()));
      QWidget* widget = window.WidgetOf(control->GetDlgCtrlID());
      control->EnableWindow(false);
      EXPECT_FALSE(widget->isEnabled());
      control->EnableWindow(true);
      EXPECT_TRUE(widget->isEnabled());
      control->ShowWindow(false);
      EXPECT_FALSE(widget->isVisible());
      control->ShowWindow(true);
      EXPECT_TRUE(widget->isVisible());
    }
  });
}

TEST(EveryPanel, NoLabelOrButtonIsCutOff) {
  ForEveryPanel([](CDialog& panel, PanelWindow& window) {
    Settle();
    for (QLabel* label : window.findChildren<QLabel*>()) {
      if (label->wordWrap() || !label->isVisible()) continue;
      EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
      EXPECT_GE(label->height(), label->fontMetrics().height()) << label->text().toStdString();
    }
    for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
      if (!button->isVisible()) continue;
      const bool push = dynamic_cast<QPushButton*>(button) != nullptr;
      const int text = button->fontMetrics().horizontalAdvance(button->text()) + 8;
      EXPECT_GE(button->width(), push ? text : button->sizeHint().width()) << button->text().toStdString();
    }
    for (const auto& control : panel.Controls()) {
      const QWidget* widget = window.WidgetOf(control->GetDlgCtrlID());
      const QRect place(widget->mapTo(&window, QPoint(0, 0)), widget->size());
      EXPECT_TRUE(window.rect().contains(place)) << control->GetDlgCtrlID();
    }
  });
}

TEST(EveryPanel, NoTwoControlsOverlap) {
  ForEveryPanel([](CDialog& panel, PanelWindow& window) {
    Settle();
    std::vector<std::pair<int, QRect>> places;
    for (const auto& control : panel.Controls()) {
      const QWidget* widget = window.WidgetOf(control->GetDlgCtrlID());
      const QRect place(widget->mapTo(&window, QPoint(0, 0)), widget->size());
      for (const auto& [other, taken] : places) {
        EXPECT_FALSE(taken.intersects(place)) << other << " and " << control->GetDlgCtrlID();
      }
      places.emplace_back(control->GetDlgCtrlID(), place);
    }
  });
}

}  // namespace
}  // namespace zwt::test
