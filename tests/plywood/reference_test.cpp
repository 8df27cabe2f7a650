// The three reference panels: a list of keys, and the description of the chosen one.

#include "tests/plywood/ply_fixture.h"
#include "tests/plywood/reference_texts.h"

namespace lignara {
namespace {

struct ReferenceCase {
  PlyPanel panel;
  const char* caption;
  const char* keyCaption;
  const char* title;
  const published::Rows* entries;
};

const ReferenceCase kPanels[] = {
    {PlyPanel::VeneerGrades, "Veneer Grades", "Grade", "VENEER GRADES", &published::kVeneerGrades},
    {PlyPanel::ExposureLevels, "Exposure Levels", "Level", "EXPOSURE LEVEL",
     &published::kExposureLevels},
    {PlyPanel::SpeciesGroups, "Species Classification", "Level", "SPECIES CLASSIFICATION",
     &published::kSpeciesGroups}};

class ReferencePanels : public PlyFixture, public testing::WithParamInterface<ReferenceCase> {
 protected:
  ReferencePanels() : PlyFixture(GetParam().panel) {}

  const char* keyCaption() const { return GetParam().keyCaption; }
};

TEST_P(ReferencePanels, HaveAKeyListAndADescription) {
  const PlyPanelKind& kind = PlyPanelKindOf(panel);
  EXPECT_EQ(kind.caption, GetParam().caption);
  EXPECT_EQ(kind.linesCaption, "Description");
  EXPECT_EQ(kind.note, "");
  ASSERT_EQ(State().keys.size(), 1U);
  EXPECT_EQ(Key(keyCaption()).form, PlyKeyForm::List);
  EXPECT_TRUE(State().results.empty());
  Texts keys;
  for (const auto& entry : *GetParam().entries) keys.push_back(entry.first);
  EXPECT_EQ(Entries(keyCaption()), keys);
}

TEST_P(ReferencePanels, OpenWithoutAChoiceAndWithoutADescription) {
  EXPECT_EQ(Key(keyCaption()).choice.row, -1);
  EXPECT_TRUE(Lines().empty());
}

TEST_P(ReferencePanels, DescribeEachKey) {
  for (const auto& [key, description] : *GetParam().entries) {
    Choose(keyCaption(), key);
    EXPECT_EQ(Lines(), description) << key;
  }
}

TEST_P(ReferencePanels, DescribeAKeyChosenTwiceOnce) {
  const auto& [key, description] = GetParam().entries->front();
  Choose(keyCaption(), key);
  Choose(keyCaption(), key);
  EXPECT_EQ(Lines(), description);
}

TEST_P(ReferencePanels, ReportTheKeyAndItsDescription) {
  for (const auto& [key, description] : *GetParam().entries) {
    Choose(keyCaption(), key);
    std::string expected = std::string("\n") + GetParam().title + "\n\n" + key + "\n\n";
    for (const std::string& line : description) expected += line + "\n";
    EXPECT_EQ(ReportBytes(), expected);
  }
}

TEST_P(ReferencePanels, ReportAnEmptyKeyWhereNoneIsChosen) {
  EXPECT_EQ(ReportBytes(), std::string("\n") + GetParam().title + "\n\n\n\n");
}

TEST_P(ReferencePanels, PrintInTheirFont) {
  EXPECT_EQ(PlyReport(window, panel).fontName, "TIMES NEW ROMAN");
}

INSTANTIATE_TEST_SUITE_P(All, ReferencePanels, testing::ValuesIn(kPanels));

class SpeciesGroupsTest : public PlyFixture {
 protected:
  SpeciesGroupsTest() : PlyFixture(PlyPanel::SpeciesGroups) {}
};

TEST_F(SpeciesGroupsTest, Group5HasTwoSpecies) {
  Choose("Level", "Group 5");
  EXPECT_EQ(Lines(), (Texts{"Basswood", "Poplar (Balsam)"}));
}

TEST_F(SpeciesGroupsTest, TheNumbersOfSpecies) {
  const std::size_t counts[] = {11, 15, 9, 5, 2};
  for (int group = 0; group < 5; ++group) {
    Choose("Level", group);
    EXPECT_EQ(Lines().size(), counts[group]) << group;
  }
}

}  // namespace
}  // namespace lignara
