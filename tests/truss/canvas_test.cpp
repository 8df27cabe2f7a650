#include "truss/canvas.h"

#include <gtest/gtest.h>

#include "tests/support/drawn_members.h"
#include "tests/support/opened_truss.h"
#include "tests/truss/example_canvas.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

const char* const kTypes[] = {"PRATT1", "FINK",   "ENGLISH", "KINGPOST",
                              "SCI",    "PRATT2", "HOWE",    "WARREN"};

TEST(Canvas, ScalesFitTheTrussAtOpening) {
  // 0.9 x 4800 / 30 = 144; 0.7 x 3000 / 7.5 = 280; 3000 - 280 x 0.2 x 7.5 = 2580.
  ExpectView(ExampleOnCanvas(), 144, 280, 144, 2580);
  EXPECT_EQ(ExampleOnCanvas().window.view.ZoomFactor.value(), 1.0f);
}

TEST(Canvas, ScalesRoundTiesToTheEvenNumber) {
  // 4320 / 64 = 67.5 becomes 68, 2100 / 40 = 52.5 becomes 52; 3000 - 52 x 0.2 x 40 = 2584.
  ExpectView(OpenedTruss("PRATT1", 4, 64, 40), 68, 52, 68, 2584);
}

TEST(Canvas, AxesScaleSeparately) {
  // A truss as high as long fills the canvas all the same: 216 across, 105 up.
  ExpectView(OpenedTruss("PRATT1", 4, 20, 20), 216, 105, 216, 2580);
}

TEST(Canvas, PictureHasTheCanvasesUnits) {
  const Drawing drawing = ExampleOnCanvas().window.view.drawing;
  EXPECT_EQ(drawing.width, 4800);
  EXPECT_EQ(drawing.height, 3000);
  EXPECT_GT(drawing.textHeight, 0);
}

TEST(Canvas, EveryMemberHasARedCircleAtItsMidpoint) {
  for (const char* type : kTypes) {
    const OpenedTruss truss = ExampleOnCanvas(type);
    const auto members = DrawnMembers(truss.window.view.drawing);
    EXPECT_EQ(members.size() * 3, truss.window.view.drawing.shapes.size()) << type;
    EXPECT_EQ(members.size(), truss.window.view.MemberMark.size()) << type;
    for (const DrawnMember& member : members) {
      EXPECT_NEAR(member.circle.x, (member.line.x1 + member.line.x2) / 2, 0.5);
      EXPECT_NEAR(member.circle.y, (member.line.y1 + member.line.y2) / 2, 0.5);
      EXPECT_EQ(member.circle.radius, 50);
      EXPECT_EQ(member.circle.colour, Colour::Red);
    }
  }
}

// VL 1 runs from (864, 2580) to (864, 1880).
TEST(Canvas, MarksHoldTheMidpoints) {
  const OpenedTruss truss = ExampleOnCanvas();
  const MarkPoint& mark = truss.window.view.MemberMark.at({Family::VL, 1});
  EXPECT_EQ(mark.x.value(), 864);
  EXPECT_EQ(mark.y.value(), 2230);
  const MarkPoint& centre = truss.window.view.MemberMark.at({Family::CV, 1});
  EXPECT_EQ(centre.x.value(), 2304);
  EXPECT_EQ(centre.y.value(), 1530);
}

TEST(Canvas, MembersAreBlackBeforeARun) {
  for (const DrawnMember& member : DrawnMembers(ExampleOnCanvas().window.view.drawing)) {
    EXPECT_EQ(member.line.colour, Colour::Black);
    EXPECT_EQ(member.name.colour, Colour::Black);
  }
}

TEST(Canvas, MembersShowTensionAndCompressionAfterARun) {
  OpenedTruss truss = ExampleOnCanvas("KINGPOST");
  for (const Family family : {Family::TL, Family::TR, Family::CL, Family::CR, Family::CV}) {
    AxialOf(truss.model(), family).Allocate(4);
  }
  truss.model().AX_TL[1] = -1000;
  truss.model().AX_TR[1] = -0.5;
  truss.model().AX_CL[1] = 800;
  truss.window.view.resultsShown = true;
  RedrawTruss(truss.window, truss.session, truss.platform);
  const auto members = DrawnByName(truss.window.view.drawing);
  EXPECT_EQ(members.at("TL 1").line.colour, Colour::DarkOrange);
  EXPECT_EQ(members.at("TR 1").line.colour, Colour::DarkOrange);
  EXPECT_EQ(members.at("CL 1").line.colour, Colour::RoyalBlue);
  EXPECT_EQ(members.at("CR 1").line.colour, Colour::Gray);
  EXPECT_EQ(members.at("CV").line.colour, Colour::Gray);
  EXPECT_EQ(members.at("TL 1").circle.colour, Colour::Red);
}

