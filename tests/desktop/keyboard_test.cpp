// What the keyboard alone can do: where the focus starts and goes, Return, Escape, mnemonics.

#include <gtest/gtest.h>

#include <QKeySequence>
#include <QLabel>
#include <QMap>
#include <QMenuBar>
#include <QPushButton>

#include "desktop/kit/text.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

class KeyboardTest : public testing::Test {
 protected:
  /// The captions that the focus visits by `count` presses of Tab.
  QStringList Walk(const char* window, int count) {
    QStringList visited = {desktop.FocusIn(window)};
    for (int i = 0; i < count; ++i) {
      desktop.PressKey(window, Qt::Key_Tab);
      visited << desktop.FocusIn(window);
    }
    return visited;
  }

  OpenDesktop desktop;
};

TEST_F(KeyboardTest, TrussInputStartsInItsFirstField) {
  desktop.Play({"press \"PRATT1\""});
  EXPECT_EQ(desktop.FocusIn("TR_INPUT"), "Number of Spans");
}

TEST_F(KeyboardTest, TrussInputStartsInTheFirstFieldThatCanBeTypedInto) {
  desktop.Play({"press \"KINGPOST\""});
  EXPECT_EQ(desktop.FocusIn("TR_INPUT"), "Total Length (ft)");
}

TEST_F(KeyboardTest, TabWalksTrussInputInTheOrderOfItsRows) {
  desktop.Play({"press \"SCI\""});
  EXPECT_EQ(Walk("TR_INPUT", 5), QStringList({"H1 (ft)", "Total Length (ft)", "H (ft)", "OK",
                                              "Cancel", "Slope Calculator"}));
}

TEST_F(KeyboardTest, TabGoesOnIntoTheOpenSlopeCalculator) {
  desktop.Play({"press \"SCI\"", "window TR_INPUT", "enter \"Total Length (ft)\" 30",
                "press \"Slope Calculator\""});
  EXPECT_EQ(Walk("TR_INPUT", 3), QStringList({"Rise", "Run", "OK", "Cancel"}));
}

TEST_F(KeyboardTest, ReturnInAFieldOfTrussInputAccepts) {
  desktop.Play({"press \"KINGPOST\"", "window TR_INPUT", "enter \"Total Length (ft)\" 24",
                "enter \"H (ft)\" 5"});
  desktop.PressKey("TR_INPUT", Qt::Key_Return);
  EXPECT_EQ(desktop.platform.OpenWindows(), QStringList({"main", "TRUSS"}));
}

TEST_F(KeyboardTest, EscapeInTrussInputCancels) {
  desktop.Play({"press \"KINGPOST\""});
  EXPECT_EQ(desktop.session.TrussType, "KINGPOST");
  desktop.PressKey("TR_INPUT", Qt::Key_Escape);
  EXPECT_EQ(desktop.platform.OpenWindows(), QStringList({"main"}));
  EXPECT_EQ(desktop.session.TrussType, "");
}

TEST_F(KeyboardTest, ReturnAndEscapeInTheSlopeCalculatorAreItsOwn) {
  desktop.Play({"press \"KINGPOST\"", "window TR_INPUT", "enter \"Total Length (ft)\" 24",
                "press \"Slope Calculator\"", "enter \"Run\" 12", "enter \"Rise\" 5"});
  desktop.PressKey("TR_INPUT", Qt::Key_Return);
  desktop.Play({"read \"H (ft)\"", "state \"Rise\""});
  // 5 / 12 x 12 ft.
  EXPECT_EQ(desktop.printed, QStringList({"value \"5.0\"", "state visible enabled"}));
  desktop.PressKey("TR_INPUT", Qt::Key_Escape);
  desktop.Play({"state \"Rise\""});
  EXPECT_EQ(desktop.printed.last(), "state hidden enabled");
  EXPECT_EQ(desktop.platform.OpenWindows(), QStringList({"main", "TR_INPUT"}));
}

