#pragma once

#include <array>

#include "wood/species_data.h"

namespace lignara {

// The rows of the panel's lists. Row 0 of each is blank, and gives the factor 1.0.

inline constexpr std::array<const char*, 8> kWidthRows = {
    "", "2,3 OR 4 in", "5 in", "6 in", "8 in", "10 in", "12 in", "Greater than 14 in"};
inline constexpr std::array<const char*, 4> kThicknessRows = {"", "2 or 3 in", "4 in",
                                                              "Greater than 4 in"};
inline constexpr std::array<const char*, 10> kGradeRows = {
    "",      "Select",       "Structural", "No. 1",   "No. 2",
    "No. 3", "Construction", "Standard",   "Utility", "Stud"};
inline constexpr std::array<const char*, 8> kLoadDurationRows = {
    "",      "Permanent", "10 yr (normal)",      "2 mo (snow)",
    "7 day", "1 day",     "10 min (earthquake)", "Impact"};
inline constexpr std::array<const char*, 4> kShearConditionRows = {
    "", "No Split", "Split < 1/2 thru", "Split >= 1/2 thru"};

// The factors follow the adjustment tables of the NDS and its Supplement; where a cell differs from
// the printed page it is this program's own, and the values are as its users know them.

// Look-up by list row. A row outside of its list gives 1.0, as the blank row does.

/// Size factors for Fb, Ft and Fc along the grain. The tables are those of the western woods, which
/// also serve where no family was chosen; southern pine goes by rules; machine rated lumber has
/// none.
std::array<float, 3> SizeFactors(WoodFamily family, int widthRow, int thicknessRow, int gradeRow);

/// By the row of "Load Duration": from permanent load to impact.
float LoadDurationFactor(int row);
/// By the row of "Shear Condition": 2.0 without a split, 1.0 with one more than half through.
float ShearConditionFactor(int row);
/// By the rows of "Member Width" and "Member Thk.", for bending about the weak axis.
float FlatUseFactor(int widthRow, int thicknessRow);

/// Of members used in sets that share their load, where repetitive use counts.
inline constexpr float kRepetitiveUse = 1.15F;

/// One row of the wet use factors, for moisture above 19%.
struct WetUseRow {
  const char* label;  ///< in the list "Wet Use Factor"
  float factor;
};
/// In the order of `AdjustmentFactors::WetUse`, from its index 1 on.
inline constexpr std::array<WetUseRow, 6> kWetUse = {{{"Fb = ", 0.85F},
                                                      {"Ft = ", 1.0F},
                                                      {"Fc // = ", 0.8F},
                                                      {"Fv = ", 0.97F},
                                                      {"Fc perp = ", 0.67F},
                                                      {"E = ", 0.9F}}};

}  // namespace lignara
