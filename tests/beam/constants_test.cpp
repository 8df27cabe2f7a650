#include <gtest/gtest.h>

#include "tests/support/beam_fixture.h"

namespace lignara {
namespace {

using enum SupportType;

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

TEST(BeamSupports, AreClassifiedWithEachClick) {
  TestBeam beam;
  SetSupport(beam.window, beam.session, BeamEnd::Left, Fixed);
  EXPECT_EQ(beam.window.beam.supportClass, SupportClass::ProppedFixedLeft);
  SetSupport(beam.window, beam.session, BeamEnd::Right, Fixed);
  EXPECT_EQ(beam.window.beam.supportClass, SupportClass::FixedBothEnds);
  EXPECT_EQ(beam.session.EndFixity.value(), 0.85f);
}

TEST(BeamConstants, LeaveTheUnbracedLengthWhereOneIsMissing) {
  TestBeam beam;
  beam.window.unbraced = "4";
  beam.Run();
  beam.window.unbraced = "5";
  beam.Constants("1000000", "0");
  beam.Run();
  EXPECT_EQ(beam.window.beam.unbracedLength.value(), 4.0f);
  EXPECT_EQ(beam.session.Member.ModulusE.value(), 1000000.0f) << "the others are read all the same";
}

TEST(BeamConstants, OfMoreThan32BitsKeepTheValueBefore) {
  TestBeam beam;
  beam.window.length = "1e39";
  beam.Run();
  EXPECT_EQ(beam.window.beam.spanLength.value(), 10.0f);
  EXPECT_EQ(beam.Boxes(), Texts({std::string(FaultText(Fault::Overflow))}));
}

}  // namespace
}  // namespace lignara
