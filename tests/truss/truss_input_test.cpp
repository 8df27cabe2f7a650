#include "truss/truss_input.h"

#include <gtest/gtest.h>

#include "tests/support/recording_platform.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

class TrussInput : public testing::Test {
 protected:
  void Open(const std::string& type) {
    session.TrussType = type;
    window = OpenTrussInput(session);
  }
  void Fill(const std::string& first, const std::string& length, const std::string& height) {
    window.first = first;
    window.totalLength = length;
    window.height = height;
  }
  void Accept() { AcceptTrussInput(window, session, platform); }
  /// The one message so far, with its title and icon.
  void ExpectRefusal(const std::string& text) {
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].text, text);
    EXPECT_EQ(platform.messages[0].title, "ERROR!");
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::Stop);
    EXPECT_TRUE(platform.calls.empty()) << "the window stays open";
    platform.messages.clear();
  }
  void ExpectPlain(const std::string& text) {
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_EQ(platform.messages[0].text, text);
    EXPECT_EQ(platform.messages[0].title, "Lignara");
    EXPECT_EQ(platform.messages[0].icon, MessageIcon::None);
    EXPECT_TRUE(platform.calls.empty()) << "the window stays open";
    platform.messages.clear();
  }

  SessionState session;
  RecordingPlatform platform;
  TrussInputWindow window;
};

TEST_F(TrussInput, FirstFieldHoldsSpansAndIsEmpty) {
  for (const char* type : {"PRATT1", "FINK", "ENGLISH", "HOWE", "PRATT2", "WARREN"}) {
    Open(type);
    EXPECT_EQ(window.firstCaption, "Number of Spans") << type;
    EXPECT_EQ(window.first, "") << type;
    EXPECT_TRUE(window.firstEnabled) << type;
  }
}

TEST_F(TrussInput, ScissorsAskForInnerHeightFirst) {
  Open("SCI");
  EXPECT_EQ(window.firstCaption, "H1 (ft)");
  EXPECT_EQ(window.first, "");
  EXPECT_TRUE(window.firstEnabled);
}

TEST_F(TrussInput, KingPostShowsTwoSpansThatCannotBeChanged) {
  Open("KINGPOST");
  EXPECT_EQ(window.firstCaption, "Number of Spans");
  EXPECT_EQ(window.first, "   2");
  EXPECT_FALSE(window.firstEnabled);
}

TEST_F(TrussInput, OpensWithEmptyDimensionsAndClosedSlopePanel) {
  Open("PRATT1");
  EXPECT_EQ(window.totalLength, "");
  EXPECT_EQ(window.height, "");
  EXPECT_TRUE(window.okEnabled);
  EXPECT_FALSE(window.slopeOpen);
}

TEST_F(TrussInput, ExampleCaptionByType) {
  const std::pair<const char*, const char*> captions[] = {
      {"PRATT1", "Example:(6 Span Pratt1)"},       {"FINK", "Example:(6 Span Fink)"},
      {"ENGLISH", "Example:(6 Span English)"},     {"KINGPOST", "Example:(KING POST)"},
      {"SCI", "Example:(Scissors Truss)"},         {"HOWE", "Example:(6 Span HOWE Truss)"},
      {"PRATT2", "Example:(6 Span PRATT2 Truss)"}, {"WARREN", "Example:(6 Span WARREN Truss)"},
  };
  for (const auto& [type, caption] : captions) {
    Open(type);
    EXPECT_EQ(window.exampleCaption, caption);
  }
}

TEST_F(TrussInput, FewerThanFourSpansAreRefusedWithTrailingBlank) {
  Open("PRATT1");
  for (const char* spans : {"", "abc", "0", "-6", "3", "3.0"}) {
    Fill(spans, "30", "7.5");
    Accept();
    ExpectRefusal("You must enter at least 4 spans ");
  }
}

