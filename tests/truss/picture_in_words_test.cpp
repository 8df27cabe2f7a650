// A truss in words, for who cannot see the picture.

#include "truss/picture_in_words.h"

#include <gtest/gtest.h>

#include "tests/support/recording_platform.h"

namespace lignara {
namespace {

TEST(TypeInWords, SaysTheTitleInSmallLetters) {
  EXPECT_EQ(TypeInWords("FINK"), "Fink truss");
  EXPECT_EQ(TypeInWords("KINGPOST"), "King post truss");
  EXPECT_EQ(TypeInWords("no such type"), "");
}

class DescribeTrussTest : public testing::Test {
 protected:
  DescribeTrussTest() {
    session.TrussType = "KINGPOST";
    session.TrussSpans = 4;
    session.TrussLength = 24;
    session.TrussHeight = 5;
    OpenTruss(window, session, platform);
  }

  std::string After(const char* load) {
    window.nodeLoad = load;
    EnterAllNodeLoads(window, session, platform);
    RunTruss(window, session, platform);
    return DescribeTruss(window, session);
  }

  SessionState session;
  RecordingPlatform platform;
  TrussWindow window;
};

TEST_F(DescribeTrussTest, TellsTypeAndPanelsBeforeARun) {
  EXPECT_EQ(DescribeTruss(window, session), "King post truss, 2 panels, before a run");
}

TEST_F(DescribeTrussTest, TellsTheLargestForceAfterOne) {
  // 500 lbs at each heel, rafters of 5 in 12: 500 x 13 / 5.
  EXPECT_EQ(After("1000"),
            "King post truss, 2 panels, after a run: largest force TL 1 1300.00 lbs compression");
}

TEST_F(DescribeTrussTest, SaysWhereNoMemberBearsAForce) {
  EXPECT_EQ(After("0"), "King post truss, 2 panels, after a run: no member bears a force");
}

}  // namespace
}  // namespace lignara
