// Windows that nobody looks at are not laid out: as soon as somebody does, each stands as if it had
// been seen all the time.

#include <gtest/gtest.h>

#include <QApplication>
#include <QListWidget>
#include <QScrollBar>

#include "desktop/kit/text.h"
#include "desktop/session/still_windows.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

using Lines = std::initializer_list<const char*>;

const Lines kTruss = {"press \"FINK\"",
                      "window TR_INPUT",
                      "enter \"Number of Spans\" 8",
                      "enter \"Total Length (ft)\" 40",
                      "enter \"H (ft)\" 10",
                      "press \"OK\"",
                      "window TRUSS",
                      "enter \"Top Node Loads (lbs)\" 500",
                      "press \"All\"",
                      "press \"Run\""};

/// Where each control of a window stands.
std::vector<std::pair<std::string, QRect>> Places(ToolWindow* window) {
  std::vector<std::pair<std::string, QRect>> places;
  for (QWidget* control : VisibleControls(window)) {
    places.emplace_back(FromQt(CaptionOf(control)),
                        QRect(control->mapTo(window, QPoint(0, 0)), control->size()));
  }
  return places;
}

void ExpectSamePlaces(Lines lines, const char* name) {
  OpenDesktop seen, unseen;
  unseen.platform.PaintNothing();
  seen.Play(lines);
  unseen.Play(lines);
  EXPECT_NE(Places(unseen.Window(name)), Places(seen.Window(name))) << "laid out for nobody";
  unseen.platform.LetBeSeen(unseen.Window(name));
  EXPECT_EQ(unseen.Window(name)->size(), seen.Window(name)->size());
  EXPECT_EQ(Places(unseen.Window(name)), Places(seen.Window(name)));
}

const Lines kWideRow = {"select \"Top Node Loads (lbs)\" 2",
                        "enter \"Top Node Loads (lbs)\" 123456789", "press \"Enter\""};

/// How far the list of loads can be scrolled sideways where it has no room at all.
int WidthOfLoads(ToolWindow* window) {
  for (QListWidget* list : window->findChildren<QListWidget*>()) {
    if (list->accessibleName() != "Top Node Loads (lbs)") continue;
    QApplication::processEvents();
    list->setFixedWidth(2 * list->frameWidth());
    QApplication::processEvents();
    return list->horizontalScrollBar()->maximum();
  }
  return -1;
}

TEST(UnseenWindows, StandAsOthersOnceTheyAreLookedAt) {
  ExpectSamePlaces(kTruss, "TRUSS");
  ExpectSamePlaces({"press \"HOWE\""}, "TR_INPUT");
  ExpectSamePlaces({"press \"Glu-Lam Data Base\""}, "GL");
  ExpectSamePlaces({"press \"Fastener Data Base\"", "window FASTENER", "press \"Bolts\""}, "bolts");
}

TEST(UnseenWindows, FollowFurtherCommandsOnceTheyAreLookedAt) {
  OpenDesktop seen, unseen;
  unseen.platform.PaintNothing();
  seen.Play(kTruss);
  unseen.Play(kTruss);
  unseen.platform.LetBeSeen(unseen.Window("TRUSS"));
  seen.Play(kOpenAllTrussPanels);
  unseen.Play(kOpenAllTrussPanels);
  EXPECT_EQ(Places(unseen.Window("TRUSS")), Places(seen.Window("TRUSS")));
}

TEST(UnseenWindows, AreLaidOutButNotPaintedForAKey) {
  OpenDesktop seen, unseen;
  unseen.platform.PaintNothing();
  for (OpenDesktop* desktop : {&seen, &unseen}) {
    desktop->Play(kTruss);
    desktop->Play({"key \"Top Node Loads (lbs)\" \"Tab\""});
  }
  ToolWindow* truss = unseen.Window("TRUSS");
  EXPECT_EQ(Places(truss), Places(seen.Window("TRUSS")));
  EXPECT_EQ(unseen.FocusIn("TRUSS"), seen.FocusIn("TRUSS"));
  EXPECT_FALSE(truss->updatesEnabled());
  unseen.platform.LetBeSeen(truss);
  EXPECT_TRUE(truss->updatesEnabled());
}

/// A panel that opens moves what stands around it area by area; a look waits for that.
TEST(UnseenWindows, StandStillWhenTheyAreLookedAtAgain) {
  OpenDesktop desktop;
  desktop.platform.PaintNothing();
  desktop.Play(kTruss);
  ToolWindow* truss = desktop.Window("TRUSS");
  desktop.platform.LetBeSeen(truss);
  desktop.Play({"press \"Deflections\""});
  desktop.platform.LetBeSeen(truss);
  const auto places = Places(truss);
  desktop.Play({"windows", "windows", "windows"});
  EXPECT_EQ(Places(truss), places);
}

TEST(UnseenWindows, ScrollTheirListsAsFarAsOthersOnceTheyAreLookedAt) {
  OpenDesktop seen, unseen;
  unseen.platform.PaintNothing();
  for (OpenDesktop* desktop : {&seen, &unseen}) {
    desktop->Play(kTruss);
    desktop->Play(kWideRow);
  }
  unseen.platform.LetBeSeen(unseen.Window("TRUSS"));
  const int width = WidthOfLoads(seen.Window("TRUSS"));
  EXPECT_GT(width, seen.Window("TRUSS")->fontMetrics().horizontalAdvance("123456789"));
  EXPECT_EQ(WidthOfLoads(unseen.Window("TRUSS")), width);
}

/// Nor is anything painted while a session plays.
TEST(UnseenWindows, ScrollTheirListsAsFarAsOthersAfterAPlay) {
  OpenDesktop seen, played;
  {
    const StillWindows still(played.platform);
    played.Play(kTruss);
    played.Play(kWideRow);
  }
  seen.Play(kTruss);
  seen.Play(kWideRow);
  EXPECT_EQ(WidthOfLoads(played.Window("TRUSS")), WidthOfLoads(seen.Window("TRUSS")));
}

}  // namespace
}  // namespace lignara
