#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/drawing.h"
#include "app/platform.h"
#include "app/project_header.h"
#include "app/session_state.h"
#include "multispan/beam_deflection.h"
#include "multispan/multi_span_solution.h"
#include "statics/beam.h"
#include "statics/comparison.h"

namespace lignara {

/// A row of a table, a text a column.
using TableRow = std::vector<std::string>;

/// The panel "Unbraced Lengths".
struct UnbracedPanel {
  Int16 currentSpan = 1;
  std::string span;    ///< "Span"
  std::string length;  ///< the field, ft
};

/// The panel "Deflected Shape".
struct ShapePanel {
  bool open = false;
  DeflectedShape shape;
  int station = 0;         ///< of the scroll bar
  std::string location;    ///< "Location(ft)"
  std::string deflection;  ///< "Def.(in)"
  std::string rotation;    ///< "Rotation(rad)"
  std::string largest;     ///< "Max(in) ="
  Drawing picture;
};

/// What a stress check reads of the spans besides the run.
struct StressInputs {
  std::vector<float> numbers;
  std::vector<std::string> names;

  bool operator==(const StressInputs&) const = default;
};

/// The window `MDOUTPUT`, "Moment Distribution Output": the last run of the multi-span beam.
/// Checks, unbraced lengths and the input data of reports are those of the model as it is now.
struct MultiSpanResults {
  std::shared_ptr<const MultiSpanSolution> run;

  std::vector<TableRow> endMoments;  ///< "SPAN", "LEFT MOM.", "RIGHT MOM."
  std::vector<TableRow> reactions;   ///< "Supt.", "Reaction"
  std::string maxMoment;             ///< "Max Moment"
  std::string maxMomentPlace;        ///< where the search found it

  Drawing shearPicture;
  Drawing momentPicture;
  std::optional<double> cursor;  ///< of both, ft; none before the first read-out
  std::string location;          ///< "Location"
  std::string shear;             ///< "Shear"
  std::string moment;            ///< "Moment"

  UnbracedPanel unbraced;
  std::vector<std::string> stressRows;  ///< the list "Stress Check"
  StressInputs stressInputs;            ///< those of the list
  ShapePanel shape;
  HeaderPanel header;

  bool runOlder = false;     ///< the beam has changed since the run
  bool stressOlder = false;  ///< what the list "Stress Check" was made from has changed since
  std::string status;        ///< says so in the status line

  BeamStatics exact;     ///< of the same beam under the same loads
  StaticsCheck statics;  ///< what of the run agrees with it
};

/// The captions that depend on the system of units.
struct ResultCaptions {
  const char* units;
  const char* location;
  const char* deflection;
  const char* largest;
  const char* length;  ///< the unit behind a place
};
const ResultCaptions& ResultCaptionsOf(int unitSystem);

// Filling and reading (results_window.cpp).

/// Shows the last run of the session; all panels are as on a window that opens.
void ShowMultiSpanResults(MultiSpanResults& window, const SessionState& session);
/// Brings the window up to date before it is shown again: a run that was made meanwhile takes the
/// place of the one shown, and results older than their input are known as such.
void RefreshMultiSpanResults(MultiSpanResults& window, const SessionState& session);
/// The mouse comes to a place of a diagram: shear and moment there, and the cursor lines.
void ReadDiagrams(MultiSpanResults& window, double x);
/// Moves the cursor by hundredths of the beam, to its ends at most; the first move starts at an
/// end.
void MoveCursor(MultiSpanResults& window, int hundredths);

// Unbraced lengths (unbraced_lengths.cpp).

/// Shows the stored unbraced length of the span at hand.
void ShowUnbracedLength(MultiSpanResults& window, const SessionState& session);
/// The arrows of the panel.
void ShowPreviousUnbraced(MultiSpanResults& window, const SessionState& session);
void ShowNextUnbraced(MultiSpanResults& window, const SessionState& session);
/// "Enter": stores the field; a length beyond the span's, or none, becomes the span's.
void EnterUnbracedLength(MultiSpanResults& window, SessionState& session, Platform& platform);

// The deflected shape (shape_panel.cpp).

/// Menu "Show Deflected Shape...".
void ShowDeflectedShape(MultiSpanResults& window, const SessionState& session, Platform& platform);
/// The scroll bar of the panel, station 0 to 50.
void MoveShapeStation(MultiSpanResults& window, int station);
/// "Close".
void CloseDeflectedShape(MultiSpanResults& window);

// Reports (multi_span_report.cpp).

/// Spans and far supports, and the loads of the spans that have some, line by line.
std::vector<std::string> MultiSpanStructureLines(const MultiSpanModel& model);
std::vector<std::string> MultiSpanLoadLines(const MultiSpanModel& model);
/// The lines of the report, without diagrams.
Report MultiSpanReport(const MultiSpanResults& window, const SessionState& session);
/// Menu "Files", "Print Report".
void PrintMultiSpanReport(const MultiSpanResults& window, const SessionState& session,
                          Platform& platform);
/// Menu "Files", "Print Diagrams Only".
void PrintMultiSpanDiagrams(const MultiSpanResults& window, const SessionState& session,
                            Platform& platform);
/// Menu "Files", "Save Output to Text File".
void SaveMultiSpanReport(const MultiSpanResults& window, const SessionState& session,
                         Platform& platform);

}  // namespace lignara