TEST_F(KeyboardTest, ATrussStartsWithItsLoads) {
  desktop.OpenKingPost();
  EXPECT_EQ(Walk("TRUSS", 5), QStringList({"Top Node Loads (lbs)", "Top Node Loads (lbs)", "Enter",
                                           "All", "Unif. Load (lb/ft)", "Area Load (lbs/sf)"}));
  // The focus alone chooses no row.
  desktop.Play({"state \"Top Node Loads (lbs)\""});
  EXPECT_EQ(desktop.printed.last(), "state visible enabled selected -1");
}

TEST_F(KeyboardTest, TabGoesThroughATrussInTheOrderOfWork) {
  desktop.OpenKingPost();
  desktop.Play({"press \"Deflections\"", "press \"Area Load (lbs/sf)\""});
  const QStringList visited = Walk("TRUSS", 24);
  // From the panel at hand on: the results, the picture, and again the loads and the commands.
  EXPECT_EQ(FromQt(visited.mid(0, 6).join("|")),
            "Truss Spacing (ft)|Load (lb/sf)|Apply|Cancel|Axial Load (lbs)|Deflections");
  qsizetype before = visited.indexOf("Deflections");
  for (const char* stop : {"Top Node Loads (lbs)", "Enter", "Wood Type", "Run", "Memb. Len."}) {
    EXPECT_GT(visited.indexOf(stop), before) << stop;
    before = visited.indexOf(stop);
  }
}

TEST_F(KeyboardTest, ArrowsChooseARowOfTheNodeList) {
  desktop.OpenKingPost();
  desktop.PressKey("TRUSS", Qt::Key_Down);
  desktop.Play({"state \"Top Node Loads (lbs)\"", "read \"Top Node Loads (lbs)\""});
  EXPECT_EQ(desktop.printed, QStringList({"state visible enabled selected 1", "value \"0\""}));
}

TEST_F(KeyboardTest, ReturnInTheLoadFieldAndOnEnterEnters) {
  desktop.OpenKingPost();
  desktop.Play({"enter \"Top Node Loads (lbs)\" 100"});
  desktop.PressKey("TRUSS", Qt::Key_Return);
  desktop.Play({"rows \"Top Node Loads (lbs)\"", "enter \"Top Node Loads (lbs)\" 200"});
  EXPECT_EQ(desktop.printed.last(), "row 1 \"PT = 100.00\"");
  desktop.PressKey("TRUSS", Qt::Key_Tab);
  ASSERT_EQ(desktop.FocusIn("TRUSS"), "Enter");
  desktop.PressKey("TRUSS", Qt::Key_Return);
  desktop.Play({"rows \"Top Node Loads (lbs)\""});
  EXPECT_EQ(desktop.printed.last(), "row 1 \"PT = 200.00\"");
}

TEST_F(KeyboardTest, APanelThatOpensTakesTheFocusAndGivesItBack) {
  desktop.OpenKingPost();
  desktop.PressKey("TRUSS", Qt::Key_U, Qt::AltModifier);
  EXPECT_EQ(FromQt(desktop.FocusIn("TRUSS")), "Load (lb / ft)");
  desktop.PressKey("TRUSS", Qt::Key_Escape);
  EXPECT_EQ(desktop.FocusIn("TRUSS"), "Top Node Loads (lbs)");
}

TEST_F(KeyboardTest, EscapeClosesThePanelsFromTheNewestOn) {
  desktop.OpenKingPost();
  desktop.PressKey("TRUSS", Qt::Key_D, Qt::AltModifier);
  desktop.PressKey("TRUSS", Qt::Key_C, Qt::AltModifier);
  EXPECT_EQ(desktop.FocusIn("TRUSS"), "Actual and Allowable Axial Stresses");
  desktop.PressKey("TRUSS", Qt::Key_Escape);
  EXPECT_EQ(desktop.FocusIn("TRUSS"), "Deflections");
  desktop.PressKey("TRUSS", Qt::Key_Escape);
  EXPECT_EQ(desktop.FocusIn("TRUSS"), "Top Node Loads (lbs)");
  desktop.Play({"state \"Deflections\" \"Deflections\""});
  EXPECT_EQ(desktop.printed.last(), "state hidden enabled selected -1");
}

