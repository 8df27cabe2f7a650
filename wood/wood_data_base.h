#pragma once

#include <array>
#include <string>
#include <vector>

#include "app/list_rows.h"
#include "app/platform.h"
#include "app/session_state.h"
#include "wood/adjustment_tables.h"
#include "wood/species_data.h"

namespace lignara {

/// "Final Selection": the grade at hand. Its values live as text, so that the decimals shown are
/// what goes on.
struct FinalSelection {
  std::string grade;   ///< "Grade"
  std::string fb;      ///< "Allowable Bending Stress (psi)"
  std::string ft;      ///< "Allowable Tensile Stress (psi)"
  std::string fv;      ///< "All. Horz. Shear Stress (psi)"
  std::string fcPerp;  ///< "Allowable Compressive Stress, across grain (psi)"
  std::string fcPar;   ///< "Allowable Compressive Stress, Along Grain (psi)"
  std::string e;       ///< "Youngs Modulus"
};

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

/// The captions of the boxes "Final Stress Multipliers", in the order of StressKind.
inline constexpr std::array<const char*, kStressKinds> kMultiplierCaptions = {
    "Fb", "Ft", "Fv", "Fc parell", "Fc perp.", "E"};

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
  const std::string& MultiplierBox(StressKind kind) const {
    return multipliers[static_cast<std::size_t>(kind)];
  }
};

/// The window `wdb`, "Wood Data Base", modal over the member size calculator.
struct WoodDataBaseWindow {
  WoodFamily DataBaseFamily = WoodFamily::None;
  ListRows files;         ///< "Data Base File to Load"
  ListRows grades;        ///< "Grades"
  std::string woodTypes;  ///< "Types of Wood covered by File"
  FinalSelection selection;
  FactorPanel panel;

  SpeciesIndex index;                          ///< row i belongs to row i of `files`
  std::vector<BaseStressRecord> baseStresses;  ///< row i belongs to row i of `grades`
};

// Choosing a grade (wood_data_base.cpp).

/// The window as it opens: empty lists, no family.
void OpenWoodDataBase(WoodDataBaseWindow& window);
/// "Western Woods", "Southern Pine", "Machine Rated": reads the family's index file.
void ChooseFamily(WoodDataBaseWindow& window, const SessionState& session, Platform& platform,
                  WoodFamily family);
/// A click on a row of "Data Base File to Load": reads the species file. The blank row 0, or a row
/// outside of the list, changes nothing but the choice.
void ChooseSpeciesFile(WoodDataBaseWindow& window, SessionState& session, Platform& platform,
                       int row);
/// A click on a row of "Grades": shows it under "Final Selection". Row 0 changes nothing.
void ChooseGrade(WoodDataBaseWindow& window, SessionState& session, Platform& platform, int row);
/// "OK" of "Final Selection": hands the values to the current member and closes the window.
void AcceptSelection(WoodDataBaseWindow& window, SessionState& session, Platform& platform);
/// "Cancel" of "Final Selection", and the window's close control.
void CancelSelection(WoodDataBaseWindow& window, Platform& platform);

// The factor panel (factor_panel.cpp).

/// "Stress Adjustment Factors": opens the panel with its defaults; only the multipliers stay.
void OpenFactorPanel(WoodDataBaseWindow& window, Platform& platform);
/// A click on a row of one of the five lists.
void ChooseFactorRow(WoodDataBaseWindow& window, Platform& platform, FactorList list, int row);
/// "Yes" or "No" of a pair.
void AnswerFactorPair(WoodDataBaseWindow& window, Platform& platform, FactorPair pair, bool yes);
/// "Calculate Factors".
void CalculateFactors(WoodDataBaseWindow& window, Platform& platform);
/// "OK" of the panel: applies the multipliers to the grade.
void AcceptFactors(WoodDataBaseWindow& window, SessionState& session, Platform& platform);
/// "Cancel" of the panel.
void CancelFactors(WoodDataBaseWindow& window);

// The report (wood_report.cpp).

/// Menu "Files", "Print".
void PrintWoodReport(const WoodDataBaseWindow& window, Platform& platform);
/// Menu "Files", "Save Output to Text File...".
void SaveWoodReport(const WoodDataBaseWindow& window, Platform& platform);

}  // namespace lignara
