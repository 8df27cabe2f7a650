#include "wood/adjustment_tables.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "app/number_reader.h"

namespace lignara {
namespace {

// The tables once more, typed from the trade's own layout as text: one line a table row, a cell
// that is not named is 1.0. Cells are compared as the text of two decimals.

/// "1.5 1.4" is 1.5 in column 1, 1.4 in column 2, 1.0 from there on.
float Cell(const std::string& line, int column) {
  std::size_t at = 0;
  for (int i = 1; i < column && at != std::string::npos; ++i) {
    at = line.find(' ', at);
    if (at != std::string::npos) ++at;
  }
  if (column < 1 || at == std::string::npos || at >= line.size()) return 1.0F;
  Float32 cell = ReadNumber(line.substr(at));
  return cell.value();
}

/// Western woods by grade name: Fb for thin and thick members, Ft, Fc along the grain.
struct WesternLine {
  const char* grade;
  const char* fbThin;
  const char* fbThick;
  const char* ft;
  const char* fc;
};

constexpr WesternLine kWestern[] = {
    {"Select", "1.5 1.4 1.3 1.2 1.1 1.0 0.9", "1.5 1.4 1.3 1.3 1.2 1.1 1.0",
     "1.5 1.4 1.3 1.2 1.1 1.0 0.9", "1.15 1.1 1.1 1.05 1.0 1.0 0.9"},
    {"Structural", "1.5 1.4 1.3 1.2 1.1 1.0 0.9", "1.5 1.4 1.3 1.3 1.2 1.1 1.0",
     "1.5 1.4 1.3 1.2 1.1 1.0 0.9", "1.15 1.1 1.1 1.05 1.0 1.0 0.9"},
    {"No. 1", "1.5 1.4 1.3 1.2 1.1 1.0 0.9", "1.5 1.4 1.3 1.3 1.2 1.1 1.0",
     "1.5 1.4 1.3 1.2 1.1 1.0 0.9", "1.15 1.1 1.1 1.05 1.0 1.0 0.9"},
    {"No. 2", "1.5 1.4 1.3 1.2 1.1 1.0 0.9", "1.5 1.4 1.3 1.3 1.2 1.1 1.0",
     "1.5 1.4 1.3 1.2 1.1 1.0 0.9", "1.15 1.1 1.1 1.05 1.0 1.0 0.9"},
    {"No. 3", "1.5 1.4 1.3 1.2 1.1 1.0 0.9", "1.5 1.4 1.3 1.3 1.2 1.1 1.0",
     "1.5 1.4 1.3 1.2 1.1 1.0 0.9", "1.15 1.1 1.1 1.05 1.0 1.0 0.9"},
    {"Construction", "", "", "", ""},
    {"Standard", "", "", "", ""},
    {"Utility", "0.4", "", "0.4", "0.6"},
    {"Stud", "1.1", "1.1", "1.1", "1.05"},
};

const WesternLine* LineOf(int gradeRow) {
  if (gradeRow < 1 || gradeRow >= static_cast<int>(kGradeRows.size())) return nullptr;
  for (const WesternLine& line : kWestern) {
    if (kGradeRows[static_cast<std::size_t>(gradeRow)] == std::string(line.grade)) return &line;
  }
  return nullptr;
}

std::array<float, 3> WesternByHand(int width, int thickness, int grade) {
  const WesternLine* line = LineOf(grade);
  if (line == nullptr) return {1.0, 1.0, 1.0};
  float fb = 1.0;
  if (thickness == 1) fb = Cell(line->fbThin, width);
  if (thickness == 2 || thickness == 3) fb = Cell(line->fbThick, width);
  return {fb, Cell(line->ft, width), Cell(line->fc, width)};
}

TEST(SizeFactors, WesternWoodsCellByCell) {
  for (int width = -1; width <= 8; ++width) {
    for (int thickness = -1; thickness <= 4; ++thickness) {
      for (int grade = -1; grade <= 10; ++grade) {
        EXPECT_EQ(SizeFactors(WoodFamily::Western, width, thickness, grade),
                  WesternByHand(width, thickness, grade))
            << width << " " << thickness << " " << grade;
      }
    }
  }
}

TEST(SizeFactors, WithoutAFamilyTheWesternTablesServe) {
  for (int width = 0; width <= 7; ++width) {
    for (int thickness = 0; thickness <= 3; ++thickness) {
      for (int grade = 0; grade <= 9; ++grade) {
        EXPECT_EQ(SizeFactors(WoodFamily::None, width, thickness, grade),
                  SizeFactors(WoodFamily::Western, width, thickness, grade));
      }
    }
  }
}

TEST(SizeFactors, WesternExamples) {
  using Factors = std::array<float, 3>;
  const auto western = [](int width, int thickness, int grade) {
    return SizeFactors(WoodFamily::Western, width, thickness, grade);
  };
  constexpr int kSelect = 1;
  constexpr int kUtility = 8;
  constexpr int kStud = 9;
  EXPECT_EQ(western(1, 1, kUtility), (Factors{0.4F, 0.4F, 0.6F}));
  EXPECT_EQ(western(1, 2, kUtility), (Factors{1.0F, 0.4F, 0.6F}));
  EXPECT_EQ(western(4, 1, kStud), (Factors{1.0F, 1.0F, 1.0F}));
  // A member thicker than 4 in. reads the 4 in. column.
  EXPECT_EQ(western(7, 3, kSelect), (Factors{1.0F, 0.9F, 0.9F}));
}

// Southern pine, all rows of width (across) and thickness (down), worked out by hand from the three
// rules. "-": no factor; "b": 1.1 on Fb alone; "w": 0.9 on all three.
TEST(SizeFactors, SouthernPineCellByCell) {
  constexpr std::array<const char*, 4> kByThickness = {
      // Width rows: blank, 2-4, 5, 6, 8, 10, 12, more.
      "------ww",  // blank: only the second rule can hold
      "------ww",  // 2 or 3 in: likewise
      "----bbww",  // 4 in: the first from 8 in. on, the second overrides it from 12 in. on
      "--------",  // thicker: the third overrides both from 5 in. on, and below none holds
  };
  const std::map<char, std::array<float, 3>> factors = {
      {'-', {1.0F, 1.0F, 1.0F}}, {'b', {1.1F, 1.0F, 1.0F}}, {'w', {0.9F, 0.9F, 0.9F}}};
  for (int thickness = 0; thickness <= 3; ++thickness) {
    for (int width = 0; width <= 7; ++width) {
      const char kind = kByThickness[static_cast<std::size_t>(thickness)][width];
      for (int grade = 0; grade <= 9; ++grade) {
        EXPECT_EQ(SizeFactors(WoodFamily::SouthernPine, width, thickness, grade), factors.at(kind))
            << width << " " << thickness << " " << grade;
      }
    }
  }
}

TEST(SizeFactors, MachineRatedLumberHasNone) {
  for (int width = 0; width <= 7; ++width) {
    for (int thickness = 0; thickness <= 3; ++thickness) {
      for (int grade = 0; grade <= 9; ++grade) {
        EXPECT_EQ(SizeFactors(WoodFamily::MachineRated, width, thickness, grade),
                  (std::array<float, 3>{1.0F, 1.0F, 1.0F}));
      }
    }
  }
}

TEST(FactorTables, LoadDurationCellByCell) {
  const std::map<std::string, float> expected = {
      {"", 1.0F},       {"Permanent", 0.9F}, {"10 yr (normal)", 1.0F},      {"2 mo (snow)", 1.15F},
      {"7 day", 1.25F}, {"1 day", 1.33F},    {"10 min (earthquake)", 1.6F}, {"Impact", 2.0F}};
  ASSERT_EQ(kLoadDurationRows.size(), expected.size());
  for (int row = 0; row <= 7; ++row) {
    EXPECT_EQ(LoadDurationFactor(row),
              expected.at(kLoadDurationRows[static_cast<std::size_t>(row)]));
  }
  EXPECT_EQ(LoadDurationFactor(-1), 1.0F);
  EXPECT_EQ(LoadDurationFactor(8), 1.0F);
}

TEST(FactorTables, ShearConditionCellByCell) {
  EXPECT_EQ(ShearConditionFactor(-1), 1.0F);
  EXPECT_EQ(ShearConditionFactor(0), 1.0F);
  EXPECT_EQ(ShearConditionFactor(1), 2.0F);
  EXPECT_EQ(ShearConditionFactor(2), 1.33F);
  EXPECT_EQ(ShearConditionFactor(3), 1.0F);
  EXPECT_EQ(ShearConditionFactor(4), 1.0F);
}

TEST(FactorTables, FlatUseCellByCell) {
  constexpr std::array<const char*, 6> kLines = {"",  // above the list
                                                 "",  // blank
                                                 "1.0 1.1 1.15 1.15 1.2 1.2 1.2",
                                                 "1.0 1.0 1.05 1.1 1.1 1.1 1.1",
                                                 "1.0 1.0 1.05 1.1 1.1 1.1 1.1",
                                                 ""};
  for (int thickness = -1; thickness <= 4; ++thickness) {
    for (int width = -1; width <= 8; ++width) {
      EXPECT_EQ(FlatUseFactor(width, thickness),
                Cell(kLines[static_cast<std::size_t>(thickness + 1)], width))
          << width << " " << thickness;
    }
  }
}

TEST(FactorTables, WetUseCellByCell) {
  const std::array<std::pair<std::string, float>, 6> expected = {{{"Fb = ", 0.85F},
                                                                  {"Ft = ", 1.0F},
                                                                  {"Fc // = ", 0.8F},
                                                                  {"Fv = ", 0.97F},
                                                                  {"Fc perp = ", 0.67F},
                                                                  {"E = ", 0.9F}}};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(kWetUse[i].label, expected[i].first);
    EXPECT_EQ(kWetUse[i].factor, expected[i].second);
  }
}

TEST(FactorTables, RepetitiveUse) { EXPECT_EQ(kRepetitiveUse, 1.15F); }

template <typename Rows>
std::vector<std::string> Texts(const Rows& rows) {
  return {rows.begin(), rows.end()};
}

TEST(FactorTables, RowsOfTheLists) {
  using Rows = std::vector<std::string>;
  EXPECT_EQ(Texts(kWidthRows), (Rows{"", "2,3 OR 4 in", "5 in", "6 in", "8 in", "10 in", "12 in",
                                     "Greater than 14 in"}));
  EXPECT_EQ(Texts(kThicknessRows), (Rows{"", "2 or 3 in", "4 in", "Greater than 4 in"}));
  EXPECT_EQ(Texts(kGradeRows), (Rows{"", "Select", "Structural", "No. 1", "No. 2", "No. 3",
                                     "Construction", "Standard", "Utility", "Stud"}));
  EXPECT_EQ(Texts(kLoadDurationRows), (Rows{"", "Permanent", "10 yr (normal)", "2 mo (snow)",
                                            "7 day", "1 day", "10 min (earthquake)", "Impact"}));
  EXPECT_EQ(Texts(kShearConditionRows),
            (Rows{"", "No Split", "Split < 1/2 thru", "Split >= 1/2 thru"}));
}

}  // namespace
}  // namespace lignara
