// What a user has to see and reach in the windows of multi-span beams.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTableWidget>
#include <set>

#include "desktop/kit/picture_widget.h"
#include "desktop/kit/text.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

class MultiSpanWindowsTest : public testing::Test {
 protected:
  ToolWindow* OpenInput() {
    desktop.Play({"window main", "enter \"Enter No. of Spans\" 2", "press \"Multi-Span Beam\"",
                  "window MS"});
    QApplication::processEvents();
    return desktop.Window("MS");
  }

  ToolWindow* OpenResults() {
    OpenInput();
    desktop.Play({"enter \"Length(ft)\" 10", "enter \"Unif. ld(lb/ft)\" 120",
                  "enter \"Mom. of Inertia(in^4)\" 100", "press \"Update Span\"",
                  "press \"Span\" \">\"", "press \"Load Same \"", "press \"Run\"",
                  "window MDOUTPUT"});
    QApplication::processEvents();
    return desktop.Window("MDOUTPUT");
  }

  /// Runs the member in the fields on two spans and checks it.
  ToolWindow* OpenResultsOfTheMember() {
    desktop.Play({"window MS", "enter \"Length(ft)\" 10", "enter \"Unif. ld(lb/ft)\" 120",
                  "press \"Update Span\"", "press \"Span\" \">\"", "press \"Load Same \"",
                  "press \"Run\"", "window MDOUTPUT", "menu \"Check Stress\" \"Wood member...\""});
    QApplication::processEvents();
    return desktop.Window("MDOUTPUT");
  }

  ToolWindow* OpenAllPanels() {
    ToolWindow* window = OpenResults();
    desktop.Play({"menu \"Show Deflected Shape...\"", "menu \"Files\" \"Project Description...\"",
                  "press \"Statics Check\""});
    QApplication::processEvents();
    return window;
  }

  QString Read(const char* line) {
    desktop.Play({line});
    return desktop.printed.back();
  }

  static QWidget* Control(ToolWindow* window, const char* name) {
    for (QWidget* control : VisibleControls(window)) {
      if (CaptionOf(control) == name) return control;
    }
    throw std::runtime_error(name);
  }

  OpenDesktop desktop;
};

TEST_F(MultiSpanWindowsTest, EveryControlHasAName) {
  for (ToolWindow* window : {OpenAllPanels(), desktop.Window("MS")}) {
    for (const QWidget* control : VisibleControls(window)) {
      EXPECT_FALSE(CaptionOf(control).isEmpty()) << control->metaObject()->className();
    }
  }
}

TEST_F(MultiSpanWindowsTest, SmallestWindowsFitASmallScreen) {
  for (ToolWindow* window : {OpenAllPanels(), desktop.Window("MS")}) {
    const QSize least = window->minimumSizeHint();
    EXPECT_LE(least.width(), 1000) << FromQt(window->name());
    EXPECT_LE(least.height(), 700) << FromQt(window->name());
  }
}

TEST_F(MultiSpanWindowsTest, NoCaptionIsCutOffInTheSmallestWindow) {
  for (ToolWindow* window : {OpenAllPanels(), desktop.Window("MS")}) {
    window->resize(window->minimumSizeHint());
    QApplication::processEvents();
    ExpectNoCaptionCutOff(window);
  }
}

TEST_F(MultiSpanWindowsTest, PicturesAndTablesTakeTheRoomOfALargerWindow) {
  ToolWindow* window = OpenResults();
  QWidget* shear = Control(window, "Shear Diag.");
  const QSize before = shear->size();
  const int table = window->findChild<QTableWidget*>()->height();
  window->resize(window->size() + QSize(200, 200));
  QApplication::processEvents();
  EXPECT_GE(shear->width(), before.width() + 150);
  EXPECT_GT(shear->height(), before.height() + 40);
  EXPECT_GT(window->findChild<QTableWidget*>()->height(), table + 40);
}

TEST_F(MultiSpanWindowsTest, MnemonicsAreDistinct) {
  for (ToolWindow* window : {OpenAllPanels(), desktop.Window("MS")}) {
    std::multiset<QString> keys;
    const auto add = [&](const QString& text) {
      const QKeySequence key = QKeySequence::mnemonic(text);
      if (!key.isEmpty()) keys.insert(key.toString());
    };
    for (const QAction* menu : window->menuBar()->actions()) add(menu->text());
    for (const auto* button : window->findChildren<QAbstractButton*>()) add(button->text());
    for (const QString& key : keys) {
      EXPECT_EQ(keys.count(key), 1u) << FromQt(window->name()) << " " << FromQt(key);
    }
  }
}

// By keyboard alone.

