#include <gtest/gtest.h>

#include "tests/support/drawn_members.h"
#include "tests/support/opened_truss.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

/// A truss after a run whose axial loads tell the members apart: 100 x the family's place in
/// the enumeration and the index, compression in the top chord.
OpenedTruss AfterRun(const std::string& type) {
  const bool fixed = type == "KINGPOST" || type == "SCI";
  OpenedTruss truss(type, fixed ? 4 : 6, 30, 7.5, 3);
  TrussJob job = truss.Job();
  TRUSS_ALLOC(job);
  for (int f = 0; f < kFamilies; ++f) {
    Float32Array& axial = AxialOf(truss.model(), static_cast<Family>(f));
    for (int i = 1; i <= axial.upper(); ++i) axial[i] = 100.0 * (f + 1) + i;
  }
  truss.model().AX_TL[1] = -121.215;
  truss.model().RunState = 1;
  return truss;
}

void Press(OpenedTruss& truss, double x, double y) { HitTruss(truss.window, truss.session, x, y); }

void PressAtMark(OpenedTruss& truss, const MarkPoint& mark, double dx = 0, double dy = 0) {
  Press(truss, mark.x.value() + dx, mark.y.value() + dy);
}

const MarkPoint& MarkOf(const OpenedTruss& truss, Family family, int index) {
  return truss.window.view.MemberMark.at({family, index});
}

TEST(Hit, BeforeARunNothingHappens) {
  OpenedTruss truss = AfterRun("PRATT1");
  truss.model().RunState = 0;
  const MarkPoint mark = MarkOf(truss, Family::TL, 1);
  PressAtMark(truss, mark);
  EXPECT_EQ(truss.window.hitMember, "");
  EXPECT_EQ(truss.window.hitLoad, "");
  EXPECT_FALSE(IsOverMember(truss.window, truss.session, mark.x.value(), mark.y.value()));
}

TEST(Hit, ShowsNameAndAbsoluteLoad) {
  OpenedTruss truss = AfterRun("PRATT1");
  PressAtMark(truss, MarkOf(truss, Family::TL, 1));
  EXPECT_EQ(truss.window.hitMember, "TL 1");
  EXPECT_EQ(truss.window.hitLoad, "121.22");  // -121.215, half away from zero
  EXPECT_EQ(truss.window.heldLoad.value(), -121.215f);
  PressAtMark(truss, MarkOf(truss, Family::VR, 2));
  EXPECT_EQ(truss.window.hitMember, "VR 2");
  EXPECT_EQ(truss.window.hitLoad, "602.00");
}

TEST(Hit, CentreVerticalHasNoIndex) {
  OpenedTruss truss = AfterRun("KINGPOST");
  PressAtMark(truss, MarkOf(truss, Family::CV, 1));
  EXPECT_EQ(truss.window.hitMember, "CV");
  EXPECT_EQ(truss.window.hitLoad, "901.00");
}

TEST(Hit, FixedShapesNameTheirMembersWithTheBlank) {
  OpenedTruss truss = AfterRun("SCI");
  PressAtMark(truss, MarkOf(truss, Family::TR, 2));
  EXPECT_EQ(truss.window.hitMember, "TR 2");
}

struct Press25 {
  double dx, dy;
  bool hit;
};

TEST(Hit, SquareReaches25UnitsNotIncluded) {
  const Press25 presses[] = {
      {0, 0, true},    {24, 0, true},   {-24, 0, true},  {0, 24, true},   {0, -24, true},
      {24, 24, true},  {24.9, 0, true}, {25, 0, false},  {-25, 0, false}, {0, 25, false},
      {0, -25, false}, {30, 0, false},  {24, 25, false},
  };
  for (const Press25& press : presses) {
    OpenedTruss truss = AfterRun("PRATT1");
    const MarkPoint mark = MarkOf(truss, Family::CL, 1);
    PressAtMark(truss, mark, press.dx, press.dy);
    EXPECT_EQ(truss.window.hitMember, press.hit ? "CL 1" : "") << press.dx << " " << press.dy;
    EXPECT_EQ(IsOverMember(truss.window, truss.session, mark.x.value() + press.dx,
                           mark.y.value() + press.dy),
              press.hit);
  }
}

