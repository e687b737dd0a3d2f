// Grids and lists in real windows.
#include "desktop/grid_view.h"

#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>

#include <gtest/gtest.h>

#include "desktop/list_view.h"
#include "host_dialog/sample_panel.h"
#include "panel_desk.h"

namespace zwt::test {
namespace {

constexpr int kGrid = 2040;
constexpr int kReportingGrid = 2041;
constexpr int kList = 2050;

/// A grid of one header row, one title column, a merged title and a combo column.
class GridPanel : public SamplePanel {
 public:
  std::vector<std::wstring> notices;

  explicit GridPanel(int rows = 4) : rows_(rows) {
    Record(kGrid, CellNotice::kClick, L"click");
    Record(kGrid, CellNotice::kDoubleClick, L"double");
    Record(kGrid, CellNotice::kBeginEdit, L"begin");
    Record(kGrid, CellNotice::kEndEdit, L"end");
    Record(kGrid, CellNotice::kChanged, L"changed");
    Record(kReportingGrid, CellNotice::kEndEdit, L"end");
    Record(kReportingGrid, CellNotice::kChanged, L"changed");
    Record(kList, CellNotice::kClick, L"list click");
    Record(kList, CellNotice::kDoubleClick, L"list double");
  }

 protected:
  void OnInitDialog() override {
    SamplePanel::OnInitDialog();
    FillGrid(Grid(kGrid));
    FillGrid(Grid(kReportingGrid));
    List(kList).InsertColumn(L"类型", 100);
    List(kList).InsertColumn(L"规格", 50);
    for (const wchar_t* name : {L"甲", L"乙", L"丙"}) List(kList).InsertItem(name);
    notices.clear();
  }

 private:
  void Record(int id, CellNotice notice, const std::wstring& word) {
    OnCell(id, notice, [this, word](int row, int column) {
      notices.push_back(word + L" " + std::to_wstring(row) + L"," + std::to_wstring(column));
    });
  }

  void FillGrid(CGridCtrl& grid) const {
    grid.SetColumnCount(5);
    grid.SetRowCount(rows_);
    grid.SetFixedRowCount(1);
    grid.SetFixedColumnCount(1);
    grid.SetEditable(true);
    for (int row = 0; row < rows_; ++row) {
      for (int column = 0; column < 5; ++column) {
        grid.SetItemText(row, column, std::to_wstring(row) + L"-" + std::to_wstring(column));
      }
      grid.SetReadOnly(row, 1);
      grid.SetCombo(row, 3, {.choices = {L"15", L"20", L"25"}, .style = row == 1 ? 3 : 2});
    }
  }

