// What a screen reader is told of the windows.

#include <gtest/gtest.h>

#include <QAccessible>

#include "desktop/kit/picture_button.h"
#include "desktop/kit/picture_widget.h"
#include "desktop/kit/text.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

QAccessibleInterface* ReaderOf(QWidget* widget) {
  return QAccessible::queryAccessibleInterface(widget);
}

TEST(ScreenReaders, HearTheTypeOfEachPictureOfTheLauncher) {
  OpenDesktop desktop;
  QStringList names;
  for (QWidget* control : VisibleControls(desktop.Window("main"))) {
    if (dynamic_cast<PictureButton*>(control) == nullptr) continue;
    EXPECT_EQ(ReaderOf(control)->role(), QAccessible::Button);
    names << ReaderOf(control)->text(QAccessible::Name);
  }
  EXPECT_EQ(FromQt(names.join(", ")),
            "Pratt1 truss, Fink truss, English truss, King post truss, Scissors truss, Howe truss, "
            "Pratt2 truss, Warren truss");
}

TEST(ScreenReaders, HearWhatTheTrussPictureShows) {
  OpenDesktop desktop;
  desktop.OpenKingPost();
  Picture* canvas = nullptr;
  for (QWidget* control : VisibleControls(desktop.Window("TRUSS"))) {
    if (CaptionOf(control) == "Truss") canvas = dynamic_cast<Picture*>(control);
  }
  ASSERT_NE(canvas, nullptr);
  EXPECT_EQ(ReaderOf(canvas)->role(), QAccessible::Graphic);
  EXPECT_EQ(FromQt(ReaderOf(canvas)->text(QAccessible::Name)), "Truss");
  EXPECT_EQ(FromQt(ReaderOf(canvas)->text(QAccessible::Description)),
            "King post truss, 2 panels, before a run");
  // 1000 lbs on the peak: 500 lbs a side, and 500 x 13 / 5 = 1300 lbs in the rafters.
  desktop.Play({"enter \"Top Node Loads (lbs)\" 1000", "press \"All\"", "press \"Run\""});
  EXPECT_EQ(FromQt(ReaderOf(canvas)->text(QAccessible::Description)),
            "King post truss, 2 panels, after a run: largest force TL 1 1300.00 lbs compression");
}

/// The description that a reader has of a picture of a window.
std::string DescriptionIn(ToolWindow* window, const char* picture) {
  for (QWidget* control : VisibleControls(window)) {
    if (CaptionOf(control) != picture || dynamic_cast<Picture*>(control) == nullptr) continue;
    EXPECT_EQ(ReaderOf(control)->role(), QAccessible::Graphic);
    return FromQt(ReaderOf(control)->text(QAccessible::Description));
  }
  return "no such picture";
}

// 450 lbs on the outer supports, 120 x 100 / 8 ft-lbs over the middle one; at 4.4 ft
// w x (L^3 - 3 L x^2 + 2 x^3) / 48 E I = 20.736 x 0.44 x 0.5896 / 48 = 0.1121 in.
TEST(ScreenReaders, HearWhatThePicturesOfAMultiSpanBeamShow) {
  OpenDesktop desktop;
  desktop.Play(kRunTwoSpans);
  desktop.Play(kOpenAllBeamResults);
  EXPECT_EQ(DescriptionIn(desktop.Window("MS"), "Beam"),
            "Beam of 2 spans, left end pinned, right end pinned, 2 uniform loads, 0 point loads");
  ToolWindow* results = desktop.Window("MDOUTPUT");
  desktop.Play({"click \"Shear Diag.\" 2.5 0"});
  EXPECT_EQ(DescriptionIn(results, "Shear Diag."),
            "Shear along the beam: largest 750.00 lbs, 150. at 2.5 ft");
  EXPECT_EQ(DescriptionIn(results, "Moment Diag."),
            "Moment along the beam: largest 1500.00 ft-lbs, 750. at 2.5 ft");
  EXPECT_EQ(DescriptionIn(results, "Deflected Shape"),
            "Deflected shape: largest 0.1121 in, 0.0000 in at 0.000 ft");
}

TEST(ScreenReaders, HearWhichWayAnArrowWalks) {
  OpenDesktop desktop;
  desktop.Play(kRunTwoSpans);
  QStringList walks;
  for (const char* name : {"MS", "MDOUTPUT"}) {
    for (QWidget* control : VisibleControls(desktop.Window(name))) {
      const bool arrow = CaptionOf(control) == "<" || CaptionOf(control) == ">";
      if (arrow) walks << ReaderOf(control)->text(QAccessible::Name);
    }
  }
  EXPECT_EQ(FromQt(walks.join(", ")),
            "Previous span, Next span, Previous load, Next load, Previous span, Next span");
}

TEST(ScreenReaders, HearWhatThePicturesOfASingleSpanBeamShow) {
  OpenDesktop desktop;
  desktop.Play({"press \"Single Span Beams\"", "window MLSP", "enter \"A(ft)\" 5",
                "enter \"P(lbs)\" 1000", "press \"Add New\"", "press \"RUN\"",
                "press \"View Diag.\""});
  QApplication::processEvents();
  ToolWindow* window = desktop.Window("MLSP");
  EXPECT_EQ(DescriptionIn(window, "Load Picture"),
            "beam of 10 ft, left support pinned, right support pinned, 1 load");
  EXPECT_EQ(DescriptionIn(window, "Moment"), "largest value 2500.00 at 5.000 ft");
}

/// Fails the test for each stop of the Tab key of which a reader has nothing to say.
void ExpectNamesAndRoles(ToolWindow* window) {
  int stops = 0;
  for (QWidget* widget : window->findChildren<QWidget*>()) {
    const bool stop = widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) != 0;
    if (!stop || widget->focusProxy() != nullptr || widget->window() != window) continue;
    ++stops;
    const std::string name = FromQt(window->name()) + ": " + FromQt(CaptionOf(widget));
    EXPECT_FALSE(ReaderOf(widget)->text(QAccessible::Name).isEmpty())
        << name << " " << widget->metaObject()->className();
    EXPECT_NE(ReaderOf(widget)->role(), QAccessible::Client) << name;
  }
  EXPECT_GT(stops, 1) << FromQt(window->name());
}

TEST(ScreenReaders, HearANameAndARoleWhereverTheTabKeyStops) {
  OpenDesktop desktop;
  desktop.OpenKingPost();
  desktop.Play(kOpenAllTrussPanels);
  desktop.Play({"menu \"Help\" \"Help\"", "window main", "press \"Fastener Data Base\"",
                "window FASTENER", "press \"Bolts\"", "window main", "press \"Glu-Lam Data Base\"",
                "window main", "press \"Ply Wood\"", "window main", "press \"Single Span Beams\"",
                "window MLSP", "press \"RUN\""});
  desktop.Play(kOpenAllSingleSpanPanels);
  desktop.Play({"window main", "press \"Pure Wood Data Base\""});
  desktop.Play(kRunTwoSpans);
  desktop.Play(kOpenAllBeamResults);
  desktop.Play({"window MS", "menu \"Options\" \"Integrations...\""});
  for (const QString& name : desktop.platform.OpenWindows()) {
    ExpectNamesAndRoles(desktop.platform.FindWindow(name));
  }
  desktop.Play({"window QUESTION", "press \"TRUSS\"", "window WTYPETR",
                "press \"Wood Type Data Base\"", "window wdb",
                "press \"Stress Adjustment Factors\""});
  for (const char* name : {"WTYPETR", "wdb"}) ExpectNamesAndRoles(desktop.Window(name));
}

}  // namespace
}  // namespace lignara
