#include "tests/support/load_entry.h"

#include <gtest/gtest.h>

namespace lignara {
namespace {

using enum SupportType;

TEST_F(LoadEntry, ReadsNumbersLeniently) {
  beam.Point(" 3.5ft", "1e3 lbs");
  EXPECT_EQ(model.loadA[1].value(), 3.5f);
  EXPECT_EQ(model.loadP[1].value(), 1000.0f);
}

TEST_F(LoadEntry, TellsOfANumberTooLargeAndAddsNothing) {
  beam.Point("5", "1e39");
  EXPECT_EQ(beam.Boxes(), Texts({std::string(FaultText(Fault::Overflow))}));
  EXPECT_EQ(beam.Loads(), 0);
}

// The list and the buttons.

TEST_F(LoadEntry, ListsEachKindByItsWord) {
  beam.Supports(Fixed, Fixed);
  beam.Point("5", "1");
  beam.Uniform("1", "2", "1");
  beam.Add(LoadKind::SlopedLeftZero, {{"A", "1"}, {"B", "1"}, {"W", "1"}});
  beam.Add(LoadKind::SlopedRightZero, {{"A", "1"}, {"B", "1"}, {"W", "1"}});
  beam.Moment("5", "1");
  beam.Add(LoadKind::LeftDisplacement, {{"Disp", "1"}});
  beam.Add(LoadKind::RightDisplacement, {{"Disp", "1"}});
  beam.Axial("1");
  EXPECT_EQ(
      beam.window.loads.rows,
      Texts({"(1)Point Load", "(2)Unif. Level", "(3)Unif. Sl. L=0", "(4)Unif. Sl. R=0",
             "(5)Point Moment", "(6)Left Sup. Disp.", "(7)Right Sup. Disp.", "(8)Axial Load"}));
}

TEST_F(LoadEntry, AddKeepsTheTextsAndSelectsNothing) {
  beam.Point("5", "1000");
  EXPECT_EQ(beam.window.Field(LoadField::A), "5");
  EXPECT_EQ(beam.window.Field(LoadField::P), "1000");
  EXPECT_EQ(beam.window.loads.row, -1);
  EXPECT_TRUE(beam.window.addEnabled);
}

TEST_F(LoadEntry, StartsWithNothingToEdit) {
  EXPECT_TRUE(beam.window.addEnabled);
  EXPECT_FALSE(beam.window.editEnabled);
  EXPECT_EQ(model.selectedKind, LoadKind::PointLoad);
}

TEST_F(LoadEntry, SelectionShowsTheLoadInPlainNumbers) {
  beam.Supports(Fixed, Fixed);
  beam.Point("3.25", "1000");
  beam.Uniform("1", "2.5", "-120.5");
  beam.Moment("5", "900");
  beam.Add(LoadKind::RightDisplacement, {{"Disp", "0.5"}});
  beam.Axial("-750");
  ClearInputs(beam.window);
  const std::vector<std::vector<std::string>> expected = {{"3.25", "", "1000", "", "", ""},
                                                          {"1", "2.5", "", "", "-120.5", ""},
                                                          {"5", "", "", "900", "", ""},
                                                          {"", "", "", "", "", "0.5"},
                                                          {"", "", "-750", "", "", ""}};
  const LoadKind kinds[] = {LoadKind::PointLoad, LoadKind::LevelUniform, LoadKind::PointMoment,
                            LoadKind::RightDisplacement, LoadKind::AxialLoad};
  for (int row = 0; row < 5; ++row) {
    ClearInputs(beam.window);
    SelectLoad(beam.window, row);
    const auto& fields = beam.window.loadFields;
    EXPECT_EQ(Texts(fields.begin(), fields.end()), expected[static_cast<std::size_t>(row)]) << row;
    EXPECT_EQ(model.selectedKind, kinds[row]);
    EXPECT_FALSE(beam.window.addEnabled);
    EXPECT_TRUE(beam.window.editEnabled);
    EXPECT_EQ(beam.window.loads.row, row);
  }
}

TEST_F(LoadEntry, EditTakesTheKindOfTheOption) {
  beam.Point("5", "1000");
  beam.Edit(1, LoadKind::LevelUniform, {{"A", "1"}, {"B", "2"}, {"W", "30"}});
  EXPECT_EQ(beam.window.loads.rows, Texts({"(1)Unif. Level"}));
}

TEST_F(LoadEntry, EditEndsWithEmptyFieldsAndAPointLoad) {
  beam.Moment("5", "1000");
  beam.Edit(1, LoadKind::PointMoment, {{"A", "6"}, {"M", "1"}});
  for (const std::string& field : beam.window.loadFields) EXPECT_EQ(field, "");
  EXPECT_EQ(model.selectedKind, LoadKind::PointLoad);
  EXPECT_TRUE(beam.window.addEnabled);
  EXPECT_FALSE(beam.window.editEnabled);
  EXPECT_EQ(beam.window.loads.row, -1);
}

TEST_F(LoadEntry, DeleteRenumbersTheLoadsBehind) {
  beam.Point("1", "100");
  beam.Uniform("2", "3", "20");
  beam.Axial("-5");
  SelectLoad(beam.window, 1);
  DeleteLoad(beam.window, beam.platform);
  EXPECT_EQ(beam.window.loads.rows, Texts({"(1)Point Load", "(2)Axial Load"}));
  EXPECT_EQ(model.loadAxial[2].value(), -5.0f);
  EXPECT_EQ(beam.Loads(), 2);
  EXPECT_FALSE(beam.window.editEnabled);
  EXPECT_TRUE(beam.window.addEnabled);
}

TEST_F(LoadEntry, DeleteZeroesTheEntryBehindTheLast) {
  beam.Uniform("2", "3", "20");
  beam.Uniform("4", "5", "40");
  SelectLoad(beam.window, 0);
  DeleteLoad(beam.window, beam.platform);
  EXPECT_EQ(model.loadA[1].value(), 4.0f);
  for (const auto array :
       {&SingleSpanBeam::loadA, &SingleSpanBeam::loadB, &SingleSpanBeam::loadW}) {
    EXPECT_EQ((model.*array)[2].value(), 0.0f);
  }
}

TEST_F(LoadEntry, DeleteMovesTheAxialLoadAndTheKindWithoutZeroingThem) {
  beam.Point("5", "100");
  beam.Axial("-5");
  SelectLoad(beam.window, 0);
  DeleteLoad(beam.window, beam.platform);
  EXPECT_EQ(model.loadAxial[1].value(), -5.0f);
  EXPECT_EQ(model.KindOf(1), LoadKind::AxialLoad);
  EXPECT_EQ(model.loadAxial[2].value(), -5.0f);
  EXPECT_EQ(model.KindOf(2), LoadKind::AxialLoad);
  // What lies behind the list is no load.
  ClearInputs(beam.window);
  beam.Point("5", "100");
  EXPECT_EQ(beam.window.loads.rows, Texts({"(1)Axial Load", "(2)Point Load"}));
}

TEST_F(LoadEntry, DeleteTellsOfAMissingLengthAsThePictureDoes) {
  beam.Supports(Free, Fixed);
  beam.Axial("5");
  beam.Length("0");
  SelectLoad(beam.window, 0);
  DeleteLoad(beam.window, beam.platform);
  EXPECT_EQ(beam.Boxes(), Texts({"YOU NEED A VALUE FOR LENGTH !"}));
  EXPECT_EQ(beam.Loads(), 0);
}

TEST_F(LoadEntry, ClearEmptiesTheFieldsAndTheSelection) {
  beam.Moment("5", "1000");
  SelectLoad(beam.window, 0);
  ClearInputs(beam.window);
  for (const std::string& field : beam.window.loadFields) EXPECT_EQ(field, "");
  EXPECT_EQ(beam.window.loads.row, -1);
  EXPECT_TRUE(beam.window.addEnabled);
  EXPECT_FALSE(beam.window.editEnabled);
  EXPECT_EQ(model.selectedKind, LoadKind::PointLoad);
  EXPECT_EQ(beam.Loads(), 1);
}

TEST_F(LoadEntry, EnteringALoadFieldEmptiesIt) {
  beam.Point("5", "1000");
  EnterLoadField(beam.window, LoadField::A);
  EXPECT_EQ(beam.window.Field(LoadField::A), "");
  EXPECT_EQ(beam.window.Field(LoadField::P), "1000");
}

TEST_F(LoadEntry, TakesAHundredAndOneLoadsAndNoMore) {
  for (int i = 0; i < 101; ++i) beam.Point("5", "1");
  EXPECT_EQ(beam.Loads(), 101);
  ExpectNoBox();
  beam.Point("5", "1");
  beam.Point("50", "1");  // not even its place is looked at
  EXPECT_EQ(beam.Loads(), 101);
  ExpectNoBox();
  EXPECT_EQ(beam.window.loads.rows.back(), "(101)Point Load");
}

}  // namespace
}  // namespace lignara
