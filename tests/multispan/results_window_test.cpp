#include "multispan/results_window.h"

#include <cmath>

#include "app/number_pattern.h"
#include "app/number_reader.h"
#include "multispan/stress_check.h"
#include "tests/multispan/multi_span_fixture.h"

namespace lignara {
namespace {

class ResultsWindow : public MultiSpanTest {
 protected:
  /// Runs a beam of E 1600000 and I 100 and opens its results.
  void Solve(const std::vector<double>& lengths, double uniform,
             EndSupport right = EndSupport::Pinned) {
    Open(static_cast<int>(lengths.size()));
    for (const double length : lengths) EnterSpan(length, uniform);
    Support(FarEnd::Right, right);
    RunAndShow();
  }
  void RunAndShow() {
    Run();
    ShowMultiSpanResults(results, session);
    platform.calls.clear();
  }
  Texts ReadAt(double x) {
    ReadDiagrams(results, x);
    return {results.location, results.shear, results.moment};
  }

  MultiSpanResults results;
};

// Tables.

TEST_F(ResultsWindow, TablesShowMomentsAndReactions) {
  Solve({10, 12, 14}, 100, EndSupport::None);
  const std::vector<TableRow> moments = {
      {"1", "0.", "-1122.73"}, {"2", "1122.73", "9800."}, {"3", "-9800.", "0."}};
  const std::vector<TableRow> reactions = {
      {"1", "612.27"}, {"2", "77.5"}, {"3", "2910.23"}, {"4", "0."}};
  EXPECT_EQ(results.endMoments, moments);
  EXPECT_EQ(results.reactions, reactions);
}

TEST_F(ResultsWindow, ShowsTheMaximumAndItsPlace) {
  Solve({10, 10}, 120);
  EXPECT_EQ(results.maxMoment, "1500.");
  EXPECT_EQ(results.maxMomentPlace, "at 10. ft");
}

TEST_F(ResultsWindow, PlaceOfTheMaximumFollowsTheUnits) {
  session.unitSystem = 1;
  Solve({10, 10}, 120);
  EXPECT_EQ(results.maxMomentPlace, "at 10. m");
}

TEST_F(ResultsWindow, OpensWithoutReadOutsAndWithClosedPanels) {
  Solve({10, 10}, 120);
  EXPECT_EQ((Texts{results.location, results.shear, results.moment}), (Texts{"", "", ""}));
  EXPECT_FALSE(results.shape.open);
  EXPECT_FALSE(results.header.open);
  EXPECT_TRUE(results.stressRows.empty());
}

TEST_F(ResultsWindow, ANewRunTakesThePlaceOfTheOldAndEmptiesThePanels) {
  Solve({10, 10}, 120);
  results.stressRows = {"old"};
  ReadDiagrams(results, 4);
  ShowDeflectedShape(results, session, platform);
  OpenHeaderPanel(results.header, session);
  RefreshMultiSpanResults(results, session);
  EXPECT_TRUE(results.shape.open);  // the same run still
  model().spanUniform[1] = model().spanUniform[2] = 240;
  Run();
  RefreshMultiSpanResults(results, session);
  EXPECT_TRUE(results.stressRows.empty());
  EXPECT_EQ((Texts{results.location, results.shear, results.moment}), (Texts{"", "", ""}));
  EXPECT_FALSE(results.shape.open);
  EXPECT_FALSE(results.header.open);
  EXPECT_EQ(results.maxMoment, "3000.");  // 240 x 100 / 8
}

// Older than the beam.

class OlderResults : public ResultsWindow {
 protected:
  OlderResults() {
    Solve({10, 10}, 120);
    EnterLoad("500", "5");
    RunAndShow();
  }
  bool RunIsOlder() {
    RefreshMultiSpanResults(results, session);
    EXPECT_EQ(results.status.empty(), !results.runOlder && !results.stressOlder);
    return results.runOlder;
  }
  bool StressIsOlder() {
    RefreshMultiSpanResults(results, session);
    return results.stressOlder;
  }
};

TEST_F(OlderResults, AreThoseOfARunWhoseInputHasChanged) {
  EXPECT_FALSE(RunIsOlder());
  for (Float32Array MultiSpanModel::*list :
       {&MultiSpanModel::spanLength, &MultiSpanModel::spanI, &MultiSpanModel::spanE}) {
    const float before = (model().*list)[2].value();
    (model().*list)[2] = before + 1;
    EXPECT_TRUE(RunIsOlder());
    (model().*list)[2] = before;
    EXPECT_FALSE(RunIsOlder());
  }
  model().spanUniform[2] = 121;
  EXPECT_TRUE(RunIsOlder());
  EXPECT_EQ(results.status, "The beam has changed since this run: run it again");
  Run();
  EXPECT_FALSE(RunIsOlder());
}

TEST_F(OlderResults, FollowPointLoadsSupportsAndIntegrations) {
  EnterLoad("501", "5");
  EXPECT_TRUE(RunIsOlder());
  EnterLoad("500", "6");
  EXPECT_TRUE(RunIsOlder());
  EnterLoad("500", "5");
  EXPECT_FALSE(RunIsOlder());
  Support(FarEnd::Left, EndSupport::Fixed);
  EXPECT_TRUE(RunIsOlder());
  Support(FarEnd::Left, EndSupport::Pinned);
  model().curveIntegrations = 7999;
  EXPECT_TRUE(RunIsOlder());
  model().curveIntegrations = 8000;
  EXPECT_FALSE(RunIsOlder());
}

TEST_F(OlderResults, DoNotFollowWhatTheRunDoesNotRead) {
  model().spanUnbraced[1] = 4;
  model().spanSectionModulus[1] = 30;
  model().spanMember[1] = "Hem-Fir, 2X10";
  Type(SpanField::Length, "99");  // never stored
  EXPECT_FALSE(RunIsOlder());
}

TEST_F(OlderResults, AreThoseOfABeamThatWasOpenedAnew) {
  Open(2);
  EXPECT_TRUE(RunIsOlder());
}

TEST_F(OlderResults, OfAStressCheckFollowItsMembersAndTheRun) {
  session.Member.MemberSource = 2;
  EXPECT_FALSE(StressIsOlder());
  model().spanUnbraced[1] = 4;
  EXPECT_FALSE(StressIsOlder());  // nothing was checked
  CheckGlulamSpans(results, session, platform);
  EXPECT_FALSE(StressIsOlder());
  for (Float32Array MultiSpanModel::*list :
       {&MultiSpanModel::spanSectionModulus, &MultiSpanModel::spanShearArea, &MultiSpanModel::spanB,
        &MultiSpanModel::spanD, &MultiSpanModel::spanFb, &MultiSpanModel::spanFv,
        &MultiSpanModel::spanUnbraced}) {
    const float before = (model().*list)[2].value();
    (model().*list)[2] = before + 1;
    EXPECT_TRUE(StressIsOlder());
    EXPECT_EQ(results.status, "A member has changed since the stress check: check again");
    (model().*list)[2] = before;
    EXPECT_FALSE(StressIsOlder());
  }
  model().spanGlulam[1].Value(GlulamValue::Fv) = 240;
  EXPECT_TRUE(StressIsOlder());
  CheckGlulamSpans(results, session, platform);
  EXPECT_FALSE(StressIsOlder());
  model().spanGlulam[1].MoistureCode = 2;
  EXPECT_TRUE(StressIsOlder());
  CheckGlulamSpans(results, session, platform);
  model().spanType[2] = "GLU-LAM";
  EXPECT_TRUE(StressIsOlder());
  CheckGlulamSpans(results, session, platform);
  Support(FarEnd::Right, EndSupport::Fixed);
  EXPECT_TRUE(StressIsOlder());
  EXPECT_EQ(results.status, "The beam has changed since this run: run it again");
}

TEST_F(ResultsWindow, WithoutARunHasNothingToShow) {
  Open(2);
  ShowMultiSpanResults(results, session);
  ReadDiagrams(results, 1);
  ShowDeflectedShape(results, session, platform);
  PrintMultiSpanReport(results, session, platform);
  PrintMultiSpanDiagrams(results, session, platform);
  EXPECT_TRUE(results.endMoments.empty());
  EXPECT_TRUE(platform.printed.empty());
}

TEST_F(ResultsWindow, CaptionsFollowTheUnits) {
  const ResultCaptions& english = ResultCaptionsOf(0);
  EXPECT_EQ((Texts{english.units, english.location, english.deflection, english.largest}),
            (Texts{"Units are lbs and ft-lbs", "Location(ft)", "Def.(in)", "Max(in) ="}));
  const ResultCaptions& metric = ResultCaptionsOf(1);
  EXPECT_EQ((Texts{metric.units, metric.location, metric.deflection, metric.largest}),
            (Texts{"Units are N and N-m", "Location(m)", "Def.(cm)", "Max(cm)"}));
}

// Read-outs.

TEST_F(ResultsWindow, ReadOutsAreThoseUnderTheCursor) {
  Solve({10, 10}, 120);
  EXPECT_EQ(ReadAt(2.5), (Texts{"2.5", "150.", "750."}));  // 450 x 2.5 - 60 x 6.25
  EXPECT_EQ(ReadAt(15), (Texts{"15.", "150.", "750."}));   // -750 + 750 x 5 - 60 x 25 - 750
}

TEST_F(ResultsWindow, ReadOutOnAJointIsThatOfTheRightSide) {
  Solve({10, 10}, 120);
  EXPECT_EQ(ReadAt(10), (Texts{"10.", "750.", "-1500."}));
}

TEST_F(ResultsWindow, ReadOutsOfNothingAreAPoint) {
  Solve({10, 10}, 120);
  EXPECT_EQ(ReadAt(0), (Texts{".", "450.", "."}));
  EXPECT_EQ(ReadAt(3.75), (Texts{"3.75", ".", "843.75"}));
  EXPECT_EQ(ReadAt(25), (Texts{"25.", ".", "."}));
}

// A uniform load is kept in 64 bits: 1e308 lbs/ft can be entered, but what follows from it is no
// number. Steps of the solver end silently, and nothing shows infinity.
TEST_F(ResultsWindow, HugeLoadsShowNothingThatIsNoNumber) {
  Open(3);
  for (int j = 0; j < 3; ++j) EnterSpan(10, 100);
  for (const double load : {1e308, -1e308, 1e300}) {
    model().spanUniform[2] = load;
    RunAndShow();
    ShowDeflectedShape(results, session, platform);
    PrintMultiSpanReport(results, session, platform);
    EXPECT_TRUE(std::isfinite(results.shearPicture.height));
    EXPECT_TRUE(std::isfinite(results.momentPicture.height));
    for (const double x : {5, 15, 25}) {
      for (const std::string& text : ReadAt(x)) EXPECT_EQ(text.find_first_of("in"), text.npos);
    }
    EXPECT_TRUE(Messages().empty());
  }
}

TEST_F(ResultsWindow, CursorStandsInBothDiagrams) {
  Solve({10, 10}, 120);
  const auto hasCursor = [](const Drawing& drawing, double x) {
    const auto* line = std::get_if<LineShape>(&drawing.shapes.back());
    return line != nullptr && line->colour == Colour::Green && line->x1 == x && line->x2 == x;
  };
  EXPECT_FALSE(hasCursor(results.shearPicture, 4));
  ReadAt(4);
  EXPECT_TRUE(hasCursor(results.shearPicture, 4));
  EXPECT_TRUE(hasCursor(results.momentPicture, 4));
}

// Unbraced lengths.

class UnbracedLengths : public ResultsWindow {
 protected:
  void Enter(const std::string& text) {
    results.unbraced.length = text;
    EnterUnbracedLength(results, session, platform);
  }
  float Stored(int span) { return model().spanUnbraced[span].value(); }
};

TEST_F(UnbracedLengths, ArrowsMoveThroughTheSpans) {
  Solve({10, 12, 14}, 100);
  model().spanUnbraced[2] = 4.5;
  EXPECT_EQ((Texts{results.unbraced.span, results.unbraced.length}), (Texts{"1", "0"}));
  ShowPreviousUnbraced(results, session);
  EXPECT_EQ(results.unbraced.span, "1");
  ShowNextUnbraced(results, session);
  EXPECT_EQ((Texts{results.unbraced.span, results.unbraced.length}), (Texts{"2", "4.5"}));
  ShowNextUnbraced(results, session);
  ShowNextUnbraced(results, session);
  EXPECT_EQ(results.unbraced.span, "3");
}

TEST_F(UnbracedLengths, EnterStoresTheLengthOfTheSpanShown) {
  Solve({10, 12}, 100);
  ShowNextUnbraced(results, session);
  Enter("6 ft");
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(Stored(2), 6);
  EXPECT_EQ(Stored(1), 0);
  Enter("12");  // all of the span
  EXPECT_TRUE(Messages().empty());
}

TEST_F(UnbracedLengths, BeyondTheSpanBecomesTheSpan) {
  Solve({10, 12}, 100);
  Enter("10.01");
  EXPECT_EQ(Messages(), Texts{"Unbraced length is greater than total length of span. Total length "
                              "will be used for unbraced length!"});
  EXPECT_EQ(Stored(1), 10);
  EXPECT_EQ(results.unbraced.length, "10");
}

TEST_F(UnbracedLengths, OfZeroOrLessBecomesTheSpan) {
  Solve({10, 12}, 100);
  for (const char* text : {"0", "-3", ""}) {
    Enter(text);
    EXPECT_EQ(Messages(), Texts{"Unbraced length is less than or equal to 0. Total length will be "
                                "used for unbraced lenhth!"});
    EXPECT_EQ(Stored(1), 10);
  }
}

// The deflected shape.

TEST_F(ResultsWindow, ShapeOpensAtStationZeroUnderABusyPointer) {
  Solve({10, 10}, 100);
  ShowDeflectedShape(results, session, platform);
  EXPECT_TRUE(results.shape.open);
  EXPECT_EQ(platform.calls, (Texts{"busy on", "busy off"}));
  EXPECT_EQ(results.shape.station, 0);
  EXPECT_EQ((Texts{results.shape.location, results.shape.deflection}), (Texts{"0.000", "0.0000"}));
  CloseDeflectedShape(results);
  EXPECT_FALSE(results.shape.open);
}

// w L^4 / 185 E I: 100 / 12 x 120^4 / (1.6E+08 x 185) = 0.0584 in, here found at station 10 or 11.
TEST_F(ResultsWindow, ShapeShowsLocationDeflectionAndRotation) {
  Solve({10, 10}, 100);
  ShowDeflectedShape(results, session, platform);
  EXPECT_EQ(results.shape.largest, "0.0584");
  MoveShapeStation(results, 11);
  EXPECT_EQ(results.shape.location, "4.400");
  EXPECT_NEAR(ReadNumber(results.shape.deflection).value(), 0.0584, 0.0002);
  EXPECT_EQ(results.shape.rotation, FormatNumber(results.shape.shape.rotation[11], "0.000000"));
  EXPECT_EQ(results.shape.rotation.size(), std::string("0.000000").size());
}

TEST_F(ResultsWindow, ShapeHasNoStationOutsideOfItsBar) {
  Solve({10, 10}, 100);
  ShowDeflectedShape(results, session, platform);
  MoveShapeStation(results, 51);
  MoveShapeStation(results, -1);
  EXPECT_EQ(results.shape.station, 0);
}

TEST_F(ResultsWindow, ShapeShowsTheLargestWithItsSign) {
  Open(2);
  EnterSpan(10, -100);
  EnterSpan(10, -100);
  RunAndShow();
  ShowDeflectedShape(results, session, platform);
  EXPECT_EQ(results.shape.largest, "-0.0584");
}

TEST_F(ResultsWindow, ShapeIsThatOfTheRunNotOfTheModelAsItIsNow) {
  Solve({10, 10}, 100);
  session.MultiSpan = MultiSpanModel();
  ShowDeflectedShape(results, session, platform);
  EXPECT_EQ(results.shape.largest, "0.0584");
}

}  // namespace
}  // namespace lignara
