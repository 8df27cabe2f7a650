#include "beam/support_class.h"

#include <gtest/gtest.h>

namespace lignara {
namespace {

using enum SupportType;

struct Pair {
  SupportType left, right;
  int supportClass;
};

class SupportPairs : public testing::TestWithParam<Pair> {};

TEST_P(SupportPairs, HaveTheirClass) {
  SingleSpanBeam beam;
  SessionState session;
  beam.leftSupport = GetParam().left;
  beam.rightSupport = GetParam().right;
  ClassifySupports(beam, session);
  EXPECT_EQ(static_cast<int>(beam.supportClass), GetParam().supportClass);
}

INSTANTIATE_TEST_SUITE_P(All, SupportPairs,
                         testing::Values(Pair{Pinned, Pinned, 1}, Pair{Fixed, Pinned, 2},
                                         Pair{Pinned, Fixed, 3}, Pair{Pinned, Free, 4},
                                         Pair{Free, Pinned, 5}, Pair{Fixed, Free, 6},
                                         Pair{Free, Fixed, 7}, Pair{Fixed, Fixed, 8}));

TEST(SupportClass, IsSimpleSpanAtTheStart) {
  const SingleSpanBeam beam;
  EXPECT_EQ(beam.leftSupport, Pinned);
  EXPECT_EQ(beam.rightSupport, Pinned);
  EXPECT_EQ(beam.supportClass, SupportClass::SimpleSpan);
}

TEST(SupportClass, OfTwoFreeEndsIsThatOfThePairBefore) {
  for (const SupportType left : {Pinned, Fixed}) {
    SingleSpanBeam beam;
    SessionState session;
    beam.leftSupport = left;
    beam.rightSupport = Fixed;
    ClassifySupports(beam, session);
    const SupportClass before = beam.supportClass;
    beam.leftSupport = beam.rightSupport = Free;
    ClassifySupports(beam, session);
    EXPECT_EQ(beam.supportClass, before);
  }
}

TEST(SupportClass, SetsTheEndFixityOfTheSession) {
  SingleSpanBeam beam;
  SessionState session;
  EXPECT_EQ(session.EndFixity.value(), 1.0f);
  beam.leftSupport = beam.rightSupport = Fixed;
  ClassifySupports(beam, session);
  EXPECT_EQ(session.EndFixity.value(), 0.85f);
  beam.leftSupport = beam.rightSupport = Free;
  ClassifySupports(beam, session);
  EXPECT_EQ(session.EndFixity.value(), 1.0f);
}

TEST(SupportClass, TellsUnstableBeamsAndCantilevers) {
  for (int i = 1; i <= 8; ++i) {
    const auto supportClass = static_cast<SupportClass>(i);
    EXPECT_EQ(IsUnstable(supportClass), i == 4 || i == 5) << i;
    EXPECT_EQ(IsCantilever(supportClass), i == 6 || i == 7) << i;
  }
}

TEST(SupportClass, NamesSupportsForTheReport) {
  EXPECT_STREQ(SupportWord(Fixed), "fixed");
  EXPECT_STREQ(SupportWord(Pinned), "pinned");
  EXPECT_STREQ(SupportWord(Free), "free");
}

}  // namespace
}  // namespace lignara