  int rows_;
};

QRect RectOf(GridTable& table, int row, int column) {
  QTableView& view = table.ViewOf(row, column);
  const QRect cell = view.visualRect(view.model()->index(row, column));
  return QRect(view.viewport()->mapTo(&table, cell.topLeft()), cell.size());
}

/// Lets queued work be done: an entered text is committed by a queued call, and shown by another.
void Settle() {
  QCoreApplication::processEvents();
  QCoreApplication::processEvents();
}

TEST(GridView, ClickSelectsTheCellAndTellsThePanel) {
  PanelDesk desk;
  GridPanel panel;
  desk.User([&](PanelWindow& window) {
    ClickCell(window, kGrid, 2, 2);
    EXPECT_EQ(panel.Grid(kGrid).GetSelectedCellRange(), (CCellRange{2, 2, 2, 2}));
    EXPECT_EQ(panel.notices, std::vector<std::wstring>{L"click 2,2"});
  });
  panel.DoModal();
}

TEST(GridView, FixedCellsCanBeSelectedToo) {
  PanelDesk desk;
  GridPanel panel;
  desk.User([&](PanelWindow& window) {
    ClickCell(window, kGrid, 0, 2);
    EXPECT_EQ(panel.Grid(kGrid).GetSelectedCellRange(), (CCellRange{0, 2, 0, 2}));
    ClickCell(window, kGrid, 2, 0);
    EXPECT_EQ(panel.Grid(kGrid).GetSelectedCellRange(), (CCellRange{2, 0, 2, 0}));
    ClickCell(window, kGrid, 0, 0);
    EXPECT_EQ(panel.notices, (std::vector<std::wstring>{L"click 0,2", L"click 2,0", L"click 0,0"}));
  });
  panel.DoModal();
}

TEST(GridView, DoubleClickOnAClosedCellIsAClickAndADoubleClick) {
  PanelDesk desk;
  GridPanel panel;
  desk.User([&](PanelWindow& window) {
    ClickCell(window, kGrid, 1, 1, true);
    EXPECT_EQ(panel.notices, (std::vector<std::wstring>{L"click 1,1", L"double 1,1"}));
  });
  panel.DoModal();
}

TEST(GridView, TypingIntoAnOpenCellGivesBeginEndChanged) {
  PanelDesk desk;
  GridPanel panel;
  desk.User([&](PanelWindow& window) {
    auto& table = WidgetOf<GridTable>(window, kGrid);
    ClickCell(window, kGrid, 2, 2);
    panel.notices.clear();
    QTest::keyClick(&table, Qt::Key_F2);
    auto* editor = dynamic_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(editor, nullptr);
    QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(editor, QStringLiteral("12"));
    QTest::keyClick(editor, Qt::Key_Return);
    Settle();
    EXPECT_EQ(panel.Grid(kGrid).GetItemText(2, 2), L"12");
    EXPECT_EQ(panel.notices, (std::vector<std::wstring>{L"begin 2,2", L"end 2,2", L"changed 2,2"}));
    EXPECT_FALSE(panel.HasEnded());
  });
  panel.DoModal();
}

TEST(GridView, GivenUpEditEndsWithoutAChange) {
  PanelDesk desk;
  GridPanel panel;
  desk.User([&](PanelWindow& window) {
    auto& table = WidgetOf<GridTable>(window, kGrid);
    ClickCell(window, kGrid, 2, 2);
    panel.notices.clear();
    QTest::keyClick(&table, Qt::Key_F2);
    QWidget* editor = QApplication::focusWidget();
    QTest::keyClicks(editor, QStringLiteral("77"));
    QTest::keyClick(editor, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(panel.Grid(kGrid).GetItemText(2, 2), L"2-2");
    EXPECT_EQ(panel.notices, (std::vector<std::wstring>{L"begin 2,2", L"end 2,2"}));
    EXPECT_FALSE(panel.HasEnded());
  });
  panel.DoModal();
}

TEST(GridView, PressingAButtonTakesTheOpenEditInFirst) {
  PanelDesk desk;
  GridPanel panel;
  CString seen;
  panel.OnClick(2030, [&] { seen = panel.Grid(kGrid).GetItemText(2, 2); });
  desk.User([&](PanelWindow& window) {
    auto& table = WidgetOf<GridTable>(window, kGrid);
    ClickCell(window, kGrid, 2, 2);
    QTest::keyClicks(&table, QStringLiteral("5"));
    ClickOn(window, 2030);
    EXPECT_EQ(seen, L"5");
  });
  panel.DoModal();
}

TEST(GridView, ReadOnlyAndFixedCellsTakeNoText) {
  PanelDesk desk;
  GridPanel panel;
  desk.User([&](PanelWindow& window) {
    auto& table = WidgetOf<GridTable>(window, kGrid);
    for (const auto& [row, column] : {std::pair{2, 1}, std::pair{0, 2}, std::pair{2, 0}}) {
      ClickCell(window, kGrid, row, column, true);
      QTest::keyClicks(&table, QStringLiteral("9"));
      EXPECT_EQ(panel.Grid(kGrid).GetItemText(row, column),
                std::to_wstring(row) + L"-" + std::to_wstring(column));
    }
  });
  panel.DoModal();
}

TEST(GridView, ComboCellOffersItsChoicesAtItsArrow) {
  PanelDesk desk;
  GridPanel panel;
  desk.User([&](PanelWindow& window) {
    auto& table = WidgetOf<GridTable>(window, kGrid);
    const QRect cell = table.visualRect(table.model()->index(1, 3));
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(cell.right() - 4, cell.center().y()));
    auto* box = table.viewport()->findChild<QComboBox*>();
    ASSERT_NE(box, nullptr);
    EXPECT_FALSE(box->isEditable());
    ASSERT_EQ(box->count(), 3);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down);
    EXPECT_EQ(panel.Grid(kGrid).GetItemText(1, 3), L"15");
    EXPECT_EQ(panel.notices.back(), L"changed 1,3");
  });
  panel.DoModal();
}

TEST(GridView, DropDownCellTakesTypedTextToo) {
  PanelDesk desk;
  GridPanel panel;
  desk.User([&](PanelWindow& window) {
    auto& table = WidgetOf<GridTable>(window, kGrid);
    ClickCell(window, kGrid, 2, 3, true);
    auto* box = table.viewport()->findChild<QComboBox*>();
    ASSERT_NE(box, nullptr);
    QTest::keyClick(box->lineEdit(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(box->lineEdit(), QStringLiteral("32"));
    QTest::keyClick(box, Qt::Key_Return);
    Settle();
    EXPECT_EQ(panel.Grid(kGrid).GetItemText(2, 3), L"32");
  });
  panel.DoModal();
}

TEST(GridView, GridThatReportsWritesTellsOfAChangeOnce) {
  PanelDesk desk;
  GridPanel panel;
  desk.User([&](PanelWindow& window) {
    auto& table = WidgetOf<GridTable>(window, kReportingGrid);
    ClickCell(window, kReportingGrid, 2, 2);
    panel.notices.clear();
    QTest::keyClicks(&table, QStringLiteral("4"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    Settle();
    EXPECT_EQ(panel.notices, (std::vector<std::wstring>{L"changed 2,2", L"end 2,2"}));
  });
  panel.DoModal();
}

TEST(GridView, CopiesTheSelectionAsATableWithoutHiddenColumns) {
  PanelDesk desk;
  GridPanel panel;
  desk.User([&](PanelWindow& window) {
    auto& table = WidgetOf<GridTable>(window, kGrid);
    panel.Grid(kGrid).SetColumnWidth(3, 0);
    panel.Grid(kGrid).SetItemText(2, 4, L"two\nlines");
    panel.Grid(kGrid).SetSelectedRange({1, 2, 2, 4});
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("1-2\t1-4\n2-2\t\"two\nlines\"\n"));
    QTest::keyClick(&table, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith(QStringLiteral("0-0\t0-1\t0-2\t0-4\n1-0\t")));
  });
  panel.DoModal();
}

TEST(GridView, ProgramSelectionIsShownAndUserSelectionReachesTheModel) {
  PanelDesk desk;
  GridPanel panel;
  desk.User([&](PanelWindow& window) {
    auto& table = WidgetOf<GridTable>(window, kGrid);
    panel.Grid(kGrid).SetSelectedRange({1, 1, 3, 2});
    EXPECT_EQ(table.SelectedRange(), (CCellRange{1, 1, 3, 2}));
    panel.Grid(kGrid).SetSelectedRange({});
    EXPECT_FALSE(table.SelectedRange().IsValid());
    ClickCell(window, kGrid, 1, 1);
    QTest::keyClick(&table, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(panel.Grid(kGrid).GetSelectedCellRange(), (CCellRange{1, 1, 2, 1}));
  });
  panel.DoModal();
}

TEST(GridView, FixedRowsAndColumnsStayWhileTheBodyScrolls) {
  PanelDesk desk;
  GridPanel panel(200);
  desk.User([&](PanelWindow& window) {
    auto& table = WidgetOf<GridTable>(window, kGrid);
    const QRect headBefore = RectOf(table, 0, 2);
    ASSERT_GT(table.verticalScrollBar()->maximum(), 0);
    table.scrollTo(table.model()->index(199, 2));
    EXPECT_EQ(RectOf(table, 0, 2), headBefore);
    EXPECT_EQ(RectOf(table, 199, 0).top(), RectOf(table, 199, 2).top());
    EXPECT_LE(RectOf(table, 199, 2).bottom(), table.height());
    EXPECT_EQ(RectOf(table, 0, 2).left(), RectOf(table, 199, 2).left());
  });
  panel.DoModal();
}

TEST(GridView, MergedCellsCoverTheirArea) {
  PanelDesk desk;
  GridPanel panel;
  desk.User([&](PanelWindow& window) {
    auto& table = WidgetOf<GridTable>(window, kGrid);
    panel.Grid(kGrid).SetFixedCellCombine(0, 1, 0, 2);
    panel.Grid(kGrid).SetFixedCellCombine(1, 0, 2, 0);
    panel.Grid(kGrid).SetCellCombine(3, 1, 0, 3);
    Settle();
    EXPECT_EQ(RectOf(table, 0, 1).right(), RectOf(table, 1, 3).right());
    EXPECT_EQ(RectOf(table, 1, 0).bottom(), RectOf(table, 3, 1).bottom());
    EXPECT_EQ(RectOf(table, 3, 1).right(), RectOf(table, 1, 4).right());
  });
  panel.DoModal();
}

TEST(GridView, HiddenColumnTakesNoRoomAndComesBack) {
  PanelDesk desk;
  GridPanel panel;
  desk.User([&](PanelWindow& window) {
    auto& table = WidgetOf<GridTable>(window, kGrid);
    panel.Grid(kGrid).SetColumnWidth(2, 0);
    Settle();
    EXPECT_TRUE(table.isColumnHidden(2));
    panel.Grid(kGrid).SetColumnWidth(2, 70);
    Settle();
    EXPECT_FALSE(table.isColumnHidden(2));
  });
  panel.DoModal();
}

TEST(GridView, RowsThatHandlersAddAndDropAreSeen) {
  PanelDesk desk;
  GridPanel panel;
  panel.OnCell(kGrid, CellNotice::kEndEdit, [&](int, int) {
    panel.Grid(kGrid).DeleteNonFixedRows();
    panel.Grid(kGrid).InsertRow(L"新");
  });
  desk.User([&](PanelWindow& window) {
    auto& table = WidgetOf<GridTable>(window, kGrid);
    ClickCell(window, kGrid, 2, 2);
    QTest::keyClicks(&table, QStringLiteral("1"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    Settle();
    EXPECT_EQ(table.model()->rowCount(), 2);
    EXPECT_EQ(table.model()->index(1, 0).data().toString(), QStringLiteral("新"));
  });
  panel.DoModal();
}

TEST(GridView, NoTextIsCutOff) {
  PanelDesk desk;
  GridPanel panel;
  desk.User([&](PanelWindow& window) {
    auto& table = WidgetOf<GridTable>(window, kGrid);
    panel.Grid(kGrid).SetItemText(0, 1, L"连接管公称直径(mm)");
    panel.Grid(kGrid).SetItemText(1, 1, L"有大便器、洗涤盆、洗脸盆、洗衣机、热水器和沐浴设备");
    panel.Grid(kGrid).SetItemText(2, 2, L"1234567.890123");
    panel.Grid(kGrid).SetColumnWidth(2, 20);
    Settle();
    for (int row = 0; row < 3; ++row) {
      for (int column = 0; column < 5; ++column) {
        const QRect cell = RectOf(table, row, column).adjusted(4, 0, -4, 0);
        const QString text = ToQt(panel.Grid(kGrid).GetItemText(row, column));
        const QRect needed = table.fontMetrics().boundingRect(cell, Qt::TextWordWrap, text);
        EXPECT_LE(needed.height(), cell.height()) << row << "," << column;
        EXPECT_LE(needed.width(), cell.width()) << row << "," << column;
      }
    }
  });
  panel.DoModal();
}

TEST(ListView, ClickPicksTheRow) {
  PanelDesk desk;
  GridPanel panel;
  desk.User([&](PanelWindow& window) {
    auto& table = WidgetOf<QTableView>(window, kList);
    const QPoint place = table.visualRect(table.model()->index(1, 1)).center();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(panel.List(kList).GetFirstSelectedItem(), 1);
    EXPECT_EQ(panel.notices, std::vector<std::wstring>{L"list click 1,1"});
    panel.List(kList).SelectItem(2);
    EXPECT_TRUE(table.selectionModel()->isRowSelected(2));
    QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("丙\t\n"));
  });
  panel.DoModal();
}

TEST(ListView, FollowsNewRows) {
  PanelDesk desk;
  GridPanel panel;
  desk.User([&](PanelWindow& window) {
    auto& table = WidgetOf<QTableView>(window, kList);
    panel.List(kList).DeleteAllItems();
    panel.List(kList).InsertItem(L"推车式");
    Settle();
    ASSERT_EQ(table.model()->rowCount(), 1);
    EXPECT_EQ(table.model()->index(0, 0).data().toString(), QStringLiteral("推车式"));
  });
  panel.DoModal();
}

}  // namespace
}  // namespace zwt::test
