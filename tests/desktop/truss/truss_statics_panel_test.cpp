// The second opinion in the truss window: its line, its mark and its panel, by keyboard alone.

#include <gtest/gtest.h>

#include <QLabel>
#include <QTableWidget>

#include "desktop/kit/text.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

class TrussStaticsPanel : public testing::Test {
 protected:
  /// English trusses always differ: their centre vertical has the sign of a post.
  void RunEnglish() {
    desktop.Play({"press \"ENGLISH\"", "window TR_INPUT", "enter \"Number of Spans\" 6",
                  "enter \"Total Length (ft)\" 48", "enter \"H (ft)\" 12", "press \"OK\"",
                  "window TRUSS", "enter \"Top Node Loads (lbs)\" 500", "press \"All\"",
                  "press \"Run\""});
  }

  template <typename Widget>
  Widget* Find(const char* name) {
    for (Widget* widget : desktop.Window("TRUSS")->findChildren<Widget*>()) {
      if (CaptionOf(widget) == name) return widget;
    }
    throw std::out_of_range(name);
  }

  OpenDesktop desktop;
};

TEST_F(TrussStaticsPanel, OpensAndClosesByItsKeys) {
  RunEnglish();
  desktop.PressKey("TRUSS", Qt::Key_T, Qt::AltModifier);
  auto* table = Find<QTableWidget>("Differences");
  EXPECT_TRUE(table->isVisible());
  EXPECT_EQ(FromQt(desktop.FocusIn("TRUSS")), "Differences");
  desktop.PressKey("TRUSS", Qt::Key_Tab);
  EXPECT_EQ(FromQt(desktop.FocusIn("TRUSS")), "Save Table...");
  desktop.PressKey("TRUSS", Qt::Key_Tab);
  EXPECT_EQ(FromQt(desktop.FocusIn("TRUSS")), "Why?");
  desktop.PressKey("TRUSS", Qt::Key_Escape);
  EXPECT_FALSE(table->isVisible());
  EXPECT_EQ(FromQt(desktop.FocusIn("TRUSS")), "Statics Check");
}

TEST_F(TrussStaticsPanel, TheWorstRowStandsFirst) {
  RunEnglish();
  desktop.Play({"press \"Statics Check\""});
  auto* table = Find<QTableWidget>("Differences");
  EXPECT_EQ(FromQt(table->item(0, 0)->text()), "CV");
  EXPECT_EQ(FromQt(table->horizontalHeaderItem(3)->text()), "Difference");
}

TEST_F(TrussStaticsPanel, ADifferenceStandsOutAndAnOldOneIsGrey) {
  RunEnglish();
  auto* line = Find<QLabel>("Result");
  const QColor plain = desktop.Window("TRUSS")->palette().color(QPalette::WindowText);
  const auto colour = [line] { return line->palette().color(QPalette::WindowText); };
  const QColor differing = colour();
  EXPECT_NE(differing, plain);
  desktop.Play({"enter \"Top Node Loads (lbs)\" 0", "press \"All\""});
  EXPECT_EQ(colour(), line->palette().color(QPalette::PlaceholderText));
  desktop.Play({"press \"Run\""});
  EXPECT_EQ(FromQt(line->text()), "Agrees with statics within 0.00 %.");
  EXPECT_EQ(colour(), plain);
}

TEST_F(TrussStaticsPanel, WhyLeadsToTheHelp) {
  RunEnglish();
  desktop.Play({"press \"Statics Check\"", "press \"Why?\""});
  EXPECT_TRUE(desktop.platform.OpenWindows().contains("HELP"));
}

}  // namespace
}  // namespace lignara
