// The panels on the screen: all rows and captions to be seen, nothing moves from panel to panel,
// and all of it by keyboard.

#include "plywood/ply_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QListWidget>
#include <QScrollBar>

#include "desktop/kit/text.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

struct PanelCase {
  const char* open;   ///< the script line that opens it
  const char* first;  ///< the control where the work starts
};

constexpr PanelCase kPanels[] = {{"press \"Standard Live Loads\"", "Panel  Rating"},
                                 {"press \"Glued Floors\"", "Joist Wood Type"},
                                 {"press \"Sub Floors\"", "Panel Rating"},
                                 {"press \"Heavy Duty\"", "12"},
                                 {"press \"Truck Duty\"", "3"},
                                 {"press \"Wall Sheathing\"", "Standard"},
                                 {"press \"Shear Walls\"", "APA Structural 1 Grades"},
                                 {"press \"Roof Sheeting\"", "Long dim. perp. to supports"},
                                 {"menu \"Options\" \"Veneer Grades...\"", "Grade"},
                                 {"menu \"Options\" \"Exposure Ratings...\"", "Level"},
                                 {"menu \"Options\" \"Species Classificaiton...\"", "Level"}};

class PlyWindowOnScreen : public testing::TestWithParam<PanelCase> {
 protected:
  PlyWindowOnScreen() {
    desktop.Play({"press \"Ply Wood\"", "window ply"});
    QApplication::processEvents();
    window = desktop.Window("ply");
  }

  void OpenPanel() {
    desktop.Play({GetParam().open});
    QApplication::processEvents();
  }

  std::vector<const QListWidget*> Lists() const {
    std::vector<const QListWidget*> lists;
    for (QWidget* control : VisibleControls(window)) {
      if (const auto* list = qobject_cast<const QListWidget*>(control)) lists.push_back(list);
    }
    return lists;
  }

  OpenDesktop desktop;
  ToolWindow* window = nullptr;
};

TEST_P(PlyWindowOnScreen, TakesNoMoreThanASmallScreen) {
  OpenPanel();
  EXPECT_LE(window->minimumSizeHint().width(), 1000);
  EXPECT_LE(window->minimumSizeHint().height(), 700);
}

TEST_P(PlyWindowOnScreen, KeepsItsSizeWhenAPanelOpens) {
  const QSize before = window->size();
  OpenPanel();
  EXPECT_EQ(window->size(), before);
}

TEST_P(PlyWindowOnScreen, CutsNoCaptionInTheSmallestWindow) {
  OpenPanel();
  window->resize(window->minimumSizeHint());
  QApplication::processEvents();
  ExpectNoCaptionCutOff(window);
}

TEST_P(PlyWindowOnScreen, NamesEveryControl) {
  OpenPanel();
  for (const QWidget* control : VisibleControls(window)) {
    EXPECT_FALSE(CaptionOf(control).isEmpty()) << control->metaObject()->className();
  }
}

TEST_P(PlyWindowOnScreen, ShowsAllRowsOfTheListsWhole) {
  OpenPanel();
  const std::vector<const QListWidget*> lists = Lists();
  ASSERT_FALSE(lists.empty());
  for (int row = 0; row < lists[0]->count(); ++row) {
    desktop.Play(
        {("select \"" + FromQt(CaptionOf(lists[0])) + "\" " + std::to_string(row)).c_str()});
    QApplication::processEvents();
    for (const QListWidget* list : lists) {
      EXPECT_GE(list->viewport()->height(), list->sizeHintForRow(0) * list->count())
          << FromQt(CaptionOf(list));
      EXPECT_GE(list->viewport()->width(), list->sizeHintForColumn(0)) << FromQt(CaptionOf(list));
    }
  }
}

TEST_P(PlyWindowOnScreen, PutsTheFocusWhereTheWorkStarts) {
  OpenPanel();
  EXPECT_EQ(FromQt(desktop.FocusIn("ply")), GetParam().first);
}

