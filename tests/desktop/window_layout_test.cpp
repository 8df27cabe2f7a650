// How the windows stand on the screen: in its middle, resizable, no caption cut off, every control
// with a name.

#include <gtest/gtest.h>

#include <QApplication>
#include <QGroupBox>
#include <QListWidget>

#include "desktop/kit/picture_widget.h"
#include "desktop/kit/text.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

class WindowLayoutTest : public testing::Test {
 protected:
  /// A new truss takes the place of the old one, so input and truss need a look each.
  template <typename Look>
  void ForEachWindow(const Look& look) {
    desktop.OpenKingPost();
    desktop.Play(kOpenAllTrussPanels);
    look(desktop.Window("TRUSS"));
    desktop.Play({"menu \"Help\" \"Help\"", "window main", "press \"Pure Wood Data Base\"",
                  "press \"SCI\"", "window TR_INPUT", "enter \"Total Length (ft)\" 30",
                  "press \"Slope Calculator\"", "window main", "menu \"Help\" \"About...\""});
    for (const char* name : {"main", "HELP", "QUESTION", "TR_INPUT", "ABOUT"}) {
      look(desktop.Window(name));
    }
  }

  OpenDesktop desktop;
};

TEST_F(WindowLayoutTest, EveryControlHasAName) {
  ForEachWindow([](ToolWindow* window) {
    for (const QWidget* control : VisibleControls(window)) {
      EXPECT_FALSE(CaptionOf(control).isEmpty())
          << FromQt(window->name()) << ": " << control->metaObject()->className();
    }
    for (const QGroupBox* panel : window->findChildren<QGroupBox*>()) {
      EXPECT_FALSE(CaptionOf(panel).isEmpty()) << FromQt(window->name());
    }
  });
}

TEST_F(WindowLayoutTest, EveryWindowOpensInTheMiddleOfTheScreen) {
  ForEachWindow([&](ToolWindow* window) {
    const QSize screen = desktop.platform.Screen(*window).size();
    if (window->name() == "TRUSS" || window->name() == "TR_INPUT") return;  // grown by its panels
    EXPECT_EQ(window->x(), (screen.width() - window->width()) / 2) << FromQt(window->name());
    EXPECT_EQ(window->y(), (screen.height() - window->height()) / 2) << FromQt(window->name());
  });
}

TEST_F(WindowLayoutTest, EveryWindowCanBeResized) {
  ForEachWindow([](ToolWindow* window) {
    const QSize larger = window->size() + QSize(120, 90);
    window->resize(larger);
    EXPECT_EQ(window->size(), larger) << FromQt(window->name());
  });
}

TEST_F(WindowLayoutTest, NoCaptionIsCutOffInTheSmallestWindow) {
  ForEachWindow([](ToolWindow* window) {
    window->resize(window->minimumSizeHint());
    QApplication::processEvents();
    ExpectNoCaptionCutOff(window);
  });
}

TEST_F(WindowLayoutTest, TheSmallestWindowsFitASmallScreen) {
  desktop.OpenKingPost();
  const QSize truss = desktop.Window("TRUSS")->minimumSizeHint();
  EXPECT_LE(truss.width(), 1024);
  EXPECT_LE(truss.height(), 700);
  desktop.Play(kOpenAllTrussPanels);
  const QSize full = desktop.Window("TRUSS")->minimumSizeHint();
  EXPECT_LE(full.width(), 1366);
  desktop.Play({"window main", "press \"SCI\""});
  for (const char* name : {"main", "TR_INPUT"}) {
    const QSize least = desktop.Window(name)->minimumSizeHint();
    EXPECT_LE(least.width(), 800) << name;
    EXPECT_LE(least.height(), 600) << name;
  }
}

TEST_F(WindowLayoutTest, TheDrawingAndTheListsTakeTheRoomOfALargerTrussWindow) {
  desktop.OpenKingPost();
  ToolWindow* window = desktop.Window("TRUSS");
  auto sizes = [&] {
    QApplication::processEvents();
    std::vector<QSize> all;
    for (QWidget* widget : VisibleControls(window)) {
      const bool grows = dynamic_cast<Picture*>(widget) != nullptr ||
                         qobject_cast<QListWidget*>(widget) != nullptr;
      if (grows) all.push_back(widget->size());
    }
    return all;
  };
  const std::vector<QSize> before = sizes();
  ASSERT_EQ(before.size(), 3u);  // the drawing, the node loads, the axial loads
  window->resize(window->size() + QSize(200, 150));
  const std::vector<QSize> after = sizes();
  EXPECT_GE(after[0].width(), before[0].width() + 100);
  for (std::size_t i = 0; i < after.size(); ++i) {
    EXPECT_EQ(after[i].height(), before[i].height() + 150) << i;
  }
}

}  // namespace
}  // namespace lignara
