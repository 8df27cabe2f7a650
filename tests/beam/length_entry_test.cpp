#include <gtest/gtest.h>

#include "tests/support/beam_fixture.h"

namespace lignara {
namespace {

class LengthField : public testing::Test {
 protected:
  TestBeam beam;
};

TEST_F(LengthField, ShowsTenFeetAtTheStart) {
  EXPECT_EQ(beam.window.length, "10.00");
  EXPECT_EQ(beam.window.beam.spanLength.value(), 10.0f);
}

TEST_F(LengthField, IsEmptiedWithoutAQuestionWhileThereAreNoLoads) {
  EXPECT_TRUE(EnterLength(beam.window, beam.platform));
  EXPECT_EQ(beam.window.length, "");
  EXPECT_EQ(beam.window.beam.spanLength.value(), 0.0f);
  EXPECT_TRUE(beam.platform.asked.empty());
}

TEST_F(LengthField, AsksBeforeTheLoadsAreLost) {
  beam.Length("12.5");
  beam.Point("5", "1000");
  beam.platform.yesNoAnswers = {false};
  EXPECT_FALSE(EnterLength(beam.window, beam.platform));
  EXPECT_EQ(beam.platform.asked,
            Texts({"If you change this value, you will loose all your load input! "
                   "Continue ?"}));
  EXPECT_EQ(beam.window.length, "12.50");
  EXPECT_EQ(beam.Loads(), 1);
}

TEST_F(LengthField, LosesTheLoadsOnYes) {
  beam.Point("5", "1000");
  SelectLoad(beam.window, 0);
  beam.platform.yesNoAnswers = {true};
  EXPECT_TRUE(EnterLength(beam.window, beam.platform));
  EXPECT_EQ(beam.Loads(), 0);
  EXPECT_TRUE(beam.window.loads.rows.empty());
  EXPECT_FALSE(beam.window.editEnabled);
  EXPECT_EQ(beam.window.length, "");
  EXPECT_EQ(beam.Boxes(), Texts()) << "the picture has nothing to say here";
}

TEST_F(LengthField, SetsTheSpanWithEachChange) {
  beam.Length("1");
  EXPECT_EQ(beam.window.beam.spanLength.value(), 1.0f);
  beam.Length("12 ft");
  EXPECT_EQ(beam.window.beam.spanLength.value(), 12.0f);
  beam.Length("x");
  EXPECT_EQ(beam.window.beam.spanLength.value(), 0.0f);
}

TEST_F(LengthField, GoesOnAsItIsShownAfterNo) {
  beam.Length("12.346");
  beam.Point("5", "1000");
  beam.platform.yesNoAnswers = {false};
  EnterLength(beam.window, beam.platform);
  EXPECT_EQ(beam.window.length, "12.35");
  EXPECT_EQ(beam.window.beam.spanLength.value(), 12.35f);
}

}  // namespace
}  // namespace lignara
