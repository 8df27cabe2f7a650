#pragma once

#include <memory>
#include <optional>
#include <string>

#include "app/glulam_combination_table.h"
#include "app/glulam_transfer.h"
#include "app/member_selection.h"
#include "app/multi_span_model.h"
#include "app/stored_number.h"

namespace lignara {

struct ReportFontChoice {
  std::string Name;
  Int16 Size;  ///< points
};

/// What stands at the head of the beam reports. All texts are blank until the user enters them.
struct ProjectHeader {
  std::string Title;   ///< first title line
  std::string Title2;  ///< second title line
  std::string Engineer;
  std::string Date;
};

struct MultiSpanSolution;

/// The one record that outlives windows. All windows read and write it directly; nothing of it is
/// stored between runs of the program.
struct SessionState {
  std::string TrussType;      ///< truss keyword; empty after the input of a truss was cancelled
  std::string DesignMode;     ///< "TRUSS" or "BEAM": for whom the member size calculator works
  Int16 SpanCount;            ///< spans of a multi-span beam
  std::string DataDirectory;  ///< with a trailing backslash
  ReportFontChoice ReportFont;

  Float32 TrussSpans;        ///< number of panels; a whole even number
  Float32 TrussLength;       ///< between the supports, ft
  Float32 TrussHeight;       ///< at midspan, ft
  Float32 TrussInnerHeight;  ///< of the bottom chords at midspan, scissors truss only, ft
  Float32 PanelLength;       ///< ft
  Float32 LineLoad;          ///< the last line load applied, lb/ft

  std::string ReportTitle;
  std::string ReportDescription;
  ProjectHeader Header;  ///< of the beam reports

  std::string LastWoodTypes;  ///< of the species file last read
  std::string LastGrade;      ///< the grade last picked
  Int16 unitSystem;           ///< 0 English, 1 metric; nothing sets it

  Float32 EndFixity = 1.0;  ///< 0.85 where the single-span beam has both ends fixed; none reads it

  MemberSelection Member;
  /// The text of the user's file of own glulam factors as it was before this program first replaced
  /// it; nothing as long as it has not.
  std::optional<std::string> FactorsAtStart;
  /// What is read in the place of that file while the session goes on from an earlier state.
  std::optional<std::string> FactorsInstead;

  GlulamTransfer Glulam;                      ///< as handed over last
  GlulamCombinationTable GlulamCombinations;  ///< as loaded last

  MultiSpanModel MultiSpan;
  /// The last run of the multi-span beam, as its results window shows it; none before the first.
  std::shared_ptr<const MultiSpanSolution> MultiSpanRun;
};

}  // namespace lignara
