#pragma once

#include <array>
#include <string>
#include <vector>

#include "app/list_rows.h"
#include "app/platform.h"
#include "app/session_state.h"
#include "wood/final_multipliers.h"

namespace lignara {

struct WoodDataBaseWindow;

/// The lists of the factor panel that the user chooses from.
enum class FactorList { Width, Thickness, Grade, LoadDuration, ShearCondition };
inline constexpr int kFactorLists = 5;

/// The captions of the five lists, in their order.
inline constexpr std::array<const char*, kFactorLists> kFactorListCaptions = {
    "Member Width", "Member Thk.", "Member Grade", "Load Duration", "Shear Condition"};

/// The yes/no pairs of the factor panel. The active button of a pair is red, the other blue.
enum class FactorPair { RepetitiveUse, FlatUse, Moisture };
inline constexpr int kFactorPairs = 3;

/// The captions of the three pairs, in their order.
inline constexpr std::array<const char*, kFactorPairs> kFactorPairCaptions = {
    "Repetative Use", "Flat Use", "Moisture > 19%"};

/// The panel "Stress Adjustment Factors".
struct FactorPanel {
  bool open = false;
  bool settingUp = false;  ///< clicks on the width, thickness and grade lists do nothing

  std::array<ListRows, kFactorLists> lists;
  std::array<bool, kFactorPairs> yes = {};  ///< true: "Yes" is the active button
  std::vector<std::string> sizeRows;        ///< "Size Factor"
  std::vector<std::string> wetRows;         ///< "Wet Use Factor"

  // The user may type over these four.
  std::string repetitive = "1.0";      ///< "Repetative Use Factor"
  std::string loadDuration = "1.0";    ///< "Load Duration Factor"
  std::string shearCondition = "1.0";  ///< "Shear Condition Factor"
  std::string flatUse = "1.0";         ///< "Flat Use Factor"

  /// "Final Stress Multipliers", shown only; empty until first calculated.
  std::array<std::string, kStressKinds> multipliers;

  AdjustmentFactors factors;

  ListRows& List(FactorList list) { return lists[static_cast<std::size_t>(list)]; }
  const ListRows& List(FactorList list) const { return lists[static_cast<std::size_t>(list)]; }
  int Row(FactorList list) const { return List(list).row; }
  bool& Yes(FactorPair pair) { return yes[static_cast<std::size_t>(pair)]; }
  bool Yes(FactorPair pair) const { return yes[static_cast<std::size_t>(pair)]; }
  const std::string& MultiplierText(StressKind kind) const {
    return multipliers[static_cast<std::size_t>(kind)];
  }
};

/// "Stress Adjustment Factors": opens the panel with its defaults; only the multipliers stay.
void OpenFactorPanel(WoodDataBaseWindow& window, Platform& platform);
/// A click on a row of one of the five lists.
void ChooseFactorRow(WoodDataBaseWindow& window, Platform& platform, FactorList list, int row);
/// "Yes" or "No" of a pair.
void AnswerFactorPair(WoodDataBaseWindow& window, Platform& platform, FactorPair pair, bool yes);
/// "Cancel" of the panel.
void CancelFactors(WoodDataBaseWindow& window);

/// "Calculate Factors".
void CalculateFactors(WoodDataBaseWindow& window, Platform& platform);
/// "OK" of the panel: applies the multipliers to the grade.
void AcceptFactors(WoodDataBaseWindow& window, SessionState& session, Platform& platform);

}  // namespace lignara
