#include "truss/truss_types.h"

#include <gtest/gtest.h>

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

Texts Labels(const std::vector<MemberRange>& ranges, int halfSpans,
             std::string (*label)(const Member& member)) {
  Texts labels;
  for (const Member& member : MembersOf(ranges, halfSpans)) labels.push_back(label(member));
  return labels;
}

/// "TL 1", "TL 2", ... for each range of a text such as "TL1-3 TR1-3 CV".
Texts Counted(std::initializer_list<std::tuple<const char*, int, int>> ranges) {
  Texts labels;
  for (const auto& [family, first, last] : ranges) {
    for (int i = first; i <= last; ++i) labels.push_back(family + (" " + std::to_string(i)));
  }
  return labels;
}

Texts And(Texts labels, const Texts& more) {
  labels.insert(labels.end(), more.begin(), more.end());
  return labels;
}

Texts InBrackets(const Texts& labels) {
  Texts result;
  for (const std::string& label : labels) result.push_back("(" + label + ")");
  return result;
}

TEST(TrussTypes, KeywordsTitlesAndExamplesInTheOrderOfThePictures) {
  const std::vector<Texts> expected = {{"PRATT1", "PRATT1 TRUSS", "Example:(6 Span Pratt1)"},
                                       {"FINK", "FINK TRUSS", "Example:(6 Span Fink)"},
                                       {"ENGLISH", "ENGLISH TRUSS", "Example:(6 Span English)"},
                                       {"KINGPOST", "KING POST TRUSS", "Example:(KING POST)"},
                                       {"SCI", "SCISSORS TRUSS", "Example:(Scissors Truss)"},
                                       {"HOWE", "HOWE TRUSS", "Example:(6 Span HOWE Truss)"},
                                       {"PRATT2", "PRATT2 TRUSS", "Example:(6 Span PRATT2 Truss)"},
                                       {"WARREN", "WARREN TRUSS", "Example:(6 Span WARREN Truss)"}};
  std::vector<Texts> actual;
  for (const TrussTypeInfo& type : TrussTypes()) {
    actual.push_back({type.keyword, type.title, type.exampleCaption});
    EXPECT_EQ(&TrussTypeOf(type.keyword), &type);
    EXPECT_NE(type.chain, nullptr);
    EXPECT_NE(type.deflections, nullptr);
  }
  EXPECT_EQ(actual, expected);
}

TEST(TrussTypes, OtherKeywordsHaveNothing) {
  for (const char* keyword : {"", "pratt1", "KING POST"}) {
    const TrussTypeInfo& type = TrussTypeOf(keyword);
    EXPECT_EQ(type.title, "");
    EXPECT_EQ(type.chain, nullptr);
    EXPECT_TRUE(type.axialRows.empty());
    EXPECT_TRUE(type.checkedMembers.empty());
  }
}

const Texts kKingPost = {"TL1", "TR1", "CL1", "CR1", "CV"};
const Texts kScissors = {"TL1", "TR1", "TL2", "TR2", "VL1", "VR1", "CL1", "CR1", "CV"};

Texts Chords() { return Counted({{"TL", 1, 3}, {"TR", 1, 3}, {"CL", 1, 3}, {"CR", 1, 3}}); }
Texts Diagonals(int first) { return Counted({{"DL", first, 3}, {"DR", first, 3}}); }
Texts Verticals(int last) { return Counted({{"VL", 1, last}, {"VR", 1, last}}); }

TEST(TrussTypes, RowsOfTheAxialList) {
  const auto rows = [](const char* type) {
    return Labels(TrussTypeOf(type).axialRows, 3, RowLabel);
  };
  const Texts pratt1 = And(And(And(Chords(), Diagonals(2)), Verticals(2)), {"CV"});
  EXPECT_EQ(rows("PRATT1"), pratt1);
  EXPECT_EQ(rows("FINK"), pratt1);
  EXPECT_EQ(rows("ENGLISH"),
            And(And(Chords(), Diagonals(2)), {"VL 1", "VR 1", "VL 2", "VR 2", "CV"}));
  const Texts flat = And(And(And(Chords(), Diagonals(1)), Verticals(3)), {"CV"});
  EXPECT_EQ(rows("PRATT2"), flat);
  EXPECT_EQ(rows("HOWE"), flat);
  EXPECT_EQ(rows("WARREN"), And(And(Chords(), Diagonals(1)), {"VL1", "VR1"}));
  EXPECT_EQ(Labels(TrussTypeOf("KINGPOST").axialRows, 2, RowLabel), kKingPost);
  EXPECT_EQ(Labels(TrussTypeOf("SCI").axialRows, 2, RowLabel), kScissors);
}

TEST(TrussTypes, MembersOfTheStressCheck) {
  const auto members = [](const char* type) {
    return Labels(TrussTypeOf(type).checkedMembers, 3, StressLabel);
  };
  const Texts pratt1 = InBrackets(And(And(Chords(), Diagonals(2)), Verticals(2)));
  EXPECT_EQ(members("PRATT1"), pratt1);
  EXPECT_EQ(members("FINK"), pratt1);
  EXPECT_EQ(members("PRATT2"), And(pratt1, {"CV"}));
  EXPECT_EQ(members("HOWE"), And(pratt1, {"CV"}));
  EXPECT_EQ(members("ENGLISH"),
            And(InBrackets(And(And(Chords(), Diagonals(1)), Verticals(3))), {"CV"}));
  EXPECT_EQ(members("WARREN"), And(InBrackets(And(Chords(), Diagonals(2))), {"VL1", "VR1"}));
  EXPECT_EQ(Labels(TrussTypeOf("KINGPOST").checkedMembers, 2, StressLabel), kKingPost);
  EXPECT_EQ(Labels(TrussTypeOf("SCI").checkedMembers, 2, StressLabel), kScissors);
}

TEST(Members, LabelOfAHitHasTheBlankAndCentreVerticalStandsAlone) {
  EXPECT_EQ(MemberLabel({Family::TL, 1, true}), "TL 1");
  EXPECT_EQ(MemberLabel({Family::DR, 12}), "DR 12");
  EXPECT_EQ(MemberLabel({Family::CV, 1}), "CV");
}

TEST(Members, FamiliesAndTheirGroups) {
  const std::initializer_list<std::tuple<Family, const char*, MemberGroup>> rows = {
      {Family::TL, "TL", MemberGroup::Top},      {Family::TR, "TR", MemberGroup::Top},
      {Family::CL, "CL", MemberGroup::Bottom},   {Family::CR, "CR", MemberGroup::Bottom},
      {Family::VL, "VL", MemberGroup::Vertical}, {Family::VR, "VR", MemberGroup::Vertical},
      {Family::DL, "DL", MemberGroup::Diagonal}, {Family::DR, "DR", MemberGroup::Diagonal},
      {Family::CV, "CV", MemberGroup::Vertical}};
  for (const auto& [family, name, group] : rows) {
    EXPECT_STREQ(FamilyName(family), name);
    EXPECT_EQ(GroupOf(family), group);
  }
}

TEST(Members, FamiliesLeadToTheirArrays) {
  ActiveModel model;
  EXPECT_EQ(&LengthOf(model, Family::DR), &model.LEN_DR);
  EXPECT_EQ(&AxialOf(model, Family::VL), &model.AX_VL);
  EXPECT_EQ(&SignOf(model, Family::CV), &model.SGN_CV);
  EXPECT_EQ(&LengthOf(model, Family::CV), &model.LEN_CV);
}

}  // namespace
}  // namespace lignara
