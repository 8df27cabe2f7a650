// What the window and the page show in the place of the canvas's bare shapes.

#include "truss/truss_picture.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/drawn_members.h"
#include "tests/support/reported_truss.h"
#include "truss/canvas.h"
#include "truss/force_and_length_lists.h"
#include "truss/window_marks.h"

namespace lignara {
namespace {

const char* const kTypes[] = {"PRATT1", "FINK",   "ENGLISH", "KINGPOST",
                              "SCI",    "PRATT2", "HOWE",    "WARREN"};

const NamedLine& LineOf(const Scene& scene, const std::string& name) {
  const auto found = std::find_if(scene.lines.begin(), scene.lines.end(),
                                  [&](const NamedLine& line) { return line.name == name; });
  if (found == scene.lines.end()) throw std::out_of_range(name);
  return *found;
}

TEST(CanvasScene, HasTheLinesAndMarksOfTheCanvas) {
  for (const char* type : kTypes) {
    OpenedTruss truss = Example(type);
    const Scene scene = WindowScene(truss.window, truss.session);
    const auto members = DrawnMembers(truss.window.view.drawing);
    ASSERT_EQ(scene.lines.size(), members.size()) << type;
    for (std::size_t i = 0; i < members.size(); ++i) {
      EXPECT_EQ(scene.lines[i].name, members[i].name.text) << type;
      EXPECT_EQ(scene.lines[i].x1, members[i].line.x1) << type;
      EXPECT_EQ(scene.lines[i].y2, members[i].line.y2) << type;
      EXPECT_EQ(scene.lines[i].markX, members[i].circle.x) << type;
      EXPECT_EQ(scene.lines[i].markY, members[i].circle.y) << type;
      EXPECT_EQ(scene.lines[i].colour, members[i].line.colour) << type;
    }
  }
}

TEST(CanvasScene, ChangesNothingOfTheShapes) {
  OpenedTruss truss = Example("FINK");
  const std::vector<Shape> shapes = truss.window.view.drawing.shapes;
  SelectAxialRow(truss.window, 2);
  ShowMarks(truss.window, truss.session);
  EXPECT_EQ(truss.window.view.drawing.shapes, shapes);
}

TEST(CanvasScene, TellsTensionFromCompressionByTheStroke) {
  OpenedTruss truss = Example("KINGPOST");
  const Scene scene = WindowScene(truss.window, truss.session);
  EXPECT_EQ(LineOf(scene, "TL 1").stroke, Stroke::Heavy);
  EXPECT_EQ(LineOf(scene, "CL 1").stroke, Stroke::Fine);
  EXPECT_EQ(LineOf(scene, "CV").stroke, Stroke::Dotted);
}

TEST(CanvasScene, BeforeARunAllLinesAreAlikeAndNothingIsExplained) {
  const OpenedTruss truss("KINGPOST", 4, 24, 5);
  const Scene scene = WindowScene(truss.window, truss.session);
  EXPECT_EQ(LineOf(scene, "TL 1").stroke, Stroke::Plain);
  EXPECT_EQ(LineOf(scene, "CL 1").stroke, Stroke::Plain);
  EXPECT_TRUE(scene.legend.empty());
}

TEST(CanvasScene, ExplainsTheStrokesAfterARun) {
  OpenedTruss truss = Example("KINGPOST");
  const Scene scene = WindowScene(truss.window, truss.session);
  ASSERT_EQ(scene.legend.size(), 3u);
  EXPECT_EQ(scene.legend[0].meaning, "Tension");
  EXPECT_EQ(scene.legend[0].stroke, Stroke::Fine);
  EXPECT_EQ(scene.legend[1].meaning, "Compression");
  EXPECT_EQ(scene.legend[1].stroke, Stroke::Heavy);
  EXPECT_EQ(scene.legend[2].meaning, "No force");
}

TEST(CanvasScene, MarksAndExplainsMembersAboveTheirAllowableStress) {
  OpenedTruss truss = AfterRun("KINGPOST", 4, 24, 5);
  truss.session.Member.Group(MemberGroup::Top).GroupFt = 1;  // 1200 lbs: 1560 / 10 = 156 psi
  truss.Run();
  const Scene scene = WindowScene(truss.window, truss.session);
  EXPECT_TRUE(LineOf(scene, "TL 1").warned);
  EXPECT_FALSE(LineOf(scene, "CL 1").warned);
  ASSERT_EQ(scene.legend.size(), 4u);
  EXPECT_EQ(scene.legend[3].meaning, "Above allowable stress");
  EXPECT_TRUE(PageScene(truss.window, truss.session).lines[0].warned);
}

TEST(CanvasScene, ShowsEachNodeLoadWithItsValueAndWay) {
  OpenedTruss truss("PRATT1", 4, 32, 12);
  truss.model().PL[1] = 500;
  truss.model().PR[1] = -250.5;
  const Scene scene = WindowScene(truss.window, truss.session);
  // The peak bears nothing, so it has no arrow. A foot is 4320 / 32 = 135 units wide: the nodes lie
  // at 135 + 8 x 135 = 1215 and 135 + 24 x 135 = 3375.
  ASSERT_EQ(scene.loads.size(), 2u);
  EXPECT_EQ(scene.loads[0].value, "500");
  EXPECT_FALSE(scene.loads[0].up);
  EXPECT_EQ(scene.loads[0].x, 1215);
  EXPECT_EQ(scene.loads[1].value, "250.5");
  EXPECT_TRUE(scene.loads[1].up);
  EXPECT_EQ(scene.loads[1].x, 3375);
}

TEST(CanvasScene, PointsAtTheChosenNode) {
  OpenedTruss truss("KINGPOST", 4, 24, 5);
  SelectNode(truss.window, truss.session, truss.platform, 1);
  const Scene scene = WindowScene(truss.window, truss.session);
  ASSERT_EQ(scene.pointers.size(), 1u);
  // 4320 / 24 = 180 units a foot: midspan at 180 + 12 x 180 = 2340. The peak lies 2100 units above
  // 3000 - 0.2 x 2100 = 2580.
  EXPECT_EQ(scene.pointers[0].x, 2340);
  EXPECT_EQ(scene.pointers[0].node, 480);
  EXPECT_EQ(scene.pointers[0].top, -20);
  EXPECT_EQ(scene.pointers[0].tip, 180);
}

TEST(CanvasScene, LightsTheMemberOfTheChosenRowOnTheScreenAlone) {
  OpenedTruss truss = Example("KINGPOST");
  SelectAxialRow(truss.window, 3);
  EXPECT_TRUE(LineOf(WindowScene(truss.window, truss.session), "CL 1").lit);
  EXPECT_FALSE(LineOf(WindowScene(truss.window, truss.session), "TL 1").lit);
  EXPECT_FALSE(LineOf(PageScene(truss.window, truss.session), "CL 1").lit);
}

TEST(CanvasScene, OfAPageIsBlackAndNamesTheNodes) {
  OpenedTruss truss = Example("PRATT1");
  const Scene scene = PageScene(truss.window, truss.session);
  for (const NamedLine& line : scene.lines) EXPECT_EQ(line.colour, Colour::Black);
  EXPECT_EQ(LineOf(scene, "TL 1").stroke, Stroke::Heavy);
  std::vector<std::string> nodes;
  for (const PointName& point : scene.points) nodes.push_back(point.name);
  EXPECT_EQ(nodes, (std::vector<std::string>{"LN 1", "LN 2", "TN", "RN 1", "RN 2"}));
  EXPECT_EQ(scene.legend.size(), 3u);
  for (const LegendEntry& entry : scene.legend) EXPECT_EQ(entry.colour, Colour::Black);
}

TEST(CanvasScene, OfAPageNumbersThePostOfAHoweTruss) {
  OpenedTruss howe = Example("HOWE");
  EXPECT_NO_THROW(LineOf(PageScene(howe.window, howe.session), "CV1"));
  OpenedTruss king = Example("KINGPOST");
  EXPECT_NO_THROW(LineOf(PageScene(king.window, king.session), "CV"));
}

TEST(CanvasScene, HasRoomAroundTheTrussAndItsArrows) {
  const OpenedTruss truss("KINGPOST", 4, 24, 5);
  const Scene scene = WindowScene(truss.window, truss.session);
  // From 180 to 4500 and from 480 down to 2580 units.
  EXPECT_LT(scene.left, 180 - 50);
  EXPECT_GT(scene.right, 4500 + 50);
  EXPECT_LT(scene.top, 480 - 500);
  EXPECT_GT(scene.bottom, 2580 + 50 + 110);
}

TEST(CanvasScene, OfATrussThatDoesNotFitTheCanvasIsSilent) {
  OpenedTruss truss("PRATT1", 6, 30, 7.5);
  truss.window.view.CanvasOriginX = 32000;
  truss.platform.messages.clear();
  const Scene scene = WindowScene(truss.window, truss.session);
  EXPECT_LT(scene.lines.size(), 21u);
  EXPECT_TRUE(truss.platform.messages.empty());
}

}  // namespace
}  // namespace lignara