TEST_F(KeyboardTest, ArrowsChooseInAColumnOfChoiceButtons) {
  desktop.Play({"press \"Pure Wood Data Base\"", "window QUESTION", "press \"TRUSS\""});
  const auto pick = [&](Qt::Key key) {
    desktop.PressKey("WTYPETR", key);
    return desktop.FocusIn("WTYPETR");
  };
  // Two columns: 1 to 6, 8 to 18.
  EXPECT_EQ(pick(Qt::Key_Down), "2");
  EXPECT_EQ(pick(Qt::Key_Down), "3");
  EXPECT_EQ(pick(Qt::Key_Up), "2");
  EXPECT_EQ(pick(Qt::Key_Left), "2");
  desktop.Play({"window WTYPETR", "state \"Width\" \"2\"", "state \"Width\" \"3\""});
  EXPECT_EQ(desktop.printed,
            QStringList({"state visible enabled checked", "state visible enabled unchecked"}));
}

TEST_F(KeyboardTest, F5RunsAndCtrlWCloses) {
  desktop.OpenKingPost();
  desktop.PressKey("TRUSS", Qt::Key_F5);
  desktop.Play({"rows \"Axial Load (lbs)\""});
  EXPECT_GT(desktop.printed.size(), 5);
  desktop.PressKey("TRUSS", Qt::Key_W, Qt::ControlModifier);
  EXPECT_EQ(desktop.platform.OpenWindows(), QStringList({"main"}));
}

TEST_F(KeyboardTest, ALoadPanelTakesTheFocusIntoItsFirstField) {
  desktop.OpenKingPost();
  desktop.Play({"press \"Unif. Load (lb/ft)\""});
  EXPECT_EQ(FromQt(desktop.FocusIn("TRUSS")), "Load (lb / ft)");
  desktop.Play({"press \"Area Load (lbs/sf)\""});
  EXPECT_EQ(desktop.FocusIn("TRUSS"), "Truss Spacing (ft)");
}

TEST_F(KeyboardTest, EscapeClosesTheLoadPanelAndNotTheWindow) {
  desktop.OpenKingPost();
  desktop.Play({"press \"Unif. Load (lb/ft)\""});
  desktop.PressKey("TRUSS", Qt::Key_Escape);
  desktop.Play({"state \"Uniform Load (Line Load)\""});
  EXPECT_EQ(desktop.printed.last(), "state hidden enabled");
  EXPECT_EQ(desktop.platform.OpenWindows(), QStringList({"main", "TRUSS"}));
}

TEST_F(KeyboardTest, ReturnOnALauncherPictureStartsItsTruss) {
  Walk("main", 0);
  while (desktop.FocusIn("main") != "ENGLISH") desktop.PressKey("main", Qt::Key_Tab);
  desktop.PressKey("main", Qt::Key_Return);
  EXPECT_EQ(desktop.session.TrussType, "ENGLISH");
}

/// The letters under which Alt reaches the menus, buttons and fields of a window, each with the
/// captions that have it.
QMap<QString, QStringList> Mnemonics(ToolWindow* window) {
  QStringList captions;
  for (const QAction* menu : window->menuBar()->actions()) captions << menu->text();
  for (const QWidget* widget : window->findChildren<QWidget*>()) {
    if (widget->window() != window || !widget->isVisible()) continue;
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
      captions << button->text();
    const auto* label = qobject_cast<const QLabel*>(widget);
    if (label != nullptr && label->buddy() != nullptr) captions << label->text();
  }
  QMap<QString, QStringList> letters;
  for (const QString& caption : captions) {
    const QKeySequence key = QKeySequence::mnemonic(caption);
    if (!key.isEmpty()) letters[key.toString()] << caption;
  }
  return letters;
}

