// Where the names of members stand on the canvas.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/support/drawn_members.h"
#include "tests/support/opened_truss.h"

namespace lignara {
namespace {

const char* const kTypes[] = {"PRATT1", "FINK",   "ENGLISH", "KINGPOST",
                              "SCI",    "PRATT2", "HOWE",    "WARREN"};

/// The picture of a truss of 30 ft by 7.5 ft.
Drawing Picture(const std::string& type, int spans = 6) {
  const bool fixed = type == "KINGPOST" || type == "SCI";
  return OpenedTruss(type, fixed ? 4 : spans, 30, 7.5, 3).window.view.drawing;
}

/// Letters are at most 60 units wide and 110 high.
double Width(const TextShape& name) { return 60.0 * static_cast<double>(name.text.size()); }
constexpr double kHeight = 110;

/// Distance of a point from the room of a name.
double Distance(const TextShape& name, double x, double y) {
  const double dx = std::max({name.x - x, 0.0, x - name.x - Width(name)});
  const double dy = std::max({name.y - y, 0.0, y - name.y - kHeight});
  return std::hypot(dx, dy);
}

/// The shortest distance of a name from a line, taken at a thousand places.
double Distance(const TextShape& name, const LineShape& line) {
  double least = 1e9;
  for (int step = 0; step <= 1000; ++step) {
    const double at = step / 1000.0;
    least = std::min(least, Distance(name, line.x1 + at * (line.x2 - line.x1),
                                     line.y1 + at * (line.y2 - line.y1)));
  }
  return least;
}

bool Overlap(const TextShape& a, const TextShape& b) {
  return a.x < b.x + Width(b) && b.x < a.x + Width(a) && std::fabs(a.y - b.y) < kHeight;
}

/// What no name may do, however crowded the picture: lie on a circle or on another name, or leave
/// the canvas.
void ExpectReadable(const Drawing& drawing, const std::string& type) {
  const auto members = DrawnMembers(drawing);
  for (const DrawnMember& a : members) {
    EXPECT_GE(a.name.x, 0) << type << a.name.text;
    EXPECT_LE(a.name.x + Width(a.name), drawing.width) << type << a.name.text;
    for (const DrawnMember& b : members) {
      EXPECT_GE(Distance(a.name, b.circle.x, b.circle.y), 50)
          << type << " " << a.name.text << " on the circle of " << b.name.text;
      if (a.name.text == b.name.text) continue;
      EXPECT_FALSE(Overlap(a.name, b.name)) << type << " " << a.name.text << " " << b.name.text;
    }
  }
}

TEST(CanvasNames, BottomChordNamesStand50UnitsBelowTheMidpoint) {
  for (const char* type : kTypes) {
    for (const DrawnMember& member : DrawnMembers(Picture(type))) {
      if (member.name.text[0] != 'C' || member.name.text == "CV") continue;
      EXPECT_EQ(member.name.y, member.circle.y + 50) << type << member.name.text;
    }
  }
}

TEST(CanvasNames, LevelBottomChordNamesStartAtTheMidpoint) {
  const auto members = DrawnByName(Picture("PRATT1"));
  EXPECT_EQ(members.at("CL 1").name.x, members.at("CL 1").circle.x);
  EXPECT_EQ(members.at("CR 1").name.x, members.at("CR 1").circle.x);
}

/// Where there is room a name stands aslant of its circle, 40 units from the centre to its corner.
void ExpectAslant(const DrawnMember& member, bool right, bool above) {
  const TextShape& name = member.name;
  const double x = right ? 40 : -40 - Width(name);
  const double y = above ? -40 - kHeight : 40;
  EXPECT_EQ(name.x, member.circle.x + x) << name.text;
  EXPECT_EQ(name.y, member.circle.y + y) << name.text;
}

TEST(CanvasNames, OfRaftersStandOutside) {
  const auto members = DrawnByName(Picture("KINGPOST"));
  ExpectAslant(members.at("TL 1"), false, true);
  ExpectAslant(members.at("TR 1"), true, true);
}

TEST(CanvasNames, OfWebsStandToTheRight) {
  const auto falling = DrawnByName(Picture("PRATT2", 4));  // towards midspan
  ExpectAslant(falling.at("DL 1"), true, true);
  ExpectAslant(falling.at("DR 1"), true, false);
  const auto rising = DrawnByName(Picture("HOWE", 4));
  ExpectAslant(rising.at("DL 1"), true, false);
  ExpectAslant(rising.at("DR 1"), true, true);
}

// So steep and far apart that a name beside a diagonal would be clear of it above and below.
TEST(CanvasNames, OfFallingWebsStandAboveWhereBelowIsFreeToo) {
  const auto members = DrawnByName(Picture("WARREN", 12));
  for (const char* name : {"DL 1", "DL 3", "DR 2", "DR 4"}) {
    ExpectAslant(members.at(name), true, true);
  }
  for (const char* name : {"DL 2", "DL 4", "DR 3", "DR 5"}) {
    ExpectAslant(members.at(name), true, false);
  }
}

// On these the places that the names of the webs would like best are those of the bottom chord's
// names, which are drawn behind some of them and have no choice.
TEST(CanvasNames, HeedThoseOfTheBottomChord) {
  ExpectReadable(OpenedTruss("FINK", 4, 24, 2).window.view.drawing, "flat FINK");
  ExpectReadable(OpenedTruss("FINK", 6, 30, 30).window.view.drawing, "steep FINK");
}

TEST(CanvasNames, StandBesideTheirCircles) {
  for (const char* type : kTypes) {
    for (const DrawnMember& member : DrawnMembers(Picture(type))) {
      EXPECT_LE(Distance(member.name, member.circle.x, member.circle.y), 75)
          << type << member.name.text;
    }
  }
}

TEST(CanvasNames, OfSixPanelsAreClearOfAllLines) {
  for (const char* type : kTypes) {
    const Drawing drawing = Picture(type);
    ExpectReadable(drawing, type);
    const auto members = DrawnMembers(drawing);
    for (const DrawnMember& named : members) {
      for (const DrawnMember& other : members) {
        EXPECT_GT(Distance(named.name, other.line), 7)
            << type << " " << named.name.text << " on " << other.name.text;
      }
    }
  }
}

TEST(CanvasNames, OfEightPanelsCanStillBeRead) {
  for (const char* type : {"PRATT1", "FINK", "ENGLISH", "PRATT2", "HOWE", "WARREN"}) {
    ExpectReadable(Picture(type, 8), type);
  }
}

TEST(CanvasNames, OfVeryManyMembersStandWhereTheyAreWanted) {
  const auto members = DrawnByName(Picture("PRATT2", 400));
  ASSERT_EQ(members.size(), 1601u);  // eight families of 200, and the centre vertical
  const DrawnMember& vertical = members.at("VL 100");
  EXPECT_EQ(vertical.name.x, vertical.circle.x + 55);
  EXPECT_EQ(vertical.name.y, vertical.circle.y - 22.5);  // half of the least height, 45
}

TEST(CanvasNames, AreSmallerWherePanelsAreNarrow) {
  // Nine tenths of the 4800 units are the truss, and a name may be 0.36 of a panel high.
  EXPECT_EQ(Picture("PRATT1", 6).textHeight, 110);            // 0.36 x 4320 / 6 = 259
  EXPECT_EQ(Picture("PRATT1", 14).textHeight, 110);           // 0.36 x 308 = 111
  EXPECT_NEAR(Picture("PRATT1", 20).textHeight, 77.76, 0.4);  // 0.36 x 216, to whole units
  EXPECT_EQ(Picture("PRATT1", 100).textHeight, 45);           // 0.36 x 43 = 16
}

}  // namespace
}  // namespace lignara
