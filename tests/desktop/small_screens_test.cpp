// Every window on the screens that engineers have: 1024 by 768; 1920 by 1080 at scale 2; letters of
// 16 points. With LIGNARA_PICTURES=DIR in the environment each window is also saved as a picture,
// to be looked at.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QListWidget>
#include <QScrollBar>

#include "desktop/kit/scroll_page.h"
#include "desktop/kit/text.h"
#include "desktop/session/sessions.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

struct SmallScreen {
  const char* name;
  QSize size;      ///< without the frame around a window
  int points = 0;  ///< of the letters; 0 as they are
  bool dark = false;
};

const SmallScreen kScreens[] = {{"1024x768", {1016, 732}},
                                {"scale2", {952, 504}},
                                {"16points", {1016, 732}, 16},
                                {"dark", {1016, 732}, 0, true}};

void PrintTo(const SmallScreen& screen, std::ostream* out) { *out << screen.name; }

QPalette DarkPalette() {
  QPalette palette(QColor("#353535"), QColor("#2b2b2b"));
  palette.setColor(QPalette::Base, QColor("#1e1e1e"));
  palette.setColor(QPalette::Highlight, QColor("#2f7fd0"));
  palette.setColor(QPalette::Link, QColor("#7ab8ff"));
  return palette;
}

class SmallScreens : public testing::TestWithParam<SmallScreen> {
 protected:
  SmallScreens() : font_(QApplication::font()), palette_(QApplication::palette()) {
    QFont font = font_;
    if (GetParam().points > 0) font.setPointSize(GetParam().points);
    QApplication::setFont(font);
    if (GetParam().dark) QApplication::setPalette(DarkPalette());
    desktop_.emplace(GetParam().size);
  }
  ~SmallScreens() override {
    desktop_.reset();
    QApplication::setFont(font_);
    QApplication::setPalette(palette_);
  }

  OpenDesktop& desktop() { return *desktop_; }

  /// `which` tells pictures of one window apart.
  void Look(const char* name, const char* which = "") {
    ToolWindow* window = desktop().Window(name);
    QApplication::processEvents();
    Save(window, which);
    const QSize least = window->minimumSizeHint();
    EXPECT_LE(least.width(), 1000) << name;
    EXPECT_LE(least.height(), 700) << name;
    EXPECT_LE(window->width(), GetParam().size.width()) << name;
    EXPECT_LE(window->height(), GetParam().size.height()) << name;
    ExpectNoCaptionCutOff(window);
    for (QWidget* control : VisibleControls(window)) ExpectInReach(window, control);
  }

  /// Who has to scroll both ways loses the place. In letters of 16 points a single panel may be
  /// wider than the screen.
  void ExpectToScrollOneWay(const char* name) {
    if (GetParam().points > 0) return;
    const ToolWindow* window = desktop().Window(name);
    for (const ScrollPage* page : PagesOf(window)) {
      const bool sideways = page->horizontalScrollBar()->isVisible();
      const bool down = page->verticalScrollBar()->isVisible();
      EXPECT_FALSE(sideways && down) << FromQt(window->name());
    }
  }

 private:
  static void Save(ToolWindow* window, const char* which) {
    const QString directory = qEnvironmentVariable("LIGNARA_PICTURES");
    if (directory.isEmpty()) return;
    const QString name = QString("%1-%2%3.png").arg(GetParam().name, window->name(), which);
    EXPECT_TRUE(window->grab().save(QDir(directory).filePath(name)));
  }

  /// Scrolled to, a control is seen whole, or fills what is seen of the window.
  static void ExpectInReach(ToolWindow* window, QWidget* control) {
    Reveal(control);
    const QRect seen(control->mapTo(window, control->visibleRegion().boundingRect().topLeft()),
                     control->visibleRegion().boundingRect().size());
    const std::string name = FromQt(window->name()) + ": " + FromQt(CaptionOf(control));
    EXPECT_TRUE(window->rect().contains(seen)) << name;
    EXPECT_GE(seen.width(), std::min(control->width(), 120)) << name;
    EXPECT_GE(seen.height(), std::min(control->height(), 60)) << name;
  }

  const QFont font_;
  const QPalette palette_;
  std::optional<OpenDesktop> desktop_;
};

TEST_P(SmallScreens, HoldTheLauncherAndItsSmallWindows) {
  desktop().Play({"press \"Pure Wood Data Base\"", "menu \"Help\" \"Help\""});
  for (const char* name : {"main", "QUESTION", "HELP"}) Look(name);
  desktop().Play({"menu \"Help\" \"About...\""});
  Look("ABOUT");
}

