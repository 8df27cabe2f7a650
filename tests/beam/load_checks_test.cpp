#include <gtest/gtest.h>

#include "tests/support/load_entry.h"

namespace lignara {
namespace {

using enum SupportType;

const std::string kOffSpan = "YOUR LOAD IS OFF OF THE SPAN !";
const std::string kMomentOffSpan = "YOUR MOMENT IS OFF OF THE SPAN !";
const std::string kOffBeam = "YOUR LOAD IS OFF THE BEAM !";
const std::string kOnSupport = "YOUR LOAD IS ON A SUPPORT, NO ACTION !";
const std::string kNoLoad = "YOUR LOAD IS 0 !";
const std::string kNoAxialLoad = "YOUR LOAD IS 0!";
const std::string kNoDisplacement = "YOUR DISPLACEMENT IS 0 !";
const std::string kTwoPins = "BOTH SIDES ARE PINNED, CAN'T USE SUPPORT DISP!";
const std::string kFreeEnd = "WITH ONE SIDE FREE, SUPPORT DISP. GIVES NO AFFECT!";
const std::string kOneAxialLoad =
    "DELETE YOUR EXISTING AXIAL LOAD, PRIOR TO ADDING A NEW ONE OR EDIT YOUR EXISTING AXIAL LOAD. "
    "ONLY ONE AXIAL LOAD IS PERMITTED!";

TEST_F(LoadEntry, AddRefusesAPointLoadOffTheSpan) {
  ExpectAddRefused(LoadKind::PointLoad, {{"A", "-0.1"}, {"P", "0"}}, kOffSpan);
  ExpectAddRefused(LoadKind::PointLoad, {{"A", "10.1"}, {"P", "0"}}, kOffSpan);
}

TEST_F(LoadEntry, AddRefusesAPointLoadOnASupport) {
  for (const SupportType support : {Pinned, Fixed}) {
    beam.Supports(support, support);
    ExpectAddRefused(LoadKind::PointLoad, {{"A", "0"}, {"P", "0"}}, kOnSupport);
    ExpectAddRefused(LoadKind::PointLoad, {{"A", "10"}, {"P", "0"}}, kOnSupport);
  }
}

TEST_F(LoadEntry, AddTakesAPointLoadOnAFreeEnd) {
  beam.Supports(Free, Fixed);
  beam.Point("0", "100");
  ExpectAddRefused(LoadKind::PointLoad, {{"A", "10"}, {"P", "100"}}, kOnSupport);
  beam.Supports(Fixed, Free);
  beam.Point("10", "100");
  ExpectAddRefused(LoadKind::PointLoad, {{"A", "0"}, {"P", "100"}}, kOnSupport);
  EXPECT_EQ(beam.Loads(), 2);
}

TEST_F(LoadEntry, AddRefusesAPointLoadOfZero) {
  ExpectAddRefused(LoadKind::PointLoad, {{"A", "5"}, {"P", ""}}, kNoLoad);
}

TEST_F(LoadEntry, AddStoresAPointLoadWithItsRightLength) {
  beam.Point("3.5", "1000");
  EXPECT_EQ(model.loadA[1].value(), 3.5f);
  EXPECT_EQ(model.loadP[1].value(), 1000.0f);
  EXPECT_EQ(model.loadB[1].value(), 6.5f);
}

class DistributedEntry : public LoadEntry, public testing::WithParamInterface<LoadKind> {};

TEST_P(DistributedEntry, AddRefusesInItsOrder) {
  ExpectAddRefused(GetParam(), {{"A", "10.1"}, {"B", "1"}, {"W", "0"}}, kOffBeam);
  ExpectAddRefused(GetParam(), {{"A", "-1"}, {"B", "1"}, {"W", "0"}}, kOffBeam);
  ExpectAddRefused(GetParam(), {{"A", "4"}, {"B", "7"}, {"W", "0"}}, kOffBeam);
  ExpectAddRefused(GetParam(), {{"A", "4"}, {"B", "6"}, {"W", "0"}}, kNoLoad);
}

TEST_P(DistributedEntry, AddStoresPlaceLengthAndIntensity) {
  beam.Add(GetParam(), {{"A", "4"}, {"B", "6"}, {"W", "-120"}});
  ExpectNoBox();
  EXPECT_EQ(model.loadA[1].value(), 4.0f);
  EXPECT_EQ(model.loadB[1].value(), 6.0f);
  EXPECT_EQ(model.loadW[1].value(), -120.0f);
}

TEST_P(DistributedEntry, AddComparesTheEndAsItIsStored) {
  // 0.7 and 9.3 are a little off in 32 bits; their sum is 10.
  beam.Add(GetParam(), {{"A", "0.7"}, {"B", "9.3"}, {"W", "1"}});
  ExpectNoBox();
  EXPECT_EQ(beam.Loads(), 1);
}

TEST_P(DistributedEntry, EditAsksForTheLengthAlone) {
  beam.Add(GetParam(), {{"A", "4"}, {"B", "6"}, {"W", "120"}});
  ExpectEditRefused(GetParam(), {{"A", "10.1"}, {"B", "11"}, {"W", "0"}}, kOffBeam);
  ExpectEditRefused(GetParam(), {{"A", "-1"}, {"B", "1"}, {"W", "0"}}, kOffBeam);
  ExpectEditRefused(GetParam(), {{"A", "4"}, {"B", "10.1"}, {"W", "0"}}, kOffBeam);
  ExpectEditRefused(GetParam(), {{"A", "4"}, {"B", "7"}, {"W", "0"}}, kNoLoad);
  beam.Edit(1, GetParam(), {{"A", "4"}, {"B", "7"}, {"W", "120"}});
  ExpectNoBox();
  EXPECT_EQ(model.loadB[1].value(), 7.0f);
}

INSTANTIATE_TEST_SUITE_P(Kinds, DistributedEntry,
                         testing::Values(LoadKind::LevelUniform, LoadKind::SlopedLeftZero,
                                         LoadKind::SlopedRightZero));

TEST_F(LoadEntry, AddRefusesAMomentInItsOrder) {
  ExpectAddRefused(LoadKind::PointMoment, {{"A", "-1"}, {"M", "0"}}, kMomentOffSpan);
  ExpectAddRefused(LoadKind::PointMoment, {{"A", "11"}, {"M", "0"}}, kMomentOffSpan);
  ExpectAddRefused(LoadKind::PointMoment, {{"A", "0"}, {"M", "0"}}, kNoLoad);
}

TEST_F(LoadEntry, AddPullsAMomentFromTheEnds) {
  // 4 L / N is 0.08 ft.
  beam.Moment("0.05", "100");
  EXPECT_EQ(model.loadA[1].value(), 0.08f);
  beam.Moment("0.1", "100");
  EXPECT_EQ(model.loadA[2].value(), 0.1f);
  beam.Moment("9.99", "100");
  EXPECT_EQ(model.loadA[3].value(), 9.92f);
  beam.Moment("9.92", "100");
  EXPECT_EQ(model.loadA[4].value(), 9.92f);
  ExpectNoBox();
}

TEST_F(LoadEntry, AddPullsByTheAccuracyOfTheMoment) {
  beam.window.beam.accuracySteps = 100;
  beam.Moment("0.05", "100");
  EXPECT_EQ(model.loadA[1].value(), 0.4f);
}

TEST_F(LoadEntry, EditDoesNotPullAMoment) {
  beam.Moment("0.1", "100");
  beam.Edit(1, LoadKind::PointMoment, {{"A", "0.05"}, {"M", "100"}});
  EXPECT_EQ(model.loadA[1].value(), 0.05f);
}

TEST_F(LoadEntry, EditRefusesAMomentInTheWordsOfALoad) {
  beam.Moment("5", "100");
  ExpectEditRefused(LoadKind::PointMoment, {{"A", "11"}, {"M", "0"}}, kOffSpan);
  ExpectEditRefused(LoadKind::PointMoment, {{"A", "-1"}, {"M", "0"}}, kOffSpan);
  ExpectEditRefused(LoadKind::PointMoment, {{"A", "1"}, {"M", "0"}}, kNoLoad);
}

TEST_F(LoadEntry, EditOfAPointLoadTestsTheSupportFirst) {
  beam.Point("5", "1000");
  // Neither order shows where only one fails; on the support with no load the support is told.
  ExpectEditRefused(LoadKind::PointLoad, {{"A", "0"}, {"P", "0"}}, kOnSupport);
  ExpectEditRefused(LoadKind::PointLoad, {{"A", "10"}, {"P", "0"}}, kOnSupport);
  ExpectEditRefused(LoadKind::PointLoad, {{"A", "11"}, {"P", "0"}}, kOffSpan);
  ExpectEditRefused(LoadKind::PointLoad, {{"A", "-1"}, {"P", "0"}}, kOffSpan);
  ExpectEditRefused(LoadKind::PointLoad, {{"A", "4"}, {"P", "0"}}, kNoLoad);
}

TEST_F(LoadEntry, OrderOfThePointChecksStandsInTheTable) {
  const LoadKindInfo& point = LoadKindOf(LoadKind::PointLoad);
  EXPECT_EQ(point.checks.add[0].message, kOffSpan);
  EXPECT_EQ(point.checks.add[1].message, kOnSupport);
  EXPECT_EQ(point.checks.edit[0].message, kOnSupport);
  EXPECT_EQ(point.checks.edit[1].message, kOffSpan);
}

TEST_F(LoadEntry, EditOfAPointLoadLeavesItsRightLength) {
  beam.Point("3", "1000");
  beam.Edit(1, LoadKind::PointLoad, {{"A", "4"}, {"P", "500"}});
  EXPECT_EQ(model.loadA[1].value(), 4.0f);
  EXPECT_EQ(model.loadP[1].value(), 500.0f);
  EXPECT_EQ(model.loadB[1].value(), 7.0f);
}

class DisplacementEntry : public LoadEntry, public testing::WithParamInterface<LoadKind> {};

TEST_P(DisplacementEntry, AddRefusesInItsOrder) {
  ExpectAddRefused(GetParam(), {{"Disp", "0"}}, kNoDisplacement);
  ExpectAddRefused(GetParam(), {{"Disp", "1"}}, kTwoPins);
  beam.Supports(Fixed, Free);
  ExpectAddRefused(GetParam(), {{"Disp", "1"}}, kFreeEnd);
  beam.Supports(Free, Fixed);
  ExpectAddRefused(GetParam(), {{"Disp", ""}}, kNoDisplacement);
  ExpectAddRefused(GetParam(), {{"Disp", "1"}}, kFreeEnd);
}

TEST_P(DisplacementEntry, AddAsksOnlyForTwoPinsAndCantilevers) {
  for (const auto& [left, right] : {std::pair{Pinned, Free}, std::pair{Free, Pinned}}) {
    beam.Supports(left, right);
    beam.Add(GetParam(), {{"Disp", "1"}});
  }
  ExpectNoBox();
  EXPECT_EQ(beam.Loads(), 2);
}

TEST_P(DisplacementEntry, AddStoresTheDisplacement) {
  beam.Supports(Fixed, Pinned);
  beam.Add(GetParam(), {{"Disp", "-0.25"}});
  ExpectNoBox();
  EXPECT_EQ(model.loadDisp[1].value(), -0.25f);
}

TEST_P(DisplacementEntry, EditDoesNotAskForTheSupports) {
  beam.Point("5", "1000");
  ExpectEditRefused(GetParam(), {{"Disp", "0"}}, kNoDisplacement);
  beam.Edit(1, GetParam(), {{"Disp", "1"}});
  ExpectNoBox();
  EXPECT_EQ(model.loadDisp[1].value(), 1.0f);
}

INSTANTIATE_TEST_SUITE_P(Kinds, DisplacementEntry,
                         testing::Values(LoadKind::LeftDisplacement, LoadKind::RightDisplacement));

TEST_F(LoadEntry, AddRefusesAnAxialLoadInItsOrder) {
  ExpectAddRefused(LoadKind::AxialLoad, {{"P", "0"}}, kNoAxialLoad);
  beam.Axial("500");
  EXPECT_EQ(model.loadAxial[1].value(), 500.0f);
  ExpectAddRefused(LoadKind::AxialLoad, {{"P", "0"}}, kOneAxialLoad);
}

TEST_F(LoadEntry, EditMakesASecondAxialLoad) {
  beam.Axial("500");
  beam.Point("5", "1000");
  beam.Edit(2, LoadKind::AxialLoad, {{"P", "-300"}});
  ExpectNoBox();
  EXPECT_EQ(model.loadAxial[2].value(), -300.0f);
  EXPECT_EQ(beam.window.loads.rows, Texts({"(1)Axial Load", "(2)Axial Load"}));
  beam.Edit(2, LoadKind::AxialLoad, {{"P", "0"}});
  EXPECT_EQ(beam.Boxes(), Texts({kNoAxialLoad}));
}

TEST_F(LoadEntry, LeavesTheKindOfARefusedLoadBehindTheList) {
  ExpectAddRefused(LoadKind::AxialLoad, {{"P", "0"}}, kNoAxialLoad);
  EXPECT_EQ(model.KindOf(1), LoadKind::AxialLoad);
  // It is no load: the first axial load is accepted.
  beam.Axial("1");
  ExpectNoBox();
}

}  // namespace
}  // namespace lignara
