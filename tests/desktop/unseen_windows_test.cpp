// Windows that nobody looks at are not laid out: as soon as somebody does, each stands as if it had
// been seen all the time.

#include <gtest/gtest.h>

#include "desktop/kit/text.h"
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

}  // namespace
}  // namespace lignara