class MnemonicTest : public testing::Test {
 protected:
  void ExpectDistinct(const char* window) {
    const auto letters = Mnemonics(desktop.Window(window));
    EXPECT_FALSE(letters.isEmpty()) << window;
    for (const QStringList& captions : letters) {
      EXPECT_EQ(captions.size(), 1) << window << ": " << FromQt(captions.join(", "));
    }
  }

  OpenDesktop desktop;
};

TEST_F(MnemonicTest, AreDistinctInTheLauncher) { ExpectDistinct("main"); }

TEST_F(MnemonicTest, AreDistinctInTheInputOfEachKindOfTruss) {
  for (const char* type : {"press \"PRATT1\"", "press \"SCI\""}) {
    desktop.Play({"window main", type, "window TR_INPUT", "enter \"Total Length (ft)\" 30",
                  "press \"Slope Calculator\""});
    ExpectDistinct("TR_INPUT");
  }
}

TEST_F(MnemonicTest, AreDistinctInTheTrussWithAllItsPanels) {
  desktop.OpenKingPost();
  desktop.Play(kOpenAllTrussPanels);
  ExpectDistinct("TRUSS");
}

TEST_F(MnemonicTest, AreDistinctInTheSingleSpanBeamWithAllItsPanels) {
  desktop.Play({"press \"Single Span Beams\"", "window MLSP", "press \"RUN\"",
                "press \"Statics Check\"", "press \"View Diag.\"",
                "press \"More values reqd. for stress check\"",
                "menu \"Files\" \"Project Description...\""});
  ExpectDistinct("MLSP");
}

TEST_F(MnemonicTest, AreDistinctInTheSmallWindows) {
  desktop.Play({"press \"Pure Wood Data Base\"", "menu \"Help\" \"About...\""});
  ExpectDistinct("QUESTION");
  ExpectDistinct("ABOUT");
}

TEST_F(MnemonicTest, AreDistinctInRepeatWith) {
  desktop.platform.OpenWindow("REPEAT");
  ExpectDistinct("REPEAT");
}

TEST_F(MnemonicTest, AreDistinctInEachPlywoodPanel) {
  desktop.Play({"press \"Ply Wood\"", "window ply"});
  for (const char* panel : {"Standard Live Loads", "Glued Floors", "Sub Floors", "Heavy Duty",
                            "Truck Duty", "Wall Sheathing", "Shear Walls", "Roof Sheeting"}) {
    desktop.Play({("press \"" + std::string(panel) + "\"").c_str()});
    ExpectDistinct("ply");
  }
  desktop.Play({"menu \"Options\" \"Veneer Grades...\""});
  ExpectDistinct("ply");
}

TEST_F(MnemonicTest, AreDistinctInTheLumberWindows) {
  for (const char* client : {"press \"TRUSS\"", "press \"BEAM\""}) {
    desktop.Play({"window main", "press \"Pure Wood Data Base\"", "window QUESTION", client});
    ExpectDistinct("WTYPETR");
    desktop.Play({"window WTYPETR", "press \"Cancel\""});
  }
  desktop.Play({"window main", "press \"Pure Wood Data Base\"", "window QUESTION", "press \"BEAM\"",
                "window WTYPETR", "press \"Wood Type Data Base\"", "window wdb",
                "press \"Stress Adjustment Factors\""});
  ExpectDistinct("wdb");
}

TEST_F(MnemonicTest, AreDistinctInTheWindowsOfConnections) {
  desktop.Play({"press \"Fastener Data Base\"", "window FASTENER", "press \"Bolts\""});
  ExpectDistinct("bolts");
  for (const char* kind : {"press \"Nails\"", "press \"Lag Screws\""}) {
    desktop.Play({"window FASTENER", kind});
    ExpectDistinct("FASTENER");
  }
}

}  // namespace
}  // namespace lignara
