// What a user has to see and reach in the windows of fasteners and bolts.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMap>
#include <QScrollBar>

#include "desktop/kit/picture_widget.h"
#include "desktop/kit/text.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

class ConnectionWindowsTest : public testing::Test {
 protected:
  ToolWindow* OpenFasteners() {
    desktop.Play({"press \"Fastener Data Base\"", "window FASTENER"});
    return desktop.Window("FASTENER");
  }

  ToolWindow* OpenBolts() {
    OpenFasteners();
    desktop.Play({"press \"Bolts\"", "window bolts"});
    return desktop.Window("bolts");
  }

  template <typename Widget>
  static Widget* Find(ToolWindow* window, const char* name) {
    for (Widget* widget : window->findChildren<Widget*>()) {
      if (widget->accessibleName() == name) return widget;
    }
    throw std::runtime_error(name);
  }

  /// The captions at which `stops` presses of Tab stop.
  QStringList Walk(const char* window, int stops) {
    QStringList path = {desktop.FocusIn(window)};
    for (int i = 0; i < stops; ++i) {
      desktop.PressKey(window, Qt::Key_Tab);
      path << desktop.FocusIn(window);
    }
    return path;
  }

  OpenDesktop desktop;
};

TEST_F(ConnectionWindowsTest, EveryControlHasAName) {
  ToolWindow* bolts = OpenBolts();
  for (ToolWindow* window : {bolts, desktop.Window("FASTENER")}) {
    for (const QWidget* control : VisibleControls(window)) {
      EXPECT_FALSE(CaptionOf(control).isEmpty())
          << FromQt(window->name()) << ": " << control->metaObject()->className();
    }
  }
}

TEST_F(ConnectionWindowsTest, SmallestWindowsFitASmallScreenAndCutNoCaption) {
  ToolWindow* bolts = OpenBolts();
  for (ToolWindow* window : {bolts, desktop.Window("FASTENER")}) {
    const QSize least = window->minimumSizeHint();
    EXPECT_LE(least.width(), 1000) << FromQt(window->name());
    EXPECT_LE(least.height(), 700) << FromQt(window->name());
    window->resize(least);
    QApplication::processEvents();
    ExpectNoCaptionCutOff(window);
  }
  desktop.Play({"window FASTENER", "press \"Lag Screws\""});
  QApplication::processEvents();
  ExpectNoCaptionCutOff(desktop.Window("FASTENER"));
}

TEST_F(ConnectionWindowsTest, ShortListsShowAllTheirRows) {
  ToolWindow* window = OpenFasteners();
  desktop.Play({"press \"Lag Screws\""});
  QApplication::processEvents();
  for (const char* name : {"Size", "Embedment Length of Lag Screw (in)"}) {
    const auto* list = Find<QListWidget>(window, name);
    EXPECT_FALSE(list->verticalScrollBar()->isVisible()) << name;
    EXPECT_GE(list->viewport()->height(), list->sizeHintForRow(0) * list->count()) << name;
  }
}

TEST_F(ConnectionWindowsTest, NothingMovesFromKindToKind) {
  ToolWindow* window = OpenFasteners();
  const auto places = [&] {
    QApplication::processEvents();
    return std::vector<QRect>{Find<QListWidget>(window, "Size")->geometry(),
                              Find<QGroupBox>(window, "Wood")->geometry(),
                              QRect(window->pos(), window->size())};
  };
  const std::vector<QRect> nails = places();
  for (const char* kind :
       {"press \"Spikes\"", "press \"Wood Screws\"", "press \"Lag Screws\"", "press \"Nails\""}) {
    desktop.Play({kind});
    EXPECT_EQ(places(), nails) << kind;
  }
}

TEST_F(ConnectionWindowsTest, LengthsAreDecimalInches) {
  ToolWindow* window = OpenBolts();
  for (const char* name : {"L1", "L2", "L3"}) {
    EXPECT_EQ(Find<QLineEdit>(window, name)->toolTip(), "decimal inches") << name;
  }
  EXPECT_EQ(Find<QLineEdit>(window, "A(deg)")->toolTip(), "");
}

