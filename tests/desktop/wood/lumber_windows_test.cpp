// What a user has to see and reach in the lumber windows: all rows of the short lists, boxes of a
// kind in line, and the Tab key in the order of work.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTest>
#include <map>
#include <set>

#include "desktop/kit/text.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

class LumberWindowsTest : public testing::Test {
 protected:
  ToolWindow* OpenCalculator(const char* press) {
    desktop.Play({"window main", "press \"Pure Wood Data Base\"", "window QUESTION", press,
                  "window WTYPETR"});
    return desktop.Window("WTYPETR");
  }

  ToolWindow* OpenDataBase() {
    OpenCalculator("press \"BEAM\"");
    desktop.Play({"press \"Wood Type Data Base\"", "window wdb", "press \"Western Woods\"",
                  "select \"Data Base File to Load\" \"Western Woods\"", "select \"Grades\" 1"});
    return desktop.Window("wdb");
  }

  ToolWindow* OpenFactors() {
    ToolWindow* window = OpenDataBase();
    desktop.Play({"press \"Stress Adjustment Factors\"", "press \"Moisture > 19%\" \"Yes\""});
    QApplication::processEvents();
    return window;
  }

  static const QListWidget* List(ToolWindow* window, const char* name) {
    for (QWidget* control : VisibleControls(window)) {
      const auto* list = qobject_cast<const QListWidget*>(control);
      if (list != nullptr && list->accessibleName() == name) return list;
    }
    throw std::runtime_error(name);
  }

  OpenDesktop desktop;
};

TEST_F(LumberWindowsTest, FactorListsShowAllTheirRows) {
  ToolWindow* window = OpenFactors();
  for (const char* name : {"Member Width", "Member Thk.", "Member Grade", "Load Duration",
                           "Shear Condition", "Size Factor", "Wet Use Factor"}) {
    const QListWidget* list = List(window, name);
    EXPECT_GE(list->viewport()->height(), list->sizeHintForRow(0) * list->count()) << name;
    EXPECT_FALSE(list->verticalScrollBar()->isVisible()) << name;
    EXPECT_GE(list->viewport()->width(), list->sizeHintForColumn(0)) << name;
  }
}

TEST_F(LumberWindowsTest, NothingMovesWhenTheFactorsOpen) {
  ToolWindow* window = OpenFactors();
  const QSize open = window->size();
  const QRect grades = List(window, "Grades")->geometry();
  desktop.Play({"press \"Stress Adjustment Factors\" \"Cancel\""});
  QApplication::processEvents();
  EXPECT_EQ(window->size(), open);
  EXPECT_EQ(List(window, "Grades")->geometry(), grades);
}

TEST_F(LumberWindowsTest, SmallestWindowsFitASmallScreen) {
  const QSize dataBase = OpenFactors()->minimumSizeHint();
  EXPECT_LE(dataBase.width(), 1280);
  EXPECT_LE(dataBase.height(), 700);
  const QSize calculator = desktop.Window("WTYPETR")->minimumSizeHint();
  EXPECT_LE(calculator.width(), 1024);
  EXPECT_LE(calculator.height(), 600);
}

TEST_F(LumberWindowsTest, NoCaptionIsCutOff) {
  ExpectNoCaptionCutOff(OpenFactors());
  ExpectNoCaptionCutOff(desktop.Window("WTYPETR"));
}

TEST_F(LumberWindowsTest, BoxesOfTheGroupsStandInLine) {
  ToolWindow* window = OpenCalculator("press \"TRUSS\"");
  std::map<QString, std::set<int>> lefts;
  std::map<QString, std::set<int>> tops;
  for (const QWidget* control : VisibleControls(window)) {
    const auto* field = qobject_cast<const QLineEdit*>(control);
    if (field == nullptr || field->isReadOnly()) continue;
    const QPoint at = field->mapTo(window, QPoint(0, 0));
    lefts[field->accessibleName()].insert(at.x());
    tops[field->accessibleName()].insert(at.y());
  }
  EXPECT_EQ(lefts.size(), 6U);
  for (const auto& [name, places] : lefts) EXPECT_EQ(places.size(), 2U) << FromQt(name);
  for (const auto& [name, places] : tops) EXPECT_EQ(places.size(), 2U) << FromQt(name);
  EXPECT_EQ(tops["B(in)"], tops["Fa (psi)"]);
  EXPECT_EQ(tops["Area (in^2)"], tops["E (psi)"]);
}

TEST_F(LumberWindowsTest, TabWalksTheCalculatorInTheOrderOfWork) {
  OpenCalculator("press \"TRUSS\"");
  EXPECT_EQ(desktop.FocusIn("WTYPETR"), "1");
  desktop.Play({"press \"Width\" \"8\""});
  // The size accepted is only shown, and no stop.
  EXPECT_EQ(desktop.Walk("WTYPETR", 3), QStringList({"1", "Accept", "Select"}));
  EXPECT_EQ(desktop.Walk("WTYPETR", 6),
            QStringList({"B(in)", "D(in)", "Area (in^2)", "Fa (psi)", "Ft (psi)", "E (psi)"}));
}

TEST_F(LumberWindowsTest, TabGoesFromFamilyToFileToGradeToFactors) {
  OpenDataBase();
  desktop.Play({"press \"Machine Rated\""});
  EXPECT_EQ(desktop.Walk("wdb", 2), QStringList({"Data Base File to Load", "Grades"}));
}

/// Two clicks of the mouse on a row, as a hand makes them.
void DoubleClick(const QListWidget* list, int row) {
  const QPoint place = list->visualItemRect(list->item(row)).center();
  QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, place);
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, place);
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QApplication::processEvents();
}

TEST_F(LumberWindowsTest, ADoubleClickOnAGradeTakesIt) {
  DoubleClick(List(OpenDataBase(), "Grades"), 2);
  // The button is let go over what is there then.
  QTest::mouseRelease(desktop.Window("WTYPETR"), Qt::LeftButton);
  EXPECT_EQ(desktop.platform.FindWindow("wdb"), nullptr) << "as \"OK\" does";
  EXPECT_EQ(desktop.session.Member.GradeText, "No.1");
}

TEST_F(LumberWindowsTest, ReturnOnAGradeTakesIt) {
  OpenDataBase();
  desktop.Play({"key \"Grades\" Down"});
  desktop.PressKey("wdb", Qt::Key_Return);
  EXPECT_EQ(desktop.platform.FindWindow("wdb"), nullptr) << "as \"OK\" does";
  EXPECT_EQ(desktop.session.Member.GradeText, "No.1");
}

TEST_F(LumberWindowsTest, TheFocusFollowsTheFactorPanel) {
  OpenDataBase();
  desktop.Play({"press \"Stress Adjustment Factors\""});
  EXPECT_EQ(desktop.FocusIn("wdb"), "Member Width");
  desktop.Play({"press \"Stress Adjustment Factors\" \"Cancel\""});
  EXPECT_EQ(desktop.FocusIn("wdb"), "Stress Adjustment Factors");
}

}  // namespace
}  // namespace lignara
