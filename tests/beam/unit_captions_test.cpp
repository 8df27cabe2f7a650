#include "beam/unit_captions.h"

#include <gtest/gtest.h>

#include <string>

namespace lignara {
namespace {

TEST(UnitCaptions, FollowTheUnitFlag) {
  const std::pair<const char*, const char*> expected[] = {
      {"L(ft)", "L(m)"},
      {"Young's Mod.,E(psi)", "Young's Mod.,E(kpa)"},
      {"Moment of In.,I(in^4)", "Moment of In.,I(cm^4)"},
      {"Unbraced Length (ft)", "Unbraced Length (m)"},
      {"R1(lbs)", "R1(N)"},
      {"R2(lbs)", "R2(N)"},
      {"Ax. Ld.(lbs)", "Ax. Ld.(N)"},
      {"Max. Moment(ft-lbs)", "Max. Moment(N-m)"},
      {"Max. Shear(lbs)", "Max. Shear(N)"},
      {"Max. Def.(in)", "Max. Def.(cm)"},
      {"(ft)", "(m)"},
      {"A(ft)", "A(m)"},
      {"B(ft)", "B(m)"},
      {"P(lbs)", "P(N)"},
      {"M(ft-lbs)", "M(N-m)"},
      {"W(lbs/ft)", "W(N/m)"},
      {"Disp.(in)", "Disp.(cm)"},
  };
  ASSERT_EQ(std::size(expected), kUnitCaptions.size());
  for (std::size_t i = 0; i < kUnitCaptions.size(); ++i) {
    EXPECT_STREQ(kUnitCaptions[i].english, expected[i].first);
    EXPECT_STREQ(kUnitCaptions[i].metric, expected[i].second);
  }
}

TEST(UnitCaptions, AreThoseOfTheWindowUntilAnotherUnitIsSet) {
  EXPECT_STREQ(CaptionInUnits("M(ft-lb)", 0), "M(ft-lb)");
  EXPECT_STREQ(CaptionInUnits("M(ft-lb)", 1), "M(N-m)");
  EXPECT_STREQ(CaptionInUnits("R1 (lbs)", 1), "R1(N)");
  EXPECT_STREQ(CaptionInUnits("Title:", 1), "Title:");
}

}  // namespace
}  // namespace lignara
