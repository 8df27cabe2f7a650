// Where the members of each type lie on the canvas. All trusses are 30 ft by 7.5 ft, so that a foot
// is 4320 / 30 = 144 units wide and 2100 / 7.5 = 280 units high; the left end lies at
// (144, 3000 - 0.2 x 2100) = (144, 2580), midspan at 144 + 15 x 144 = 2304, the right end at 4464,
// the peak at 2580 - 2100 = 480. A panel of 5 ft is 720 units wide.

#include <gtest/gtest.h>

#include "tests/support/drawn_members.h"
#include "tests/support/opened_truss.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

struct Expected {
  const char* name;
  double x1, y1, x2, y2;
};

void ExpectLines(const OpenedTruss& truss, const std::vector<Expected>& lines) {
  const auto members = DrawnByName(truss.window.view.drawing);
  for (const Expected& e : lines) {
    ASSERT_EQ(members.count(e.name), 1u) << e.name;
    const LineShape& line = members.at(e.name).line;
    EXPECT_EQ(line.x1, e.x1) << e.name;
    EXPECT_EQ(line.y1, e.y1) << e.name;
    EXPECT_EQ(line.x2, e.x2) << e.name;
    EXPECT_EQ(line.y2, e.y2) << e.name;
  }
}

OpenedTruss Example(const std::string& type, int spans = 6) {
  return OpenedTruss(type, spans, 30, 7.5, 3);
}

// Rafter nodes at a third and two thirds of the height: 700 and 1400 units up.
const std::vector<Expected> kRafterLines = {
    {"TL 1", 144, 2580, 864, 1880},   {"TL 2", 864, 1880, 1584, 1180},
    {"TL 3", 1584, 1180, 2304, 480},  {"TR 1", 4464, 2580, 3744, 1880},
    {"TR 3", 3024, 1180, 2304, 480},  {"CL 1", 144, 2580, 864, 2580},
    {"CL 3", 1584, 2580, 2304, 2580}, {"CR 1", 4464, 2580, 3744, 2580},
    {"VL 1", 864, 2580, 864, 1880},   {"VL 2", 1584, 2580, 1584, 1180},
    {"VR 2", 3024, 2580, 3024, 1180}, {"CV", 2304, 2580, 2304, 480},
};

const Texts kPitchedNames = {"TL 1", "TL 2", "TL 3", "TR 1", "TR 2", "TR 3", "CL 1",
                             "CL 2", "CL 3", "CR 1", "CR 2", "CR 3", "DL 2", "DL 3",
                             "DR 2", "DR 3", "VL 1", "VL 2", "VR 1", "VR 2", "CV"};

TEST(CanvasNodes, Pratt1DiagonalsRiseFromTheBottomNodeBefore) {
  const OpenedTruss truss = Example("PRATT1");
  EXPECT_EQ(DrawnNames(truss.window.view.drawing), kPitchedNames);
  ExpectLines(truss, kRafterLines);
  ExpectLines(truss, {{"DL 2", 864, 2580, 1584, 1180},
                      {"DL 3", 1584, 2580, 2304, 480},
                      {"DR 2", 3744, 2580, 3024, 1180}});
}

TEST(CanvasNodes, EnglishDiagonalsFallFromTheVerticalBefore) {
  const OpenedTruss truss = Example("ENGLISH");
  EXPECT_EQ(DrawnNames(truss.window.view.drawing), kPitchedNames);
  ExpectLines(truss, kRafterLines);
  ExpectLines(truss, {{"DL 2", 864, 1880, 1584, 2580},
                      {"DL 3", 1584, 1180, 2304, 2580},
                      {"DR 3", 3024, 1180, 2304, 2580}});
}

// Slope 1 in 2: cos^2 = 0.8 and cos x sin = 0.4, so the web of the bottom node 5 I ft from the heel
// meets the rafter 4 I ft from it, 2 I ft up: 576 I units on and 560 I units up.
TEST(CanvasNodes, FinkWebsStandSquareToTheRafter) {
  const OpenedTruss truss = Example("FINK");
  Texts names = kPitchedNames;
  names.pop_back();  // no centre vertical
  EXPECT_EQ(DrawnNames(truss.window.view.drawing), names);
  ExpectLines(truss, {{"TL 1", 144, 2580, 720, 2020},
                      {"TL 2", 720, 2020, 1296, 1460},
                      {"TL 3", 1296, 1460, 2304, 480},
                      {"TR 2", 3888, 2020, 3312, 1460},
                      {"CL 2", 864, 2580, 1584, 2580},
                      {"DL 2", 864, 2580, 1296, 1460},
                      {"DL 3", 1584, 2580, 2304, 480},
                      {"VL 1", 864, 2580, 720, 2020},
                      {"VL 2", 1584, 2580, 1296, 1460},
                      {"VR 1", 3744, 2580, 3888, 2020}});
}

TEST(CanvasNodes, KingPostHasARafterAndATieEachHalf) {
  const OpenedTruss truss = Example("KINGPOST", 4);
  EXPECT_EQ(DrawnNames(truss.window.view.drawing), (Texts{"TL 1", "TR 1", "CL 1", "CR 1", "CV"}));
  ExpectLines(truss, {{"TL 1", 144, 2580, 2304, 480},
                      {"TR 1", 4464, 2580, 2304, 480},
                      {"CL 1", 144, 2580, 2304, 2580},
                      {"CR 1", 4464, 2580, 2304, 2580},
                      {"CV", 2304, 2580, 2304, 480}});
}