TEST_F(TrussInput, SpansLengthAndHeightAreCheckedInThisOrder) {
  Open("WARREN");
  Fill("", "", "");
  Accept();
  ExpectRefusal("You must enter at least 4 spans ");
  window.first = "6";
  Accept();
  ExpectRefusal("You must enter a total length.");
  window.totalLength = "30";
  Accept();
  ExpectRefusal("You must enter a height (H)");
}

TEST_F(TrussInput, KingPostIsCheckedForLengthAndHeightOnly) {
  Open("KINGPOST");
  window.first = "";
  Accept();
  ExpectRefusal("You must enter a total length.");
  window.totalLength = "0.5";
  window.height = "-1";
  Accept();
  ExpectRefusal("You must enter a height (H)");
}

TEST_F(TrussInput, ScissorsMissInnerHeightInPlainBoxFirst) {
  Open("SCI");
  Accept();
  ExpectPlain("You need to enter a value for H1");
  window.first = "3";
  Accept();
  ExpectRefusal("You must enter a total length.");
  window.totalLength = "30";
  Accept();
  ExpectRefusal("You must enter a height (H)");
}

TEST_F(TrussInput, RefusalLeavesTheSessionAsItWas) {
  session.TrussSpans = 8;
  session.TrussLength = 40;
  session.TrussHeight = 9;
  Open("PRATT1");
  Fill("6", "30", "0");
  Accept();
  EXPECT_EQ(session.TrussSpans.value(), 8.0f);
  EXPECT_EQ(session.TrussLength.value(), 40.0f);
  EXPECT_EQ(session.TrussHeight.value(), 9.0f);
}

