// Where the names of a truss stand in the window: beside their own circles, on no other circle and
// on no other name, and thinned out where there is no room for all.

#include <gtest/gtest.h>

#include <QApplication>
#include <algorithm>
#include <cmath>
#include <set>

#include "app/launcher.h"
#include "desktop/kit/drawing_painter.h"
#include "desktop/kit/scene_layout.h"
#include "script/script_platform.h"
#include "truss/truss_window.h"
#include "truss/window_marks.h"

namespace lignara {
namespace {

const char* const kTypes[] = {"PRATT1", "FINK",   "ENGLISH", "KINGPOST",
                              "SCI",    "PRATT2", "HOWE",    "WARREN"};
const QSizeF kRooms[] = {{480, 300}, {820, 520}, {1400, 900}};

/// The scene of a truss of 30 ft by 7.5 ft, loaded on all nodes.
Scene SceneOf(const std::string& type, int spans) {
  SessionState session;
  ScriptPlatform platform(session, [](const QString&) {});
  StartSession(session, LIGNARA_DATA_DIRECTORY);
  const bool fixed = type == "KINGPOST" || type == "SCI";
  session.TrussType = type;
  session.TrussSpans = fixed ? 4 : spans;
  session.TrussLength = 30;
  session.TrussHeight = 7.5;
  session.TrussInnerHeight = 3;
  TrussWindow window;
  OpenTruss(window, session, platform);
  window.nodeLoad = "1250";
  EnterAllNodeLoads(window, session, platform);
  ShowMarks(window, session);
  return window.view.drawing.scene;
}

struct Shown {
  Scene scene;
  VisiblePart view;
  SceneLayout layout;

