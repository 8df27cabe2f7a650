#pragma once

#include <string>
#include <vector>

#include "app/list_rows.h"
#include "desktop/session/variant_table.h"

namespace lignara {

/// The window "Repeat With...": a session, what of it is to change, and what came out.
struct RepeatWindow {
  QStringList lines;               ///< the session as it stood when the window was opened
  std::vector<EnterLine> entered;  ///< its lines that can take values
  ListRows enteredRows;
  std::vector<RowNote> enteredNotes;  ///< which of several entries into a field

  std::string values;      ///< a list or a range
  std::string valuesNote;  ///< how many they are, or why there are none

  std::vector<Reading> readings;  ///< what can be read at the end
  std::vector<std::string> readingRows;
  std::vector<RowNote> readingNotes;  ///< what it gives in the windows as they stand
  std::vector<bool> read;             ///< the user wants to know it

  Variants run;  ///< what the table shows
  std::vector<VariantOutcome> outcomes;
  VariantTable table;
  bool running = false;
  std::string status;
};

/// Takes in a session and what can be read in its windows. What was chosen before stays chosen
/// where it is still there.
void TakeSession(RepeatWindow& window, const QStringList& lines, const DesktopPlatform& platform);

void ChooseEntered(RepeatWindow& window, int row);
/// The user typed values: says how many they are.
void EditValues(RepeatWindow& window);
void SetRead(RepeatWindow& window, int row, bool read);

/// What is asked for as the window stands.
Variants WantedVariants(const RepeatWindow& window);
/// What is missing for a run; empty where nothing is.
std::string WhyNoRun(const RepeatWindow& window);
/// True where the table is older than what is asked for.
bool IsOutOfDate(const RepeatWindow& window);

/// A run begins with an empty table.
void BeginRun(RepeatWindow& window);
/// The table of the outcomes so far.
void ShowOutcomes(RepeatWindow& window);
/// A run has ended; `how` tells how in words, after "11 of 11 values played".
void EndRun(RepeatWindow& window, const std::string& how);

}  // namespace lignara
