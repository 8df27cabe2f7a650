// A whole truss, from the launcher to the saved report, with nothing but key events as the display
// sends them.

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "desktop/kit/text.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

class TrussByKeyboard : public testing::Test {
 protected:
  void Press(Qt::Key key, int times = 1) {
    for (int i = 0; i < times; ++i) desktop.PressKey(window, key);
  }
  void Alt(Qt::Key key) { desktop.PressKey(window, key, Qt::AltModifier); }
  void Control(Qt::Key key) { desktop.PressKey(window, key, Qt::ControlModifier); }
  void Type(const char* text) { desktop.Type(window, text); }
  std::string Focus() { return FromQt(desktop.FocusIn(window)); }
  std::string Open() { return FromQt(desktop.platform.OpenWindows().join(' ')); }
  std::string Told(std::initializer_list<const char*> lines) {
    desktop.printed.clear();
    desktop.Play(lines);
    return FromQt(desktop.printed.join('\n'));
  }

  void EnterDimensions();
  void EnterLoads();
  void ChooseSizes();
  void ChooseWood();

  OpenDesktop desktop;
  const char* window = "main";
};

/// A fink of 6 panels, 30 ft long; the slope calculator gives 6 in 12 of 15 ft, 7.5 ft.
void TrussByKeyboard::EnterDimensions() {
  for (int i = 0; i < 20 && Focus() != "FINK"; ++i) Press(Qt::Key_Tab);
  ASSERT_EQ(Focus(), "FINK");
  Press(Qt::Key_Return);
  window = "TR_INPUT";
  ASSERT_EQ(Focus(), "Number of Spans");
  Type("6");
  Press(Qt::Key_Tab);
  Type("30");
  Alt(Qt::Key_S);
  ASSERT_EQ(Focus(), "Rise");
  Type("6");
  Press(Qt::Key_Tab);
  Type("12");
  Press(Qt::Key_Return);
  Press(Qt::Key_Escape);
  ASSERT_EQ(Focus(), "H (ft)");
  Press(Qt::Key_Return);
  ASSERT_EQ(Open(), "main TRUSS");
}

/// Return enters a load and goes on to the next node.
void TrussByKeyboard::EnterLoads() {
  window = "TRUSS";
  ASSERT_EQ(Focus(), "Top Node Loads (lbs)");
  Press(Qt::Key_Down);
  Press(Qt::Key_Tab);
  for (const char* load : {"100", "200", "300", "400", "500"}) {
    Type(load);
    Press(Qt::Key_Return);
  }
  EXPECT_EQ(Told({"window TRUSS", "rows \"Top Node Loads (lbs)\""}),
            "row 0 \"\"\nrow 1 \"PL 1 = 100.00\"\nrow 2 \"PL 2 = 200.00\"\nrow 3 \"PT = 300.00\"\n"
            "row 4 \"PR 1 = 400.00\"\nrow 5 \"PR 2 = 500.00\"");
}

/// 2 by 6 for all four groups.
void TrussByKeyboard::ChooseSizes() {
  Alt(Qt::Key_W);
  ASSERT_EQ(Open(), "main TRUSS WTYPETR");
  window = "WTYPETR";
  ASSERT_EQ(Focus(), "1");
  Press(Qt::Key_Down);
  ASSERT_EQ(Focus(), "2");
  Press(Qt::Key_Tab);
  for (int i = 0; i < 10 && Focus() != "6"; ++i) Press(Qt::Key_Down);
  ASSERT_EQ(Focus(), "6");
  Alt(Qt::Key_A);
  EXPECT_EQ(Told({"window WTYPETR", "read \"Size Selection\" \"Size\""}), "value \"2X6\"");
  for (int chosen = 0, i = 0; chosen < 4 && i < 60; ++i) {
    Press(Qt::Key_Tab);
    if (Focus() != "Select") continue;
    Press(Qt::Key_Return);
    ++chosen;
  }
  for (const Qt::Key tick : {Qt::Key_T, Qt::Key_B, Qt::Key_V, Qt::Key_D}) Alt(tick);
}

/// The first grade of the first file of Western Woods; Return on the grade is "OK".
void TrussByKeyboard::ChooseWood() {
  Alt(Qt::Key_W);
  ASSERT_EQ(Open(), "main TRUSS WTYPETR wdb");
  window = "wdb";
  Alt(Qt::Key_W);
  Press(Qt::Key_Tab);
  ASSERT_EQ(Focus(), "Data Base File to Load");
  Press(Qt::Key_Down);
  Press(Qt::Key_Tab);
  ASSERT_EQ(Focus(), "Grades");
  Press(Qt::Key_Down);
  Press(Qt::Key_Return);
  window = "WTYPETR";
  ASSERT_EQ(Open(), "main TRUSS WTYPETR");
  EXPECT_EQ(Told({"window WTYPETR", "read \"Top Members\" \"Ft (psi)\""}), "value \"1000.00\"");
  Alt(Qt::Key_O);
  ASSERT_EQ(Open(), "main TRUSS");
  window = "TRUSS";
}

TEST_F(TrussByKeyboard, IsEnteredRunReadSavedAndClosed) {
  ASSERT_NO_FATAL_FAILURE(EnterDimensions());
  ASSERT_NO_FATAL_FAILURE(EnterLoads());
  ASSERT_NO_FATAL_FAILURE(ChooseSizes());
  ASSERT_NO_FATAL_FAILURE(ChooseWood());
  Press(Qt::Key_F5);
  // The loads stand 1.67 ft x 1.25 and 5 x 1.25 ... along the chord; together they are 1500 lbs.
  const std::string reactions = Told({"window TRUSS", "read \"Left Side\"", "read \"Right Side\""});
  EXPECT_NE(reactions, "value \"\"\nvalue \"\"");
  Alt(Qt::Key_D);
  EXPECT_EQ(Focus(), "Deflections");
  EXPECT_NE(Told({"rows \"Deflections\""}), "");
  Alt(Qt::Key_C);
  EXPECT_EQ(Focus(), "Actual and Allowable Axial Stresses");
  Press(Qt::Key_Escape, 2);

  QTemporaryDir directory;
  const QString file = directory.filePath("truss.txt");
  desktop.platform.KeepAnswer({ScriptAnswer::Kind::File, file});
  Control(Qt::Key_S);
  QFile report(file);
  ASSERT_TRUE(report.open(QIODevice::ReadOnly));
  EXPECT_TRUE(report.readAll().contains("TRUSS TYPE IS: FINK TRUSS"));
  desktop.printed.clear();
  Control(Qt::Key_P);
  EXPECT_TRUE(desktop.printed.contains("printed \"              TRUSS TYPE IS: FINK TRUSS\""));
  Control(Qt::Key_W);
  EXPECT_EQ(Open(), "main");
}

}  // namespace
}  // namespace lignara
