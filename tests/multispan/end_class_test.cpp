#include "multispan/end_class.h"

#include <gtest/gtest.h>

namespace lignara {
namespace {

constexpr EndSupport kFixed = EndSupport::Fixed;
constexpr EndSupport kPinned = EndSupport::Pinned;
constexpr EndSupport kNone = EndSupport::None;

struct ClassRow {
  EndSupport left, right;
  int number;
  int firstJoint, lastJointOfTen, carriedSpansOfTen;
};

class EndClasses : public testing::TestWithParam<ClassRow> {};

// Joints and spans as they are for a beam of ten spans.
TEST_P(EndClasses, TellTheJointsAndTheCarriedSpans) {
  const ClassRow& row = GetParam();
  EXPECT_EQ(EndClassNumber(row.left, row.right), row.number);
  const EndClass& found = EndClassOf(row.left, row.right);
  EXPECT_EQ(found.firstJoint, row.firstJoint);
  EXPECT_EQ(10 - found.jointsBehindLast, row.lastJointOfTen);
  EXPECT_EQ(10 - found.spansWithoutCarry, row.carriedSpansOfTen);
}

constexpr ClassRow kRows[] = {
    {kFixed, kFixed, 1, 1, 9, 10},  {kPinned, kPinned, 2, 1, 9, 10}, {kFixed, kPinned, 3, 1, 9, 10},
    {kPinned, kFixed, 4, 1, 9, 10}, {kFixed, kNone, 5, 1, 8, 9},     {kNone, kFixed, 6, 2, 9, 10},
    {kPinned, kNone, 7, 1, 8, 9},   {kNone, kPinned, 8, 2, 9, 10},   {kNone, kNone, 9, 2, 8, 10},
};
INSTANTIATE_TEST_SUITE_P(Rows, EndClasses, testing::ValuesIn(kRows));

TEST(EndClassTable, StepOfAnEndFollowsItsSupport) {
  const auto stepOf = [](EndSupport support) {
    if (support == kFixed) return EndStep::Hold;
    return support == kPinned ? EndStep::Release : EndStep::Shed;
  };
  for (const EndClass& row : kEndClasses) {
    EXPECT_EQ(row.leftStep, stepOf(row.left));
    EXPECT_EQ(row.rightStep, stepOf(row.right));
  }
}

TEST(EndClassTable, SupportsHaveAWord) {
  EXPECT_STREQ(SupportWord(kNone), "free");
  EXPECT_STREQ(SupportWord(kFixed), "fixed");
  EXPECT_STREQ(SupportWord(kPinned), "pinned");
}

TEST(EndClassTable, SupportsBearTheirCodes) {
  EXPECT_EQ(static_cast<int>(kNone), 0);
  EXPECT_EQ(static_cast<int>(kFixed), 1);
  EXPECT_EQ(static_cast<int>(kPinned), 2);
}

}  // namespace
}  // namespace lignara