TEST_F(ConnectionWindowsTest, AFractionIsMarkedWithTheNumberThatCounts) {
  ToolWindow* window = OpenBolts();
  desktop.Play({"enter \"L1\" \"5 1/2\""});
  EXPECT_TRUE(Find<QLineEdit>(window, "L1")->toolTip().contains("5"));
  desktop.Play({"enter \"L1\" 5.5"});
  EXPECT_EQ(Find<QLineEdit>(window, "L1")->toolTip(), "decimal inches");
}

TEST_F(ConnectionWindowsTest, ResultsOfARefusedJointAreGrey) {
  ToolWindow* window = OpenBolts();
  const auto isOld = [&](const char* name) {
    return !Find<QLineEdit>(window, name)->toolTip().isEmpty();
  };
  desktop.Play({"enter \"L1\" 2", "enter \"L2\" 2", "enter \"L3\" 2", "press \"Compute\""});
  EXPECT_FALSE(isOld("Allow. Load Parall to Grain"));
  desktop.Play({"press \"Impact\""});
  EXPECT_TRUE(isOld("Allow. Load Parall to Grain"));
  desktop.Play({"press \"Compute\""});
  EXPECT_FALSE(isOld("Allow. Load Parall to Grain"));
  desktop.Play({"enter \"L2\" 3", "press \"Compute\""});
  EXPECT_TRUE(isOld("Allow. Load at Ang. (A)"));
}

TEST_F(ConnectionWindowsTest, FastenersStartAtTheirKinds) {
  OpenFasteners();
  desktop.Play({"press \"Lag Screws\""});
  EXPECT_EQ(Walk("FASTENER", 1).last(), "Size");
  desktop.PressKey("FASTENER", Qt::Key_Tab);
  EXPECT_EQ(desktop.FocusIn("FASTENER"), "Embedment Length of Lag Screw (in)");
  desktop.PressKey("FASTENER", Qt::Key_Tab);
  EXPECT_EQ(desktop.FocusIn("FASTENER"), "Douglas Fir");
}

TEST_F(ConnectionWindowsTest, ArrowKeysChooseSizeAndWood) {
  OpenFasteners();
  Walk("FASTENER", 1);
  ASSERT_EQ(desktop.FocusIn("FASTENER"), "Size");
  desktop.PressKey("FASTENER", Qt::Key_Down);
  desktop.PressKey("FASTENER", Qt::Key_Tab);
  desktop.PressKey("FASTENER", Qt::Key_Down);
  desktop.Play({"state \"Southern Pine\"", "read \"Pull out Strength (lbs)\""});
  // 8d in southern pine.
  EXPECT_EQ(desktop.printed, QStringList({"state visible enabled checked", "value \"48\""}));
}

TEST_F(ConnectionWindowsTest, EscapeClosesTheFastenersAndTheirBolts) {
  OpenBolts();
  desktop.Play({"window FASTENER"});
  desktop.PressKey("FASTENER", Qt::Key_Escape);
  EXPECT_EQ(desktop.platform.OpenWindows(), QStringList({"main"}));
}

TEST_F(ConnectionWindowsTest, BoltsStartAtTheFirstThickness) {
  OpenBolts();
  EXPECT_EQ(Walk("bolts", 10),
            QStringList({"L1", "L2", "L3", "Bolt Dia.", "A(deg)", "Double Shear", "Dry",
                         "Permanent", "Yes", "Douglas Fir-Larch, Southern Pine (Med)", "Compute"}));
}

TEST_F(ConnectionWindowsTest, ReturnInAFieldOfTheJointComputes) {
  OpenBolts();
  desktop.Play({"enter \"L1\" 1.5", "enter \"L2\" 1.5", "enter \"L3\" 1.5"});
  desktop.PressKey("bolts", Qt::Key_Return);
  desktop.Play({"read \"Allow. Load Perp. to Grain\""});
  EXPECT_EQ(desktop.printed, QStringList({"value \"387.00\""}));
}