TEST(Hit, MissKeepsNameAndShowsTheHeldLoadAgain) {
  OpenedTruss truss = AfterRun("PRATT1");
  PressAtMark(truss, MarkOf(truss, Family::TL, 1));
  truss.window.hitLoad = "";
  Press(truss, 0, 0);
  EXPECT_EQ(truss.window.hitMember, "TL 1");
  EXPECT_EQ(truss.window.hitLoad, "121.22");
}

TEST(Hit, MissBeforeAnyHitShowsZero) {
  OpenedTruss truss = AfterRun("PRATT1");
  Press(truss, 0, 0);
  EXPECT_EQ(truss.window.hitMember, "");
  EXPECT_EQ(truss.window.hitLoad, "0.00");
}

// Reduced to a point, all circles lie on one another.
TEST(Hit, LastMemberTestedWinsWhereCirclesOverlap) {
  OpenedTruss truss = AfterRun("PRATT1");
  for (int step = 0; step < 80; ++step) ReduceTruss(truss.window, truss.session, truss.platform);
  Press(truss, 144, 2580);
  EXPECT_EQ(truss.window.hitMember, "VR 2");
  OpenedTruss howe = AfterRun("HOWE");
  for (int step = 0; step < 80; ++step) ReduceTruss(howe.window, howe.session, howe.platform);
  Press(howe, 144, 2580);
  EXPECT_EQ(howe.window.hitMember, "CV");
}

/// Members that are drawn but that no press finds, by type.
TEST(Hit, MembersOutsideTheStressCheckAreNotFound) {
  const std::pair<const char*, std::vector<std::string>> blind[] = {
      {"PRATT1", {"CV"}},
      {"FINK", {}},
      {"ENGLISH", {}},
      {"KINGPOST", {}},
      {"SCI", {}},
      {"PRATT2", {"DL 1", "DR 1", "VL 3", "VR 3"}},
      {"HOWE", {"DL 1", "DR 1", "VL 3", "VR 3"}},
      {"WARREN", {"DL 1", "DR 1"}},
  };
  for (const auto& [type, names] : blind) {
    OpenedTruss truss = AfterRun(type);
    std::vector<std::string> missed;
    for (const DrawnMember& member : DrawnMembers(truss.window.view.drawing)) {
      truss.window.hitMember = "";
      Press(truss, member.circle.x, member.circle.y);
      if (truss.window.hitMember != member.name.text) missed.push_back(member.name.text);
    }
    EXPECT_EQ(missed, names) << type;
  }
}

// The check of an English truss lists DL 1 and VL 3, which are not drawn; a press at the corner of
// the canvas, where unset marks would lie, finds nothing.
TEST(Hit, MemberWithoutAMarkIsNeverHit) {
  OpenedTruss truss = AfterRun("ENGLISH");
  EXPECT_EQ(truss.window.view.MemberMark.count({Family::DL, 1}), 0u);
  EXPECT_EQ(truss.window.view.MemberMark.count({Family::VL, 3}), 0u);
  EXPECT_FALSE(IsOverMember(truss.window, truss.session, 0, 0));
  Press(truss, 0, 0);
  EXPECT_EQ(truss.window.hitMember, "");
}

TEST(Hit, MarksMoveWithZoomAndPan) {
  OpenedTruss truss = AfterRun("PRATT1");
  PanTruss(truss.window, truss.session, truss.platform, 1);
  // CL 1 from (600, 2580) to (1320, 2580).
  Press(truss, 960, 2580);
  EXPECT_EQ(truss.window.hitMember, "CL 1");
}

}  // namespace
}  // namespace lignara
