// Lists and tables on the clipboard.

#include "desktop/kit/row_copy.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QListWidget>
#include <QTableWidget>

#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

void PressCtrlC(QWidget* widget) {
  QKeyEvent event(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier);
  QApplication::sendEvent(widget, &event);
}

QString Clipboard() { return QGuiApplication::clipboard()->text(); }

class RowCopyTest : public testing::Test {
 protected:
  RowCopyTest() {
    QGuiApplication::clipboard()->clear();
    list.addItems({"TL 1 = 5.00", "TL 2 = 6.00", "TL 3 = 7.00"});
    list.setSelectionMode(QAbstractItemView::ExtendedSelection);
    MakeCopyable(&list);
  }

  QListWidget list;
};

TEST_F(RowCopyTest, TakesTheWholeListWhereNoRowIsMarked) {
  PressCtrlC(&list);
  EXPECT_EQ(Clipboard(), "TL 1 = 5.00\nTL 2 = 6.00\nTL 3 = 7.00");
}

TEST_F(RowCopyTest, TakesTheMarkedRowsInTheOrderOfTheList) {
  list.item(2)->setSelected(true);
  list.item(0)->setSelected(true);
  PressCtrlC(&list);
  EXPECT_EQ(Clipboard(), "TL 1 = 5.00\nTL 3 = 7.00");
}

TEST_F(RowCopyTest, TakesAListWholeOfWhichOneRowIsChosen) {
  list.setSelectionMode(QAbstractItemView::SingleSelection);
  list.setCurrentRow(1);
  PressCtrlC(&list);
  EXPECT_EQ(Clipboard(), "TL 1 = 5.00\nTL 2 = 6.00\nTL 3 = 7.00");
}

TEST_F(RowCopyTest, StandsInTheContextMenu) {
  ASSERT_EQ(list.contextMenuPolicy(), Qt::ActionsContextMenu);
  ASSERT_EQ(list.actions().size(), 2);
  list.item(1)->setSelected(true);
  list.actions()[0]->trigger();
  EXPECT_EQ(Clipboard(), "TL 2 = 6.00");
  list.actions()[1]->trigger();
  EXPECT_EQ(Clipboard(), "TL 1 = 5.00\nTL 2 = 6.00\nTL 3 = 7.00");
}

TEST_F(RowCopyTest, LeavesOtherKeysToTheList) {
  QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
  list.setCurrentRow(0);
  QApplication::sendEvent(&list, &down);
  EXPECT_EQ(list.currentRow(), 1);
  EXPECT_EQ(Clipboard(), "");
}

TEST(TableCopy, PutsATabBetweenColumnsAndTheirCaptionsFirst) {
  QTableWidget table(2, 2);
  table.setHorizontalHeaderLabels({"Span", "Moment"});
  for (int row = 0; row < 2; ++row) {
    table.setItem(row, 0, new QTableWidgetItem(QString::number(row + 1)));
    table.setItem(row, 1, new QTableWidgetItem(QString::number(100 * row)));
  }
  EXPECT_EQ(RowsAsText(&table, false), "Span\tMoment\n1\t0\n2\t100");
}

TEST(ListsOfWindows, CanAllBeCopied) {
  OpenDesktop desktop;
  desktop.OpenKingPost();
  desktop.Play({"enter \"Top Node Loads (lbs)\" 100", "press \"All\"", "press \"Run\""});
  desktop.Window("TRUSS")->MakeAllPanels();
  for (QListWidget* list : desktop.Window("TRUSS")->findChildren<QListWidget*>()) {
    EXPECT_EQ(list->actions().size(), 2) << list->accessibleName().toStdString();
    if (list->accessibleName() != "Axial Load (lbs)") continue;
    EXPECT_EQ(list->selectionMode(), QAbstractItemView::ExtendedSelection);
    PressCtrlC(list);
    // 24 ft by 5 ft: the reaction of 50 lbs, rafters 50 x 13 / 5 = 130, tie 50 x 12 / 5 = 120.
    EXPECT_EQ(Clipboard(), "\nTL1 = 130.00\nTR1 = 130.00\nCL1 = 120.00\nCR1 = 120.00\nCV = 0.00");
  }
}

}  // namespace
}  // namespace lignara