// The web goes on in line with the other bottom chord, so its rafter node is 30 x 3 / (7.5 + 3) =
// 8.5714 ft from the heel and 4.2857 ft up: 1234.29 units on, 1200 up; mirrored 3085.71 on.
TEST(CanvasNodes, ScissorsBottomChordsMeetAtTheInnerHeight) {
  const OpenedTruss truss = Example("SCI", 4);
  EXPECT_EQ(DrawnNames(truss.window.view.drawing),
            (Texts{"TL 1", "TL 2", "TR 1", "TR 2", "VL 1", "VR 1", "CL 1", "CR 1", "CV"}));
  ExpectLines(truss, {{"TL 1", 144, 2580, 1378, 1380},
                      {"TL 2", 1378, 1380, 2304, 480},
                      {"TR 1", 4464, 2580, 3230, 1380},
                      {"VL 1", 2304, 1740, 1378, 1380},
                      {"VR 1", 2304, 1740, 3230, 1380},
                      {"CL 1", 144, 2580, 2304, 1740},
                      {"CR 1", 4464, 2580, 2304, 1740},
                      {"CV", 2304, 1740, 2304, 480}});
}

const std::vector<Expected> kFlatLines = {
    {"TL 1", 144, 480, 864, 480},     {"TL 3", 1584, 480, 2304, 480},
    {"TR 1", 4464, 480, 3744, 480},   {"CL 1", 144, 2580, 864, 2580},
    {"CR 3", 3024, 2580, 2304, 2580}, {"VL 1", 144, 2580, 144, 480},
    {"VR 1", 4464, 2580, 4464, 480},
};

const Texts kFlatNames = {"TL 1", "TL 2", "TL 3", "TR 1", "TR 2", "TR 3", "CL 1", "CL 2", "CL 3",
                          "CR 1", "CR 2", "CR 3", "DL 1", "DL 2", "DL 3", "DR 1", "DR 2", "DR 3",
                          "VL 1", "VL 2", "VL 3", "VR 1", "VR 2", "VR 3", "CV"};

TEST(CanvasNodes, Pratt2DiagonalsFallTowardsMidspan) {
  const OpenedTruss truss = Example("PRATT2");
  EXPECT_EQ(DrawnNames(truss.window.view.drawing), kFlatNames);
  ExpectLines(truss, kFlatLines);
  ExpectLines(truss, {{"DL 1", 144, 480, 864, 2580},
                      {"DL 3", 1584, 480, 2304, 2580},
                      {"DR 1", 4464, 480, 3744, 2580},
                      {"VL 3", 1584, 2580, 1584, 480},
                      {"CV", 2304, 2580, 2304, 480}});
}

TEST(CanvasNodes, HoweDiagonalsRiseTowardsMidspan) {
  const OpenedTruss truss = Example("HOWE");
  EXPECT_EQ(DrawnNames(truss.window.view.drawing), kFlatNames);
  ExpectLines(truss, kFlatLines);
  ExpectLines(truss, {{"DL 1", 144, 2580, 864, 480},
                      {"DL 3", 1584, 2580, 2304, 480},
                      {"DR 3", 3024, 2580, 2304, 480},
                      {"VL 2", 864, 2580, 864, 480}});
}

TEST(CanvasNodes, WarrenDiagonalsAlternateFromTheTopOfTheEndVertical) {
  const OpenedTruss truss = Example("WARREN");
  Texts names(kFlatNames.begin(), kFlatNames.begin() + 18);
  names.insert(names.end(), {"VL 1", "VR 1"});
  EXPECT_EQ(DrawnNames(truss.window.view.drawing), names);
  ExpectLines(truss, kFlatLines);
  ExpectLines(truss, {{"DL 1", 144, 480, 864, 2580},
                      {"DL 2", 864, 2580, 1584, 480},
                      {"DL 3", 1584, 480, 2304, 2580},
                      {"DR 2", 3744, 2580, 3024, 480}});
}

// Four panels a half of 3.75 ft = 540 units: the midspan node is on top.
TEST(CanvasNodes, WarrenOfEvenHalvesEndsOnTopAtMidspan) {
  const OpenedTruss truss = Example("WARREN", 8);
  ExpectLines(truss, {{"DL 4", 1764, 2580, 2304, 480}, {"DR 4", 2844, 2580, 2304, 480}});
}

// 64 panels of 0.46875 ft = 67.5 units: node 1 at 211.5, node 3 at 346.5. Ties go to the even
// number, of nodes as of midpoints: (212 + 279) / 2 = 245.5, (279 + 346) / 2 = 312.5.
TEST(CanvasNodes, PlacesAreWholeUnitsWithTiesToTheEvenNumber) {
  const OpenedTruss truss = Example("PRATT2", 64);
  ExpectLines(truss, {{"CL 1", 144, 2580, 212, 2580},
                      {"CL 2", 212, 2580, 279, 2580},
                      {"CL 3", 279, 2580, 346, 2580}});
  const auto members = DrawnByName(truss.window.view.drawing);
  EXPECT_EQ(members.at("CL 1").circle.x, 178);
  EXPECT_EQ(members.at("CL 2").circle.x, 246);
  EXPECT_EQ(members.at("CL 3").circle.x, 312);
}

}  // namespace
}  // namespace lignara