TEST_F(TrussInput, AcceptStoresTheDimensionsAndOpensTheTruss) {
  Open("PRATT1");
  Fill("6", "30", "7.5");
  Accept();
  EXPECT_EQ(session.TrussSpans.value(), 6.0f);
  EXPECT_EQ(session.TrussLength.value(), 30.0f);
  EXPECT_EQ(session.TrussHeight.value(), 7.5f);
  EXPECT_EQ(platform.calls, (Texts{"close TR_INPUT", "open TRUSS"}));
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(TrussInput, FieldsAreReadByTheirNumericPrefix) {
  Open("FINK");
  Fill(" 6 spans", "30.5 ft", "7.5'");
  Accept();
  EXPECT_EQ(session.TrussSpans.value(), 6.0f);
  EXPECT_EQ(session.TrussLength.value(), 30.5f);
  EXPECT_EQ(session.TrussHeight.value(), 7.5f);
}

TEST_F(TrussInput, FixedShapesTakeFourSpans) {
  Open("KINGPOST");
  Fill("99", "16", "6");
  Accept();
  EXPECT_EQ(session.TrussSpans.value(), 4.0f);
  Open("SCI");
  Fill("3", "30", "10");
  Accept();
  EXPECT_EQ(session.TrussSpans.value(), 4.0f);
  EXPECT_EQ(session.TrussInnerHeight.value(), 3.0f);
}

TEST_F(TrussInput, InnerHeightIsNotHeldAgainstTheHeight) {
  Open("SCI");
  Fill("12", "30", "10");
  Accept();
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(platform.calls, (Texts{"close TR_INPUT", "open TRUSS"}));
}

TEST_F(TrussInput, OnlyScissorsStoreAnInnerHeight) {
  session.TrussInnerHeight = 3;
  Open("HOWE");
  Fill("6", "30", "7.5");
  Accept();
  EXPECT_EQ(session.TrussInnerHeight.value(), 3.0f);
}

TEST_F(TrussInput, OddSpansAreRefusedAndTheDimensionsCleared) {
  for (const char* spans : {"5", "3.5", "4.5", "7"}) {
    Open("ENGLISH");
    Fill(spans, "30", "7.5");
    Accept();
    ExpectRefusal("Number of spans must be an even number!");
    EXPECT_EQ(session.TrussSpans.value(), 0.0f) << spans;
    EXPECT_EQ(session.TrussLength.value(), 0.0f) << spans;
    EXPECT_EQ(session.TrussHeight.value(), 0.0f) << spans;
  }
}

TEST_F(TrussInput, ThereIsNoUpperLimitOnSpans) {
  Open("PRATT1");
  Fill("4000", "30", "7.5");
  Accept();
  EXPECT_EQ(session.TrussSpans.value(), 4000.0f);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(TrussInput, NumberTooLargeToKeepIsAFaultAndCountsAsNone) {
  Open("PRATT1");
  Fill("6", "1e39", "7.5");
  Accept();
  EXPECT_EQ(platform.TakeTexts(),
            (Texts{"The number is too large", "You must enter a total length."}));
  EXPECT_TRUE(platform.calls.empty());
}

TEST_F(TrussInput, CancelForgetsTheTypeAndCloses) {
  Open("PRATT1");
  CancelTrussInput(session, platform);
  EXPECT_EQ(session.TrussType, "");
  EXPECT_EQ(platform.calls, Texts{"close TR_INPUT"});
}

TEST_F(TrussInput, SlopeCalculatorNeedsATotalLength) {
  Open("PRATT1");
  for (const char* length : {"", "0", "-30"}) {
    window.totalLength = length;
    OpenSlopeCalculator(window, platform);
    ExpectPlain("ENTER A TOTAL LENGTH VALUE!");
    EXPECT_FALSE(window.slopeOpen);
    EXPECT_TRUE(window.okEnabled);
  }
}

TEST_F(TrussInput, OpenSlopeCalculatorDisablesOk) {
  Open("PRATT1");
  window.totalLength = "30";
  OpenSlopeCalculator(window, platform);
  EXPECT_TRUE(window.slopeOpen);
  EXPECT_FALSE(window.okEnabled);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(TrussInput, SlopeNeedsRiseAndRun) {
  Open("PRATT1");
  window.totalLength = "30";
  OpenSlopeCalculator(window, platform);
  const std::pair<const char*, const char*> refused[] = {
      {"", ""}, {"6", ""}, {"", "12"}, {"0", "12"}, {"6", "-12"}};
  for (const auto& [rise, run] : refused) {
    window.rise = rise;
    window.run = run;
    AcceptSlope(window, platform);
    ExpectPlain("YOU NEED TO ENTER BOTH RISE AND RUN!");
    EXPECT_EQ(window.height, "");
    EXPECT_FALSE(window.okEnabled);
  }
}

// 6 / 12 x 30 / 2 = 7.5; 5 / 12 x 15 = 6.25, which rounds away from zero.
TEST_F(TrussInput, SlopeWritesTheHeightAndStaysOpen) {
  Open("PRATT1");
  window.totalLength = "30";
  OpenSlopeCalculator(window, platform);
  window.rise = "6";
  window.run = "12";
  AcceptSlope(window, platform);
  EXPECT_EQ(window.height, "7.5");
  EXPECT_TRUE(window.slopeOpen);
  EXPECT_TRUE(window.okEnabled);
  window.rise = "5";
  AcceptSlope(window, platform);
  EXPECT_EQ(window.height, "6.3");
}

TEST_F(TrussInput, SlopeRemembersTheLengthOfItsOpening) {
  Open("PRATT1");
  window.totalLength = "30";
  OpenSlopeCalculator(window, platform);
  window.totalLength = "60";
  window.rise = "6";
  window.run = "12";
  AcceptSlope(window, platform);
  EXPECT_EQ(window.height, "7.5");
  OpenSlopeCalculator(window, platform);
  AcceptSlope(window, platform);
  EXPECT_EQ(window.height, "15.0");
}

TEST_F(TrussInput, CancelOfSlopeHidesItAndEnablesOk) {
  Open("PRATT1");
  window.totalLength = "30";
  window.height = "8";
  OpenSlopeCalculator(window, platform);
  CancelSlope(window);
  EXPECT_FALSE(window.slopeOpen);
  EXPECT_TRUE(window.okEnabled);
  EXPECT_EQ(window.height, "8");
}

}  // namespace
}  // namespace lignara