TEST_F(MultiSpanWindowsTest, TabWalksTheSpanInTheOrderOfWork) {
  OpenInput();
  EXPECT_EQ(desktop.FocusIn("MS"), "Length(ft)");
  EXPECT_EQ(desktop.Walk("MS", 5), QStringList({"Unbraced Length (ft)", "Unif. ld(lb/ft)", "bf(in)",
                                                "d(in)", "Gross Area , in^2"}));
  EXPECT_EQ(desktop.Walk("MS", 6),
            QStringList({"Youngs Mod.(psi)", "Mom. of Inertia(in^4)", "Sect. Mod.(in^3)",
                         "Shear Area(in^2)", "Base All. Bending Str. (psi)",
                         "Base All. Shear Str. (psi)"}));
}

TEST_F(MultiSpanWindowsTest, ReturnStoresTheSpanOrTheLoad) {
  OpenInput();
  desktop.Play({"enter \"Length(ft)\" 10", "key \"Length(ft)\" Return"});
  EXPECT_EQ(Read("read \"Span Note\""), "value \"\"");
  desktop.Play({"enter \"X(ft)\" 4", "enter \"lbs\" 500", "key \"lbs\" Return"});
  EXPECT_EQ(Read("read \"# of Point Loads\""), "value \"1\"");
}

TEST_F(MultiSpanWindowsTest, ArrowKeysMoveTheCursorOfTheDiagrams) {
  ToolWindow* window = OpenResults();
  Control(window, "Moment Diag.")->setFocus();
  for (int i = 0; i < 4; ++i) desktop.PressKey("MDOUTPUT", Qt::Key_Right);
  EXPECT_EQ(Read("read \"Location\""), "value \".6\"");  // from 0 by a hundredth of 20 ft
  EXPECT_EQ(Read("read \"Shear\""), "value \"378.\"");   // 450 - 120 x 0.6
  desktop.PressKey("MDOUTPUT", Qt::Key_Left);
  EXPECT_EQ(Read("read \"Location\""), "value \".4\"");
}

TEST_F(MultiSpanWindowsTest, CursorEndsWithTheBeam) {
  ToolWindow* window = OpenResults();
  Control(window, "Shear Diag.")->setFocus();
  for (int i = 0; i < 3; ++i) desktop.PressKey("MDOUTPUT", Qt::Key_Left);
  EXPECT_EQ(Read("read \"Location\""), "value \"19.6\"");
  for (int i = 0; i < 5; ++i) desktop.PressKey("MDOUTPUT", Qt::Key_Right);
  EXPECT_EQ(Read("read \"Location\""), "value \"20.\"");
}

TEST_F(MultiSpanWindowsTest, EscapeClosesTheDeflectedShape) {
  ToolWindow* window = OpenResults();
  desktop.Play({"menu \"Show Deflected Shape...\""});
  Control(window, "Station")->setFocus();
  desktop.PressKey("MDOUTPUT", Qt::Key_Right);
  EXPECT_EQ(Read("read \"Location(ft)\""), "value \"0.400\"");
  desktop.PressKey("MDOUTPUT", Qt::Key_Escape);
  EXPECT_EQ(Read("state \"Station\""), "state hidden enabled");
}

// By mouse.

TEST_F(MultiSpanWindowsTest, MouseOverADiagramReadsIt) {
  QWidget* picture = Control(OpenResults(), "Shear Diag.");
  const double margin = 0.012 * picture->width();
  const QPointF quarter(margin + (picture->width() - 2 * margin) / 4, 10);
  QMouseEvent move(QEvent::MouseMove, quarter, quarter, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(picture, &move);
  EXPECT_EQ(Read("read \"Location\""), "value \"5.\"");
  EXPECT_EQ(Read("read \"Shear\""), "value \"-150.\"");  // 450 - 120 x 5
}

TEST_F(MultiSpanWindowsTest, PressOnTheDeflectedShapeMovesItsStation) {
  OpenResults();
  desktop.Play({"menu \"Show Deflected Shape...\"", "click \"Deflected Shape\" 4.1 0"});
  EXPECT_EQ(Read("read \"Location(ft)\""), "value \"4.000\"");
}

// Results older than the beam.

TEST_F(MultiSpanWindowsTest, ResultsOlderThanTheBeamAreGreyAndSaySo) {
  ToolWindow* window = OpenAllPanels();
  const auto grey = [&](const char* name) {
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
      const bool result = widget->inherits("QLineEdit") || widget->inherits("QTableWidget");
      if (result && CaptionOf(widget) == name) return widget->property("outOfDate").toBool();
    }
    throw std::runtime_error(name);
  };
  const char* results[] = {
      "Span End Moments", "Support Reactions", "Location",           "Shear",
      "Moment",           "Max Moment",        "Location(ft)",       "Def.(in)",
      "Rotation(rad)",    "Max(in) =",         "Max Moment Location"};
  for (const char* name : results) EXPECT_FALSE(grey(name)) << name;
  desktop.Play({"window MS", "press \"Far Right Support\" \"Fixed\"", "window MDOUTPUT"});
  for (const char* name : results) EXPECT_TRUE(grey(name)) << name;
  EXPECT_EQ(Read("read \"Status\""), "value \"The beam has changed since this run: run it again\"");
  desktop.Play({"window MS", "press \"Run\"", "window MDOUTPUT"});
  EXPECT_FALSE(grey("Support Reactions"));
  EXPECT_EQ(Read("read \"Status\""), "value \"\"");
}