TEST_F(ConnectionWindowsTest, F5ComputesFromAnywhere) {
  OpenBolts();
  desktop.Play({"enter \"L1\" 1.5", "enter \"L2\" 1.5", "enter \"L3\" 1.5"});
  Find<QListWidget>(desktop.Window("bolts"), "Bolt Dia.")->setFocus();
  desktop.PressKey("bolts", Qt::Key_F5);
  desktop.Play({"read \"Allow. Load Perp. to Grain\""});
  EXPECT_EQ(desktop.printed, QStringList({"value \"387.00\""}));
}

TEST_F(ConnectionWindowsTest, SingleShearHidesTheThirdThicknessWithItsCaption) {
  ToolWindow* window = OpenBolts();
  const auto isCaptionShown = [&] {
    for (const QLabel* label : window->findChildren<QLabel*>()) {
      if (PlainCaption(label->text()) == "L3") return label->isVisible();
    }
    throw std::runtime_error("no caption");
  };
  EXPECT_TRUE(isCaptionShown());
  desktop.Play({"press \"Single Shear\""});
  EXPECT_FALSE(isCaptionShown());
  EXPECT_FALSE(Find<QLineEdit>(window, "L3")->isVisible());
  desktop.Play({"press \"Double Shear\""});
  EXPECT_TRUE(isCaptionShown());
}

TEST_F(ConnectionWindowsTest, CommonCommandsHaveTheirKeys) {
  ToolWindow* window = OpenBolts();
  QMap<QString, QString> keys;
  for (const QAction* action : window->findChildren<QAction*>()) {
    if (!action->shortcut().isEmpty()) {
      keys[PlainCaption(action->text())] = action->shortcut().toString();
    }
  }
  EXPECT_EQ(keys["Print Both"], "Ctrl+P");
  EXPECT_EQ(keys["Save Text Output to File..."], "Ctrl+S");
  EXPECT_FALSE(keys.contains("Print"));
}

TEST_F(ConnectionWindowsTest, TypingAStressDigitByDigitComputesEachTime) {
  OpenBolts();
  desktop.Play({"enter \"Allow Wood Bearing Stress (psi)\" 400"});
  desktop.printed.clear();
  auto* stress = Find<QLineEdit>(desktop.Window("bolts"), "Allow Bolt Stress (ksi)");
  stress->setFocus();
  QKeyEvent two(QEvent::KeyPress, Qt::Key_2, Qt::NoModifier, "2");
  QApplication::sendEvent(stress, &two);
  desktop.Play({"read \"Max. Load (lbs)\""});
  desktop.PressKey("bolts", Qt::Key_Backspace);
  // 0.078 x 2 x 1000; then the emptied field.
  EXPECT_EQ(desktop.printed,
            QStringList({"value \"156.00\"",
                         "message \"Lignara\" \"WOOD AND STEEL ALLOWABLE STRESS IN TENSION SECTION "
                         "MUST BE GREATER THAN 0\""}));
}

TEST_F(ConnectionWindowsTest, SketchesTakeTheRoomOfALargerWindow) {
  ToolWindow* window = OpenBolts();
  const auto sizes = [&] {
    QApplication::processEvents();
    return std::vector<QSize>{Find<Picture>(window, "Joint")->size(),
                              Find<Picture>(window, "Load Angle")->size(),
                              Find<Picture>(window, "Tension Rod")->size()};
  };
  const std::vector<QSize> before = sizes();
  window->resize(window->size() + QSize(300, 200));
  const std::vector<QSize> after = sizes();
  for (std::size_t i = 0; i < after.size(); ++i) {
    EXPECT_GT(after[i].width(), before[i].width()) << i;
    EXPECT_GT(after[i].height(), before[i].height()) << i;
  }
}

}  // namespace
}  // namespace lignara
