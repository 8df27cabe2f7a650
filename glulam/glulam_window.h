#pragma once

#include <array>
#include <string>

#include "app/list_rows.h"
#include "app/platform.h"
#include "app/session_state.h"

namespace lignara {

/// The window `GL`, "Glued-Laminated Member Data Base". Its values live as text: each step of the
/// adjustment reads what the one before shows, so that the decimals shown are what goes on.
struct GlulamWindow {
  ListRows combinations;  ///< "Combination Symbol"; row i is row i + 1 of the session's table
  std::string species;    ///< "Species Out. Lay/Core Lay", shown only
  std::string useNote;    ///< shown only

  bool dryUse = true;      ///< "Dry Use", else "Wet Use"
  bool wetOffered = true;  ///< whether "Wet Use" can be chosen
  int duration = -1;       ///< index into kGlulamDurations; -1 none, which is normal duration
  int loadType = -1;       ///< index into kGlulamLoadTypes; -1 none

  std::string length;  ///< "L(ft)", unbraced
  std::string depth;   ///< "d(in)"
  std::string width;   ///< "b(in)"

  std::array<std::string, kGlulamValues> values;   ///< psi, shown only
  std::array<std::string, kGlulamValues> factors;  ///< "User Adjustment"

  std::string& Value(GlulamValue value) { return values[static_cast<std::size_t>(value)]; }
  const std::string& Value(GlulamValue value) const {
    return values[static_cast<std::size_t>(value)];
  }
};

inline constexpr const char* kGlulamFixedNote =
    "Greater than 4 laminations, Primary load is bending";
inline constexpr const char* kGlulamFactorNote =
    "Note, if the user does not wish to use the database values, he can adjust these values by "
    "entering the user adjustment factors. If he wishes to use his factors as default, he can save "
    "his values as default by clicking the \"Set user adjustment as default\" button.";

// Life of the window (glulam_window.cpp).

/// The window as it opens: nothing loaded, the user's default factors, the stored unbraced length.
void OpenGlulamWindow(GlulamWindow& window, const SessionState& session, Platform& platform);
/// Menu "Files", "Exit", and the window's close control.
void ExitGlulam(Platform& platform);

// The table of combinations (combination_files.cpp).

/// A button of "Data Base Options", 1 to 4: reads the file and chooses its first combination.
void LoadCombinationFile(GlulamWindow& window, SessionState& session, Platform& platform,
                         int option);

// Choices (glulam_window.cpp).

/// A click on a row of the list. A row outside of it changes nothing.
void ChooseCombination(GlulamWindow& window, const SessionState& session, Platform& platform,
                       int row);
/// "Dry Use" or "Wet Use".
void ChooseMoisture(GlulamWindow& window, const SessionState& session, Platform& platform,
                    bool dryUse);
/// A button of "Duration", as index into kGlulamDurations; -1 takes the choice back.
void ChooseDuration(GlulamWindow& window, const SessionState& session, Platform& platform,
                    int duration);
/// A button of "Main Load Type", as index into kGlulamLoadTypes. No stress depends on it.
void ChooseLoadType(GlulamWindow& window, int loadType);

/// A click into "L(ft)", "d(in)" or "b(in)" empties the field, so that a whole new value is typed.
void EmptySize(GlulamWindow& window, const SessionState& session, Platform& platform,
               std::string GlulamWindow::*size);

/// Works out the fourteen values anew: after each choice, and after each change of "L(ft)",
/// "d(in)", "b(in)" or a user factor (allowable_stresses.cpp).
void RecomputeAllowables(GlulamWindow& window, const SessionState& session, Platform& platform);

/// "Set user adjustment as default" (user_factors.cpp). Where the file cannot be written it stays
/// as it was, and nothing is said. The session keeps what the file held when the program started,
/// for those who go back to that state.
void SaveUserFactors(const GlulamWindow& window, SessionState& session, Platform& platform);
/// The same for this session alone: the file stays as it is.
void HoldUserFactors(const GlulamWindow& window, SessionState& session, Platform& platform);

// Taking over (transfer.cpp).

/// "Done / Transfer": hands section and allowables to the analyses and hides the window.
void TransferGlulamSelection(const GlulamWindow& window, SessionState& session, Platform& platform);
/// The user comes back from another window of the program, which may have left another unbraced
/// length.
void ReturnToGlulam(GlulamWindow& window, const SessionState& session, Platform& platform);

// The report (glulam_report.cpp).

/// Menu "Files", "Print".
void PrintGlulamReport(const GlulamWindow& window, const SessionState& session, Platform& platform);
/// Menu "Files", "Save Output to Text File...".
void SaveGlulamReport(const GlulamWindow& window, const SessionState& session, Platform& platform);

}  // namespace lignara
