#pragma once

#include <string>
#include <vector>

#include "app/list_rows.h"
#include "app/platform.h"
#include "app/session_state.h"
#include "wood/final_selection.h"
#include "wood/species_data.h"
#include "wood/stress_adjustment_panel.h"

namespace lignara {

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

// Choosing a grade (wood_data_base_window.cpp).

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
/// Shows the base values of the chosen grade under "Final Selection". The blank row shows nothing
/// again; where no row is chosen a box says so.
void ShowChosenGrade(WoodDataBaseWindow& window, SessionState& session, Platform& platform);
/// "OK" of "Final Selection": hands the values to the current member and closes the window.
void AcceptSelection(WoodDataBaseWindow& window, SessionState& session, Platform& platform);
/// "Cancel" of "Final Selection", and the window's close control.
void CancelSelection(WoodDataBaseWindow& window, Platform& platform);

// The report (wood_report.cpp).

/// Menu "Files", "Print".
void PrintWoodReport(const WoodDataBaseWindow& window, Platform& platform);
/// Menu "Files", "Save Output to Text File...".
void SaveWoodReport(const WoodDataBaseWindow& window, Platform& platform);

}  // namespace lignara
