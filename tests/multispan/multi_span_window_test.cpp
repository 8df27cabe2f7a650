#include "multispan/multi_span_window.h"

#include "tests/multispan/multi_span_fixture.h"

namespace lignara {
namespace {

class OpenedMultiSpan : public MultiSpanTest {};

// Opening.

TEST_F(OpenedMultiSpan, OpensOnTheFirstSpanAndLoad) {
  Open(3);
  EXPECT_EQ((Texts{window.spanNumber, window.loadNumber, window.loadCount, window.spanCount}),
            (Texts{"1", "1", "0", "3"}));
  EXPECT_FALSE(window.spanAccepted);
}

TEST_F(OpenedMultiSpan, OpensWithTwoDecimalsOfZeroAndANeutralMember) {
  Open(3);
  EXPECT_EQ(Texts(window.fields.begin(), window.fields.end()),
            (Texts{"0.00", "0.00", "0.00", "1.00", "1.00e+06", "1.00", "0.00", "1.00", "0.00",
                   "0.00", "1.00", "1.00"}));
  EXPECT_EQ((Texts{window.pointX, window.pointLoad}), (Texts{"0.00", "0"}));
  EXPECT_EQ((Texts{window.member, window.type}), (Texts{"CUSTOM, CUSTOM", "NA"}));
}

TEST_F(OpenedMultiSpan, OpensAnEmptyModelWithEightThousandIntegrations) {
  Open(3);
  EnterSpan(10, 100);
  model().curveIntegrations = 5;
  Support(FarEnd::Left, EndSupport::Fixed);
  Open(2);
  EXPECT_EQ(model().spanCount.value(), 2);
  EXPECT_EQ(model().spanLength[1].value(), 0);
  EXPECT_EQ(model().curveIntegrations.value(), 8000);
  EXPECT_EQ(model().farLeftSupport, EndSupport::Pinned);
  EXPECT_EQ(model().farRightSupport, EndSupport::Pinned);
}

TEST_F(OpenedMultiSpan, KeepsItsSpanCountWhenTheLauncherAsksAnew) {
  Open(3);
  session.SpanCount = 7;
  for (int i = 0; i < 9; ++i) Next();
  EXPECT_EQ(window.spanNumber, "3");
}

// The far supports.

TEST_F(OpenedMultiSpan, FarSupportsAreStoredAndDrawn) {
  Open(2);
  EnterSpan(10, 0);
  const Drawing before = window.picture;
  Support(FarEnd::Left, EndSupport::None);
  EXPECT_EQ(model().farLeftSupport, EndSupport::None);
  EXPECT_EQ(model().farRightSupport, EndSupport::Pinned);
  EXPECT_NE(window.picture, before);
  Support(FarEnd::Right, EndSupport::Fixed);
  EXPECT_EQ(model().farRightSupport, EndSupport::Fixed);
}

// The data bases.

TEST_F(OpenedMultiSpan, DataBasesOpenForABeam) {
  Open(2);
  session.DesignMode = "TRUSS";
  OpenSpanMemberDataBase(window, session, platform);
  EXPECT_EQ(session.DesignMode, "BEAM");
  OpenSpanGlulamDataBase(window, session, platform);
  EXPECT_EQ(platform.calls, (Texts{"open WTYPETR", "open GL"}));
}

TEST_F(OpenedMultiSpan, DataBasesTakeTheUnbracedLengthAlong) {
  Open(2);
  session.Member.UnbracedLength = 5;
  OpenSpanGlulamDataBase(window, session, platform);
  EXPECT_EQ(session.Member.UnbracedLength.value(), 5);  // none was entered
  Type(SpanField::Unbraced, "7.5");
  OpenSpanGlulamDataBase(window, session, platform);
  EXPECT_EQ(session.Member.UnbracedLength.value(), 7.5F);
}

}  // namespace
}  // namespace lignara