TEST_P(SmallScreens, HoldASessionWithItsVariants) {
  const Sessions sessions(desktop().session, desktop().platform);
  desktop().Play({"press \"FINK\"", "window TR_INPUT", "enter \"Number of Spans\" 8",
                  "enter \"Total Length (ft)\" 40", "enter \"H (ft)\" 10", "press \"OK\"",
                  "window TRUSS", "enter \"Top Node Loads (lbs)\" 500", "press \"All\"",
                  "press \"Run\"", "window main", "menu \"Files\" \"Repeat With...\"",
                  "window REPEAT"});
  Look("REPEAT", "0");
  desktop().Play({"select \"Entered in the Session\" 2", "select \"Read at the End\" 1",
                  "key \"Read at the End\" Space", "enter \"Values\" \"8..12 step 0.5\"",
                  "press \"Run\""});
  Look("REPEAT");
  ExpectToScrollOneWay("REPEAT");
}

TEST_P(SmallScreens, HoldTheInputWithItsSlopeCalculator) {
  desktop().Play({"press \"SCI\"", "window TR_INPUT", "enter \"Total Length (ft)\" 30",
                  "press \"Slope Calculator\""});
  Look("TR_INPUT");
}

TEST_P(SmallScreens, HoldTheTrussWithAllItsPanels) {
  desktop().Play({"press \"FINK\"", "window TR_INPUT", "enter \"Number of Spans\" 8",
                  "enter \"Total Length (ft)\" 40", "enter \"H (ft)\" 10", "press \"OK\"",
                  "window TRUSS", "enter \"Top Node Loads (lbs)\" 500", "press \"All\"",
                  "press \"Run\""});
  Look("TRUSS");
  const QSize before = desktop().Window("TRUSS")->size();
  desktop().Play(kOpenAllTrussPanels);
  Look("TRUSS");
  EXPECT_EQ(desktop().Window("TRUSS")->size(), before);
  ExpectToScrollOneWay("TRUSS");
}

TEST_P(SmallScreens, HoldTheLumberWindows) {
  desktop().Play({"press \"Pure Wood Data Base\"", "window QUESTION", "press \"TRUSS\"",
                  "window WTYPETR", "press \"Wood Type Data Base\"", "window wdb",
                  "press \"Western Woods\"", "select \"Data Base File to Load\" 1",
                  "select \"Grades\" 1", "press \"Stress Adjustment Factors\"",
                  "press \"Moisture > 19%\" \"Yes\""});
  for (const char* name : {"WTYPETR", "wdb"}) {
    Look(name);
    ExpectToScrollOneWay(name);
  }
}

TEST_P(SmallScreens, HoldTheDataBases) {
  desktop().Play({"press \"Fastener Data Base\"", "window FASTENER", "press \"Bolts\"",
                  "window main", "press \"Glu-Lam Data Base\"", "window main",
                  "press \"Ply Wood\""});
  for (const char* name : {"FASTENER", "bolts", "GL", "ply"}) {
    Look(name);
    ExpectToScrollOneWay(name);
  }
}

TEST_P(SmallScreens, HoldABeamOfTwoSpansWithItsResults) {
  desktop().Play(kRunTwoSpans);
  for (const char* name : {"MS", "MDOUTPUT"}) Look(name);
  const QSize before = desktop().Window("MDOUTPUT")->size();
  desktop().Play(kOpenAllBeamResults);
  Look("MDOUTPUT");
  EXPECT_EQ(desktop().Window("MDOUTPUT")->size(), before);
  desktop().Play({"window MS", "menu \"Options\" \"Integrations...\""});
  Look("INTGR");
}

TEST_P(SmallScreens, HoldABeamOfFiftyOneSpansWithItsResults) {
  desktop().Play({"enter \"Enter No. of Spans\" 51", "press \"Multi-Span Beam\"", "window MS",
                  "enter \"Length(ft)\" 10", "enter \"Unif. ld(lb/ft)\" 120",
                  "enter \"Mom. of Inertia(in^4)\" 100", "press \"Update Span\""});
  for (int j = 2; j <= 51; ++j) {
    desktop().Play({"press \"Span\" \">\"", "press \"Load Same \""});
  }
  desktop().Play({"press \"Run\""});
  for (const char* name : {"MS", "MDOUTPUT"}) Look(name, "51");
}

TEST_P(SmallScreens, HoldTheSingleSpanBeamWithAllItsPanels) {
  desktop().Play({"press \"Single Span Beams\"", "window MLSP", "press \"Slpd. Unif. R=0\"",
                  "enter \"A(ft)\" 1", "enter \"B(ft)\" 8", "enter \"W(lbs/ft)\" 120",
                  "press \"Add New\"", "press \"Axial Load\"", "enter \"P(lbs)\" -500",
                  "press \"Add New\"", "press \"RUN\""});
  Look("MLSP");
  const QSize before = desktop().Window("MLSP")->size();
  desktop().Play(kOpenAllSingleSpanPanels);
  Look("MLSP");
  EXPECT_EQ(desktop().Window("MLSP")->size(), before);
}

INSTANTIATE_TEST_SUITE_P(Sizes, SmallScreens, testing::ValuesIn(kScreens),
                         [](const auto& screen) { return "On" + std::string(screen.param.name); });

}  // namespace
}  // namespace lignara
