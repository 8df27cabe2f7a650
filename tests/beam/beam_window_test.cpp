#include <gtest/gtest.h>

#include "app/launcher.h"
#include "tests/support/beam_fixture.h"

namespace lignara {
namespace {

class OpenedBeam : public testing::Test {
 protected:
  TestBeam beam;
};

TEST_F(OpenedBeam, HasItsFirstValues) {
  const SingleSpanBeam& model = beam.window.beam;
  EXPECT_EQ(model.spanLength.value(), 10.0f);
  EXPECT_EQ(model.unbracedLength.value(), 10.0f);
  EXPECT_EQ(model.loadAxis.value(), 0);
  EXPECT_EQ(model.loadCount.value(), 0);
  EXPECT_EQ(model.accuracySteps.value(), 500.0f);
  EXPECT_EQ(model.equivalentLoads.value(), 100.0f);
  EXPECT_EQ(model.axialLoad.value(), 0.0f);
  EXPECT_EQ(model.hasRun.value(), 0);
  EXPECT_EQ(beam.window.unbraced, "");
  EXPECT_EQ(beam.window.reaction1, "");
  EXPECT_FALSE(beam.window.loadPicture.shapes.empty());
  EXPECT_EQ(beam.Boxes(), Texts());
}

TEST_F(OpenedBeam, AsksForTheAccuracy) {
  beam.platform.textAnswers = {"250"};
  AskAccuracy(beam.window, beam.platform);
  EXPECT_EQ(beam.window.beam.accuracySteps.value(), 250.0f);
  EXPECT_EQ(beam.platform.asked,
            Texts({"Enter accuracy iterations. This value determines the number of cycles the "
                   "program uses to obtain shears, moments and deflections. The larger the number "
                   "the more accurate the answer. Caution, a large value will slow your machine "
                   "down."}));
}

TEST_F(OpenedBeam, AsksForTheUniformConversion) {
  beam.platform.textAnswers = {"40 loads"};
  AskUniformConversion(beam.window, beam.platform);
  EXPECT_EQ(beam.window.beam.equivalentLoads.value(), 40.0f);
  EXPECT_EQ(beam.platform.asked,
            Texts({"Enter accuracy iterations. This value determines the number of equivalent "
                   "point loads that the program uses to convert uniform loads to iterative point "
                   "loads. The larger the number the more accurate the answer. Caution, a large "
                   "value will slow your machine down."}));
}

TEST_F(OpenedBeam, TakesTheUsualAccuracyForNoneOrNonsense) {
  for (const std::optional<std::string>& answer :
       {std::optional<std::string>(), std::optional<std::string>("0"),
        std::optional<std::string>("-3"), std::optional<std::string>("many")}) {
    beam.window.beam.accuracySteps = 7;
    beam.window.beam.equivalentLoads = 7;
    beam.platform.textAnswers = {answer, answer};
    AskAccuracy(beam.window, beam.platform);
    AskUniformConversion(beam.window, beam.platform);
    EXPECT_EQ(beam.window.beam.accuracySteps.value(), 500.0f);
    EXPECT_EQ(beam.window.beam.equivalentLoads.value(), 100.0f);
  }
}

TEST_F(OpenedBeam, HandsTheUnbracedLengthToTheDataBases) {
  beam.window.unbraced = "4.5";
  beam.session.DesignMode = "TRUSS";
  VisitMemberDataBase(beam.window, beam.session, beam.platform);
  EXPECT_EQ(beam.session.Member.UnbracedLength.value(), 4.5f);
  EXPECT_EQ(beam.session.DesignMode, "BEAM");
  EXPECT_EQ(beam.platform.calls.back(), "open WTYPETR");
  beam.window.unbraced = "";
  beam.Length("12");
  VisitGlulamDataBase(beam.window, beam.session, beam.platform);
  EXPECT_EQ(beam.session.Member.UnbracedLength.value(), 12.0f);
  EXPECT_EQ(beam.platform.calls.back(), "open GL");
}

TEST(OpenedBeamOfASession, TakesTheMemberAtHand) {
  SessionState session;
  StartSession(session, "/data");
  session.Member.SizeName = "2X10";
  session.Member.SectionIx = 98.93;
  RecordingPlatform platform;
  BeamWindow window;
  OpenBeam(window, session, platform);
  EXPECT_EQ(window.memberName, "2X10");
  EXPECT_EQ(window.beam.momentOfInertia.value(), 98.93f);
  EXPECT_EQ(window.inertia.text, "98.93");
}

TEST(BeamSupports, AreClassifiedWithEachClick) {
  using enum SupportType;
  TestBeam beam;
  SetSupport(beam.window, beam.session, BeamEnd::Left, Fixed);
  EXPECT_EQ(beam.window.beam.supportClass, SupportClass::ProppedFixedLeft);
  SetSupport(beam.window, beam.session, BeamEnd::Right, Fixed);
  EXPECT_EQ(beam.window.beam.supportClass, SupportClass::FixedBothEnds);
  EXPECT_EQ(beam.session.EndFixity.value(), 0.85f);
}

}  // namespace
}  // namespace lignara