TEST_F(MultiSpanWindowsTest, AStressCheckOlderThanItsMembersIsGrey) {
  OpenInput();
  desktop.Play({"menu \"Options\" \"Member Data Base...\"", "window WTYPETR",
                "press \"Width\" \"2\"", "press \"Depth\" \"10\"", "press \"Accept\"",
                "press \"OK\""});
  QWidget* list = Control(OpenResultsOfTheMember(), "Stress Check");
  EXPECT_FALSE(list->property("outOfDate").toBool());
  desktop.Play({"enter \"Unbraced Length (ft)\" 4", "press \"Unbraced Lengths\" \"Enter\""});
  EXPECT_TRUE(list->property("outOfDate").toBool());
  desktop.Play({"menu \"Check Stress\" \"Wood member...\""});
  EXPECT_FALSE(list->property("outOfDate").toBool());
}

// The lines of a glulam check are long: none hides its value.
TEST_F(MultiSpanWindowsTest, LongLinesOfAStressCheckScrollSideways) {
  OpenInput();
  desktop.Play({"menu \"Options\" \"Member Data Base...\"", "window WTYPETR",
                "press \"Width\" \"2\"", "press \"Depth\" \"10\"", "press \"Accept\"",
                "press \"OK\""});
  auto* list = qobject_cast<QListWidget*>(Control(OpenResultsOfTheMember(), "Stress Check"));
  ASSERT_NE(list, nullptr);
  list->setFixedWidth(120);
  QApplication::processEvents();
  EXPECT_GT(list->horizontalScrollBar()->maximum(), 0);
}

TEST_F(MultiSpanWindowsTest, DocumentsBearTheTitleOfTheProject) {
  ToolWindow* window = OpenAllPanels();
  EXPECT_EQ(window->DocumentName(), "Moment Distribution Output");
  EXPECT_EQ(desktop.Window("MS")->DocumentName(), "Multi Span Beams");
  desktop.Play({"enter \"Title:\" \" Library roof \"",
                "press \"Project Description for Print Header\" \"OK\""});
  EXPECT_EQ(window->DocumentName(), "Library roof");
  EXPECT_EQ(desktop.Window("MS")->DocumentName(), "Library roof");
}

TEST_F(MultiSpanWindowsTest, OpenInsideASmallScreenWhateverTheScreen) {
  for (ToolWindow* window : {OpenResults(), desktop.Window("MS")}) {
    EXPECT_LE(window->width(), 1016) << FromQt(window->name());
    EXPECT_LE(window->height(), 732) << FromQt(window->name());
  }
}

// A new run.

TEST_F(MultiSpanWindowsTest, RunFillsTheOpenWindowAnewWhereItStands) {
  ToolWindow* window = OpenAllPanels();
  desktop.Play({"menu \"Check Stress\" \"Wood member...\""});
  window->move(5, 7);
  const QPoint place = window->pos();
  desktop.Play({"window MS", "press \"Far Right Support\" \"Fixed\"", "press \"Run\"",
                "window MDOUTPUT", "state \"Station\""});
  EXPECT_EQ(desktop.Window("MDOUTPUT"), window);
  EXPECT_EQ(window->pos(), place);
  EXPECT_EQ(desktop.printed.back(), "state hidden enabled");
  EXPECT_EQ(Read("read \"Location\""), "value \"\"");
}

TEST_F(MultiSpanWindowsTest, ResultsStayWhenTheInputIsClosedOrOpenedAnew) {
  OpenResults();
  desktop.Play({"window MS", "menu \"Files\" \"Exit\"", "window main",
                "enter \"Enter No. of Spans\" 3", "press \"Multi-Span Beam\"", "window MDOUTPUT",
                "menu \"Show Deflected Shape...\"", "click \"Shear Diag.\" 10 0"});
  EXPECT_EQ(Read("read \"Shear\""), "value \"750.\"");
}

TEST_F(MultiSpanWindowsTest, IntegrationsGoWithTheirWindow) {
  OpenInput();
  desktop.Play({"menu \"Options\" \"Integrations...\""});
  EXPECT_TRUE(desktop.platform.OpenWindows().contains("INTGR"));
  desktop.platform.CloseWindow("MS");
  EXPECT_FALSE(desktop.platform.OpenWindows().contains("INTGR"));
}

}  // namespace
}  // namespace lignara