TEST(Canvas, NothingIsDrawnForAKeywordThatIsNoType) {
  OpenedTruss truss("", 6, 30, 7.5);
  EXPECT_TRUE(truss.window.view.drawing.shapes.empty());
}

TEST(Scale, TooLargeForTheCanvasIsOneFaultADrawingAndStaysAsItWas) {
  OpenedTruss truss("PRATT1", 6, 0.1, 7.5);
  truss.platform.messages.clear();
  RedrawTruss(truss.window, truss.session, truss.platform);
  EXPECT_EQ(truss.platform.TakeTexts(), Texts{"The number is too large"});
  ExpectView(truss, 0, 280, 0, 2580);
}

TEST(NodeMarker, BlueArrowPointsDownAtTheNode) {
  OpenedTruss truss = ExampleOnCanvas();
  Select(truss, 1);  // PL 1 at (864, 1880)
  const auto arrow = Arrow(truss);
  ASSERT_EQ(arrow.size(), 3u);
  EXPECT_EQ(arrow[0].x1, 864);
  EXPECT_EQ(arrow[0].y1, 1380);
  EXPECT_EQ(arrow[0].x2, 864);
  EXPECT_EQ(arrow[0].y2, 1580);
  for (const std::size_t stroke : {1u, 2u}) {
    EXPECT_EQ(arrow[stroke].x2, 864);
    EXPECT_EQ(arrow[stroke].y2, 1580);
    EXPECT_LT(arrow[stroke].y1, 1580);
    EXPECT_GT(arrow[stroke].y1, 1380);
  }
  EXPECT_LT(arrow[1].x1, 864);
  EXPECT_GT(arrow[2].x1, 864);
}

struct Tip {
  const char* type;
  int spans;
  int row;
  double x, nodeY;
};

TEST(NodeMarker, StandsOverTheNodeOfEachRow) {
  const Tip tips[] = {
      {"PRATT1", 6, 2, 1584, 1180},  {"PRATT1", 6, 3, 2304, 480}, {"PRATT1", 6, 5, 3024, 1180},
      {"ENGLISH", 6, 4, 3744, 1880}, {"FINK", 6, 1, 720, 2020},   {"FINK", 6, 5, 3312, 1460},
      {"KINGPOST", 4, 1, 2304, 480}, {"SCI", 4, 1, 1378, 1380},   {"SCI", 4, 2, 2304, 480},
      {"SCI", 4, 3, 3230, 1380},     {"PRATT2", 6, 1, 144, 480},  {"PRATT2", 6, 4, 2304, 480},
      {"HOWE", 6, 7, 3024, 480},     {"WARREN", 6, 2, 1584, 480}, {"WARREN", 6, 3, 4464, 480},
      {"WARREN", 8, 3, 2304, 480},   {"WARREN", 8, 5, 3384, 480},
  };
  for (const Tip& tip : tips) {
    OpenedTruss truss(tip.type, tip.spans, 30, 7.5, 3);
    Select(truss, tip.row);
    const auto arrow = Arrow(truss);
    ASSERT_EQ(arrow.size(), 3u) << tip.type << tip.row;
    EXPECT_EQ(arrow[0].x2, tip.x) << tip.type << tip.row;
    EXPECT_EQ(arrow[0].y2, tip.nodeY - 300) << tip.type << tip.row;
  }
}

TEST(NodeMarker, MovesWithTheSelection) {
  OpenedTruss truss = ExampleOnCanvas();
  Select(truss, 1);
  Select(truss, 2);
  const auto arrow = Arrow(truss);
  ASSERT_EQ(arrow.size(), 3u);
  EXPECT_EQ(arrow[0].x2, 1584);
}

TEST(NodeMarker, BlankRowHasNoNode) {
  OpenedTruss truss = ExampleOnCanvas();
  Select(truss, 1);
  Select(truss, 0);
  EXPECT_TRUE(Arrow(truss).empty());
}

TEST(NodeMarker, StaysOverARedrawButNotOverZoomAndPan) {
  OpenedTruss truss = ExampleOnCanvas();
  Select(truss, 1);
  RedrawTruss(truss.window, truss.session, truss.platform);
  EXPECT_EQ(Arrow(truss).size(), 3u);
  Enlarge(truss);
  EXPECT_TRUE(Arrow(truss).empty());
  Select(truss, 1);
  Reduce(truss);
  EXPECT_TRUE(Arrow(truss).empty());
  Select(truss, 1);
  Pan(truss, 1);
  EXPECT_TRUE(Arrow(truss).empty());
}

}  // namespace
}  // namespace lignara