  QPointF Mark(const SceneText& name) const {
    const NamedLine& line = scene.lines[name.of];
    return view.ToPixels({line.markX, line.markY});
  }
};

Shown ShownIn(const Scene& scene, const QSizeF& room, double zoom = 1) {
  Shown shown;
  shown.scene = scene;
  Drawing drawing;
  drawing.scene = scene;
  shown.view.SetContent(ContentOf(drawing));
  shown.view.SetRoom(room);
  shown.view.Fit();
  // The middle of the webs left of midspan.
  shown.view.ZoomAt(shown.view.ToPixels({2200, 1530}), zoom);
  shown.layout =
      LayOut(scene, shown.view, QRectF(QPointF(0, 0), room), QFontMetricsF(QApplication::font()));
  return shown;
}

double Distance(const QRectF& box, const QPointF& point) {
  const double dx = std::max({box.left() - point.x(), 0.0, point.x() - box.right()});
  const double dy = std::max({box.top() - point.y(), 0.0, point.y() - box.bottom()});
  return std::hypot(dx, dy);
}

/// What holds for every picture, however crowded.
void ExpectReadable(const Shown& shown, const QSizeF& room, const std::string& what) {
  const auto& names = shown.layout.names;
  std::vector<SceneText> texts = names;
  texts.insert(texts.end(), shown.layout.values.begin(), shown.layout.values.end());
  const double radius = shown.layout.radius();
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_TRUE(QRectF(QPointF(0, 0), room).contains(texts[i].rect))
        << what << texts[i].text.toStdString();
    for (std::size_t j = i + 1; j < texts.size(); ++j) {
      EXPECT_FALSE(texts[i].rect.intersects(texts[j].rect))
          << what << texts[i].text.toStdString() << " " << texts[j].text.toStdString();
    }
    for (const SceneText& other : names) {
      EXPECT_GE(Distance(texts[i].rect, shown.Mark(other)), radius)
          << what << texts[i].text.toStdString() << " on " << other.text.toStdString();
    }
  }
  for (const SceneText& name : names) {
    EXPECT_LE(Distance(name.rect, shown.Mark(name)), radius + 8 * shown.layout.unit)
        << what << name.text.toStdString();
  }
}

TEST(TrussSceneLayout, NamesStandBesideTheirOwnCircleAndOnNoOther) {
  for (const char* type : kTypes) {
    for (const int spans : {4, 6, 12, 20, 60, 200}) {
      const Scene scene = SceneOf(type, spans);
      for (const QSizeF& room : kRooms) {
        ExpectReadable(ShownIn(scene, room), room, std::string(type) + std::to_string(spans) + " ");
      }
    }
  }
}

TEST(TrussSceneLayout, SmallTrussesShowAllTheirNames) {
  for (const char* type : kTypes) {
    for (const int spans : {4, 6}) {
      const Scene scene = SceneOf(type, spans);
      const Shown shown = ShownIn(scene, {820, 520});
      EXPECT_EQ(shown.layout.names.size(), scene.lines.size()) << type << spans;
      EXPECT_EQ(shown.layout.values.size(), scene.loads.size()) << type << spans;
    }
  }
}

TEST(TrussSceneLayout, CirclesDoNotTouch) {
  for (const char* type : kTypes) {
    for (const int spans : {20, 60, 200}) {
      const Shown shown = ShownIn(SceneOf(type, spans), {820, 520});
      const auto& names = shown.layout.names;
      for (std::size_t i = 0; i < names.size(); ++i) {
        for (std::size_t j = i + 1; j < names.size(); ++j) {
          EXPECT_GE(QLineF(shown.Mark(names[i]), shown.Mark(names[j])).length(),
                    2 * shown.layout.radius())
              << type << spans << names[i].text.toStdString() << names[j].text.toStdString();
        }
      }
    }
  }
}

TEST(TrussSceneLayout, NarrowPanelsThinOutEvenly) {
  for (const char* type : {"PRATT1", "FINK", "ENGLISH", "PRATT2", "HOWE", "WARREN"}) {
    const Shown shown = ShownIn(SceneOf(type, 60), {820, 520});
    EXPECT_GT(shown.layout.step, 1) << type;
    EXPECT_LT(shown.layout.names.size(), shown.scene.lines.size() / 2) << type;
    EXPECT_GE(shown.layout.names.size(), 8u) << type;
    for (const SceneText& name : shown.layout.names) {
      const NamedLine& line = shown.scene.lines[name.of];
      const int shift = line.between ? shown.layout.step / 2 : 0;
      EXPECT_EQ((line.place + shift) % shown.layout.step, 0) << type << line.name;
    }
  }
}

TEST(TrussSceneLayout, AllNamesAreThereAgainFromNearBy) {
  // Sixty panels at ten times the size: those in sight all have their names.
  const QSizeF room(820, 520);
  const Shown shown = ShownIn(SceneOf("PRATT2", 60), room, 10);
  EXPECT_EQ(shown.layout.step, 1);
  std::set<std::size_t> named;
  for (const SceneText& name : shown.layout.names) named.insert(name.of);
  const QRectF inside(60, 60, room.width() - 120, room.height() - 120);
  int seen = 0;
  for (std::size_t i = 0; i < shown.scene.lines.size(); ++i) {
    const NamedLine& line = shown.scene.lines[i];
    if (!inside.contains(shown.view.ToPixels({line.markX, line.markY}))) continue;
    ++seen;
    EXPECT_TRUE(named.count(i)) << line.name;
  }
  EXPECT_GE(seen, 5);
}

TEST(TrussSceneLayout, TheChosenMemberKeepsItsName) {
  Scene scene = SceneOf("PRATT2", 200);
  scene.lines[7].lit = true;
  const Shown shown = ShownIn(scene, {480, 300});
  EXPECT_TRUE(std::any_of(shown.layout.names.begin(), shown.layout.names.end(),
                          [](const SceneText& name) { return name.of == 7; }));
}

TEST(TrussSceneLayout, TheArrowAtANodeHasHeadRoom) {
  for (const char* type : kTypes) {
    const Scene scene = SceneOf(type, 6);
    double highest = 3000;
    for (const NamedLine& line : scene.lines) highest = std::min({highest, line.y1, line.y2});
    // The arrow's tail is 500 units above its node.
    EXPECT_LT(scene.top, highest - 500) << type;
    const Shown shown = ShownIn(scene, {820, 520});
    EXPECT_GT(shown.view.ToPixels({2400, highest - 500}).y(), 0) << type;
  }
}

}  // namespace
}  // namespace lignara