TEST_P(PlyWindowOnScreen, EscapeClosesThePanelAndNotTheWindow) {
  OpenPanel();
  desktop.PressKey("ply", Qt::Key_Escape);
  EXPECT_TRUE(Lists().empty());
  EXPECT_EQ(desktop.platform.OpenWindows(), QStringList({"main", "ply"}));
}

TEST_P(PlyWindowOnScreen, TabGoesThroughTheKeysToTheCommands) {
  OpenPanel();
  QStringList visited;
  for (int i = 0; i < 40 && !visited.contains("Close"); ++i) {
    visited << desktop.FocusIn("ply");
    desktop.PressKey("ply", Qt::Key_Tab);
  }
  const qsizetype print = visited.indexOf("Print");
  EXPECT_GE(print, 1) << FromQt(visited.join(", "));
  EXPECT_EQ(visited.mid(print), QStringList({"Print", "Save Output to Text File", "Close"}));
  EXPECT_EQ(FromQt(visited.first()), GetParam().first);
}

INSTANTIATE_TEST_SUITE_P(All, PlyWindowOnScreen, testing::ValuesIn(kPanels));

class PlyWindowByKeyboard : public testing::Test {
 protected:
  PlyWindowByKeyboard() { desktop.Play({"press \"Ply Wood\"", "window ply"}); }

  QString Read(const char* line) {
    desktop.Play({line});
    return desktop.printed.last();
  }

  OpenDesktop desktop;
};

TEST_F(PlyWindowByKeyboard, ReturnOpensThePanelOfTheFirstButton) {
  EXPECT_EQ(desktop.FocusIn("ply"), "Standard Live Loads");
  desktop.PressKey("ply", Qt::Key_Return);
  EXPECT_EQ(desktop.FocusIn("ply"), "Panel  Rating");
}

TEST_F(PlyWindowByKeyboard, ArrowsChooseInTheListsAndTheOptionsAnswerAtOnce) {
  desktop.PressKey("ply", Qt::Key_Return);
  desktop.PressKey("ply", Qt::Key_Down);  // 20
  desktop.PressKey("ply", Qt::Key_Tab);
  desktop.PressKey("ply", Qt::Key_Down);  // 16 in
  EXPECT_EQ(Read("read \"Live Load (psf)\""), "value \"150\"");
  EXPECT_EQ(Read("read \"Nail Spacing, edges (in)\""), "value \"6\"");
  desktop.PressKey("ply", Qt::Key_Tab);
  EXPECT_EQ(desktop.FocusIn("ply"), "Nail only");
  desktop.PressKey("ply", Qt::Key_Left);
  EXPECT_EQ(Read("read \"Nail Spacing, edges (in)\""), "value \"12\"");
}

TEST_F(PlyWindowByKeyboard, PrintAndSaveHaveTheirKeysInEachPanel) {
  for (const char* panel : {"press \"Sub Floors\"", "press \"Shear Walls\""}) {
    desktop.printed.clear();
    desktop.Play({panel});
    desktop.PressKey("ply", Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(FromQt(desktop.printed.value(0)), "page 1") << panel;
    desktop.printed.clear();
    desktop.Play({"answer cancel"});
    desktop.PressKey("ply", Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(FromQt(desktop.printed.value(0)), "dialog save \"Text(*.txt)|*.txt|All(*.*)|*.*|\"")
        << panel;
  }
}

TEST_F(PlyWindowByKeyboard, AltAndALetterOpenAPanelFromWithinAnother) {
  desktop.Play({"press \"Heavy Duty\""});
  desktop.PressKey("ply", Qt::Key_G, Qt::AltModifier);
  EXPECT_EQ(FromQt(desktop.FocusIn("ply")), "Joist Wood Type");
  desktop.PressKey("ply", Qt::Key_L, Qt::AltModifier);
  EXPECT_EQ(FromQt(desktop.FocusIn("ply")), "Panel  Rating");
}

TEST_F(PlyWindowByKeyboard, EscapeLeadsBackToTheButtonOfThePanel) {
  desktop.Play({"press \"Truck Duty\""});
  desktop.PressKey("ply", Qt::Key_Escape);
  EXPECT_EQ(desktop.FocusIn("ply"), "Truck Duty");
}

}  // namespace
}  // namespace lignara
