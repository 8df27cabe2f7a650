#include "tests/multispan/multi_span_fixture.h"
#include "tests/support/typed.h"

namespace lignara {
namespace {

constexpr const char* kOnJoint = "YOUR LOAD IS DIRECTLY ON SUPPORT, NO AFFECT ON BEAM!";
constexpr const char* kOnLeftJoint = "YOU LOAD IS DIRECTLY ON SUPPORT, NO AFFECT ON BEAM";
constexpr const char* kOnRightEnd = "YOUR LOAD IS DIRECTLY ON THE RIGHT END SUPPORT, NO AFFECT!";
constexpr const char* kOnLeftEnd = "YOUR LOAD IS DIRECTLY ON THE LEFT END SUPPORT, NO AFFECT!";
constexpr const char* kOffSpan = "LOCATION OFF OF SPAN";
constexpr const char* kOrder = "Warning ! You must enter loads in order from left to right.";
constexpr const char* kTaken =
    "You already have a point load at this location, increase your first point load by the amount "
    "of this load, since only one point load may be applied at any one point.";

class PointLoads : public MultiSpanTest {
 protected:
  /// Three spans of 10 ft, the first one shown.
  void OpenThree() {
    Open(3);
    for (int i = 0; i < 3; ++i) EnterSpan(10, 0);
    Previous();
    Previous();
  }
  void NextLoad() { ShowNextLoad(window, session); }
  float Stored(std::size_t span, int load) { return model().pointLoad[span][load].value(); }
};

TEST_F(PointLoads, AreStoredWithTheirPlaceAndCounted) {
  OpenThree();
  EnterLoad("500 lbs", "2.5");
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(Stored(1, 1), 500);
  EXPECT_EQ(model().pointX[1][1].value(), 2.5F);
  EXPECT_EQ(model().pointCount[1].value(), 1);
  EXPECT_EQ(window.loadCount, "1");
}

TEST_F(PointLoads, AreDrawn) {
  OpenThree();
  const Drawing before = window.picture;
  EnterLoad("500", "2.5");
  EXPECT_NE(window.picture, before);
}

TEST_F(PointLoads, OnAJointAreRefused) {
  OpenThree();
  EnterLoad("500", "10");
  Next();
  EnterLoad("500", "10");
  EXPECT_EQ(Messages(), (Texts{kOnJoint, kOnJoint}));
  EnterLoad("500", "0");
  EXPECT_EQ(Messages(), Texts{kOnLeftJoint});
  Next();
  EnterLoad("500", "0");
  EXPECT_EQ(Messages(), Texts{kOnLeftJoint});
  for (std::size_t j = 1; j <= 3; ++j) EXPECT_EQ(Stored(j, 1), 0);
}

TEST_F(PointLoads, OnAFarSupportAreRefused) {
  for (const EndSupport support : {EndSupport::Fixed, EndSupport::Pinned}) {
    OpenThree();
    Support(FarEnd::Left, support);
    Support(FarEnd::Right, support);
    EnterLoad("500", "0");
    EXPECT_EQ(Messages(), Texts{kOnLeftEnd});
    Next();
    Next();
    EnterLoad("500", "10");
    EXPECT_EQ(Messages(), Texts{kOnRightEnd});
  }
}

TEST_F(PointLoads, AtTheTipOfAnOverhangAreStored) {
  OpenThree();
  Support(FarEnd::Left, EndSupport::None);
  Support(FarEnd::Right, EndSupport::None);
  EnterLoad("500", "0");
  Next();
  Next();
  EnterLoad("600", "10");
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(Stored(1, 1), 500);
  EXPECT_EQ(Stored(3, 1), 600);
}

TEST_F(PointLoads, OffTheSpanAreRefused) {
  OpenThree();
  EnterLoad("500", "-0.1");
  EnterLoad("500", "10.01");
  EXPECT_EQ(Messages(), (Texts{kOffSpan, kOffSpan}));
}

TEST_F(PointLoads, AreComparedWithTheStoredLength) {
  OpenThree();
  Type(SpanField::Length, "20");  // not stored
  EnterLoad("500", "10");
  EXPECT_EQ(Messages(), Texts{kOnJoint});
  Type(SpanField::Length, "0.1");
  Store();
  EnterLoad("500", "0.1");  // equal in 32 bits
  EXPECT_EQ(Messages(), Texts{kOnJoint});
}

TEST_F(PointLoads, OutOfOrderAreRefused) {
  OpenThree();
  EnterLoad("500", "5");
  NextLoad();
  EnterLoad("500", "4.99");
  EXPECT_EQ(Messages(), Texts{kOrder});
  EXPECT_EQ(Stored(1, 2), 0);
}

TEST_F(PointLoads, AtTheSamePlaceAreRefused) {
  OpenThree();
  EnterLoad("500", "5");
  NextLoad();
  EnterLoad("500", "5");
  EXPECT_EQ(Messages(), Texts{kTaken});
  EnterLoad("500", "7");
  NextLoad();
  EnterLoad("500", "7");
  EXPECT_EQ(Messages(), Texts{kTaken});
  EXPECT_EQ(model().pointCount[1].value(), 2);
}

TEST_F(PointLoads, AtThePlaceOfAnEarlierLoadOutOfOrderAreRefused) {
  OpenThree();
  EnterLoad("500", "5");
  NextLoad();
  EnterLoad("500", "6");
  ShowPreviousLoad(window, session);
  EnterLoad("500", "8");  // the first is asked for no order
  EXPECT_TRUE(Messages().empty());
  NextLoad();
  NextLoad();
  EnterLoad("500", "8");  // behind the second at 6, but on the first
  EXPECT_EQ(Messages(), Texts{kTaken});
}

// Where several refusals apply the first of them is told.
TEST_F(PointLoads, AreRefusedInTheOrderOfTheChecks) {
  OpenThree();
  model().spanLength[2] = 0;
  Next();
  EnterLoad("500", "0");  // both ends of a span without length
  EXPECT_EQ(Messages(), Texts{kOnJoint});
  model().spanLength[3] = 0;
  Next();
  EnterLoad("500", "0");  // the left joint and the right end
  EXPECT_EQ(Messages(), Texts{kOnLeftJoint});
  OpenThree();
  EnterLoad("500", "5");
  NextLoad();
  EnterLoad("500", "0");  // at the left end and out of order
  EXPECT_EQ(Messages(), Texts{kOnLeftEnd});
  EnterLoad("500", "-1");  // off the span and out of order
  EXPECT_EQ(Messages(), Texts{kOffSpan});
  model().spanLength[1] = 4;
  EnterLoad("500", "4");  // on the joint and out of order
  EXPECT_EQ(Messages(), Texts{kOnJoint});
  model().spanLength[1] = 10;
  EnterLoad("500", "7");
  NextLoad();
  EnterLoad("500", "5");  // out of order at the place of the first
  EXPECT_EQ(Messages(), Texts{kOrder});
}

TEST_F(PointLoads, CanBeStoredAgainAtTheirOwnPlace) {
  OpenThree();
  EnterLoad("500", "5");
  EnterLoad("700", "5");
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(Stored(1, 1), 700);
}

TEST_F(PointLoads, TooLargeForTheProgramAreToldAndKeepWhatWasStored) {
  OpenThree();
  EnterLoad("500", "5");
  EnterLoad("1e39", "5");
  EXPECT_EQ(Messages(), Texts{"The number is too large"});
  EXPECT_EQ(Stored(1, 1), 500);
}

// Moving.

TEST_F(PointLoads, NextComesOnlyBehindALoad) {
  OpenThree();
  NextLoad();
  EXPECT_EQ(window.loadNumber, "1");
  EnterLoad("500", "5");
  NextLoad();
  EXPECT_EQ((Texts{window.loadNumber, window.pointLoad, window.pointX}), (Texts{"2", "0", "0"}));
  NextLoad();
  EXPECT_EQ(window.loadNumber, "2");
}

TEST_F(PointLoads, PreviousShowsTheEntryBefore) {
  OpenThree();
  EnterLoad("500.5", "5");
  NextLoad();
  EnterLoad("-700", "6.25");
  ShowPreviousLoad(window, session);
  EXPECT_EQ((Texts{window.loadNumber, window.pointLoad, window.pointX}),
            (Texts{"1", "500.5", "5"}));
  window.pointLoad = "9";
  ShowPreviousLoad(window, session);
  EXPECT_EQ((Texts{window.loadNumber, window.pointLoad}), (Texts{"1", "500.5"}));
  NextLoad();
  EXPECT_EQ((Texts{window.loadNumber, window.pointLoad, window.pointX}),
            (Texts{"2", "-700", "6.25"}));
}

// The count.

TEST_F(PointLoads, CountDoesNotLookForGaps) {
  OpenThree();
  EnterLoad("500", "2");
  NextLoad();
  EnterLoad("600", "4");
  NextLoad();
  EnterLoad("700", "6");
  ShowPreviousLoad(window, session);
  EnterLoad("0", "4");
  EXPECT_EQ(window.loadCount, "2");
  EXPECT_EQ(Stored(1, 3), 700);
}

TEST_F(PointLoads, FiftyCount) {
  OpenThree();
  for (int k = 1; k <= 52; ++k) {
    EnterLoad("10", Typed(k * 0.15));
    NextLoad();
  }
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(window.loadNumber, "53");
  EXPECT_EQ(window.loadCount, "50");
  EXPECT_EQ(Stored(1, 52), 10);
}

TEST_F(PointLoads, EndWithTheList) {
  OpenThree();
  for (int k = 1; k <= 120; ++k) {
    EnterLoad("10", Typed(k * 0.05));
    NextLoad();
  }
  EXPECT_EQ(window.loadNumber, "100");
}

}  // namespace
}  // namespace lignara
