#include "truss/member_signs.h"

#include <gtest/gtest.h>

#include <map>

#include "tests/support/truss_fixture.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

using Signs = std::vector<int>;

/// Signs of element 0, 1, ... of both halves, and of the centre vertical, on 6 panels.
struct SignRow {
  const char* type;
  Signs top, bottom, vertical, diagonal;
  int centre;
};

const SignRow kRows[] = {
    {"PRATT1", {0, -1, -1, -1, 0}, {0, 1, 1, 1, 0}, {0, -1, -1, -1, 0}, {0, 0, 1, 1, 0}, 0},
    {"FINK", {0, -1, -1, -1, 0}, {0, 1, 1, 1, 0}, {0, -1, -1, -1, 0}, {0, 0, 1, 1, 0}, 0},
    {"ENGLISH", {0, -1, -1, -1, 0}, {0, 1, 1, 1, 0}, {0, 1, 1, 1, 0}, {0, 0, -1, -1, 0}, -1},
    {"KINGPOST", {0, -1, 0, 0}, {0, 1, 0, 0}, {0, 0, 0, 0}, {0, 0, 0, 0}, -1},
    {"SCI", {0, -1, -1, 0}, {0, 1, 0, 0}, {0, -1, 0, 0}, {0, 0, 0, 0}, -1},
    {"PRATT2", {0, -1, -1, -1, 0}, {0, 1, 1, 1, 0}, {0, -1, -1, -1, 0}, {0, 1, 1, 1, 0}, -1},
    {"HOWE", {0, -1, -1, -1, 0}, {0, 1, 1, 1, 0}, {0, -1, 1, 1, 0}, {0, -1, -1, -1, 0}, -1},
    {"WARREN", {0, 0, 0, 0, 0}, {0, 0, 0, 0, 0}, {0, 0, 0, 0, 0}, {0, 0, 0, 0, 0}, 0},
};

void ExpectSigns(const Int16Array& signs, const Signs& expected, const std::string& what) {
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(signs[static_cast<int>(i)].value(), expected[i]) << what << " " << i;
  }
}

TEST(MemberSigns, TableOfTheTypes) {
  for (const SignRow& row : kRows) {
    TestTruss truss = StandardTruss(row.type, 6);
    TrussJob job = truss.Job();
    TRUSS_ALLOC(job);
    MEMBER_SIGNS(job);
    const ActiveModel& m = truss.model();
    const std::string type = row.type;
    for (const auto* s : {&m.SGN_TL, &m.SGN_TR}) ExpectSigns(*s, row.top, type + " top");
    for (const auto* s : {&m.SGN_CL, &m.SGN_CR}) ExpectSigns(*s, row.bottom, type + " bottom");
    for (const auto* s : {&m.SGN_VL, &m.SGN_VR}) ExpectSigns(*s, row.vertical, type + " vertical");
    for (const auto* s : {&m.SGN_DL, &m.SGN_DR}) ExpectSigns(*s, row.diagonal, type + " diagonal");
    EXPECT_EQ(m.SGN_CV[1].value(), row.centre) << type;
  }
}

TEST(MemberSigns, TableServesEveryType) { EXPECT_EQ(std::size(kRows), TrussTypes().size()); }

TEST(ApplySigns, TurnsMembersInCompressionNegativeAndLeavesTheOthers) {
  TestTruss truss = StandardTruss("PRATT1", 4);
  TrussJob job = truss.Job();
  TRUSS_ALLOC(job);
  ActiveModel& m = truss.model();
  const std::initializer_list<std::pair<Family, int>> signed_families = {
      {Family::TL, -1}, {Family::TR, -1}, {Family::CL, 1}, {Family::CR, 0},
      {Family::VL, -1}, {Family::VR, 1},  {Family::DL, 0}, {Family::DR, -1}};
  for (const auto& [family, sign] : signed_families) {
    for (int i = 0; i <= 2; ++i) {
      SignOf(m, family)[i] = sign;
      AxialOf(m, family)[i] = 10 + i;
    }
  }
  APPLY_SIGNS(job);
  for (const auto& [family, sign] : signed_families) {
    for (int i = 0; i <= 2; ++i) {
      EXPECT_EQ(AxialOf(m, family)[i].value(), (sign == -1 ? -1 : 1) * (10 + i))
          << FamilyName(family) << i;
    }
  }
}

TEST(ApplySigns, ReachesFromElement0ToTheMiddle) {
  TestTruss truss = StandardTruss("PRATT1", 4);
  TrussJob job = truss.Job();
  TRUSS_ALLOC(job);
  for (int i = 0; i <= 4; ++i) {
    truss.model().SGN_TL[i] = -1;
    truss.model().AX_TL[i] = 5;
  }
  APPLY_SIGNS(job);
  EXPECT_EQ(truss.model().AX_TL[0].value(), -5);
  EXPECT_EQ(truss.model().AX_TL[2].value(), -5);
  EXPECT_EQ(truss.model().AX_TL[3].value(), 5);
}

TEST(ApplySigns, CentreVerticalByItsOwnSign) {
  for (const int sign : {-1, 0, 1}) {
    TestTruss truss = StandardTruss("PRATT2", 4);
    TrussJob job = truss.Job();
    TRUSS_ALLOC(job);
    truss.model().SGN_CV[1] = sign;
    truss.model().AX_CV[1] = 7;
    APPLY_SIGNS(job);
    EXPECT_EQ(truss.model().AX_CV[1].value(), sign == -1 ? -7 : 7);
  }
}

}  // namespace
}  // namespace lignara
