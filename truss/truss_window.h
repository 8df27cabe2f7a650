#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "app/drawing.h"
#include "app/list_rows.h"
#include "app/platform.h"
#include "app/session_state.h"
#include "statics/comparison.h"
#include "truss/active_model.h"
#include "truss/members.h"
#include "truss/stress_check.h"

namespace lignara {

/// Width and height of the truss picture in its own units.
inline constexpr int kCanvasWidth = 4800;
inline constexpr int kCanvasHeight = 3000;

/// Centre of a member's circle on the canvas.
struct MarkPoint {
  Int16 x, y;
};

/// How the truss is shown on the canvas.
struct TrussView {
  Float32 ZoomFactor = 1.0;
  Int16 PixelsPerFootX, PixelsPerFootY;  ///< canvas units a foot
  Int16 CanvasOriginX, CanvasOriginY;    ///< left end of the bottom chord
  std::map<std::pair<Family, int>, MarkPoint> MemberMark;
  int panBar = 0;             ///< value of the horizontal scroll bar
  int markedRow = -1;         ///< row of the node list whose node bears the arrow, -1 none
  bool resultsShown = false;  ///< members are coloured by tension and compression
  Drawing drawing;            ///< what the canvas shows
};

/// The window of one truss: all that it holds and shows.
struct TrussWindow {
  ActiveModel model;
  TrussView view;
  std::string title;

  // Node loads.
  std::vector<std::string> nodeRows;
  int nodeRow = -1;
  std::string nodeLoad;  ///< the field beside the list, lbs

  bool lineLoadOpen = false;  ///< panel "Uniform Load (Line Load)"
  std::string lineLoad;       ///< "Load (lb / ft)"
  bool areaLoadOpen = false;  ///< panel "Area Load "
  std::string trussSpacing;   ///< "Truss Spacing (ft)"
  std::string areaLoad;       ///< "Load (lb/sf)"

  // Results.
  std::string leftReaction;   ///< "Left Side"
  std::string rightReaction;  ///< "Right Side"
  std::vector<std::string> axialRows;
  int axialRow = -1;      ///< the chosen one; its member is lit
  std::string hitMember;  ///< "Click in red circle on member!"
  std::string hitLoad;    ///< "Axial Load (lbs)"
  Float32 heldLoad;       ///< of the member hit last, lbs

  bool lengthsOpen = false;  ///< panel "Member Lengths (ft)"
  std::vector<std::string> lengthRows;
  bool deflectionsOpen = false;  ///< panel "Deflections"
  std::vector<std::string> deflectionRows;
  bool stressOpen = false;  ///< panel "Actual and Allowable Axial Stresses"
  std::vector<std::string> stressRows;
  std::vector<MemberStress> stresses;  ///< of the last run; none where it had no members
  std::vector<double> ranWith;         ///< the inputs of the last run (changed_since_run.h)

  // The second opinion on the last run (truss_statics.h).
  StaticsCheck statics;
  std::vector<Member> departing;  ///< whose forces differ from statics by more than 5 %

  // Marks, which follow from the rest (window_marks.h).
  bool outOfDate = false;            ///< the results are older than an input
  std::string status;                ///< the highest stress ratio, or what stands in its way
  std::string hitSense;              ///< "T" or "C" of the member hit last
  std::vector<RowNote> axialNotes;   ///< beside the axial list
  std::vector<RowNote> stressNotes;  ///< beside the list of stresses
  std::string whyNoForces, whyNoDeflections, whyNoStresses;  ///< in empty lists

  // Report.
  bool headingsOpen = false;    ///< panel "Output Description"
  std::string titleText;        ///< "Title"
  std::string descriptionText;  ///< "Description"
  bool fontsOpen = false;       ///< panel "Fonts"
  bool fontTimes = true;        ///< "Times New Roman", else "Arial"
  bool fontTen = true;          ///< 10 points, else 8
};

// The window and the one that goes with it (truss_window.cpp).

/// The window as it opens: model empty, zoom 1, node loads 0, truss drawn, node list filled.
void OpenTruss(TrussWindow& window, SessionState& session, Platform& platform);
/// "Wood Type": on to the window in which the members get their sizes.
void OpenWoodType(SessionState& session, Platform& platform);
/// "Deflections", and "Cancel" of the panel. The run fills the list, the panel being open or not.
void OpenDeflections(TrussWindow& window);
void CloseDeflections(TrussWindow& window);
/// "Code Stress", and "OK" of the panel.
void OpenStresses(TrussWindow& window);
void CloseStresses(TrussWindow& window);

// Node loads (node_loads.cpp).

/// A click on a row of the node list: its load goes into the field, its node is marked.
void SelectNode(TrussWindow& window, const SessionState& session, Platform& platform, int row);
/// "Enter": the field becomes the load of the selected row.
void EnterNodeLoad(TrussWindow& window, const SessionState& session, Platform& platform);
/// Return in the field: "Enter", then the next row of the list is selected, so that the loads of a
/// truss can be typed one after the other. At the last row it stays.
void EnterNodeLoadAndGoOn(TrussWindow& window, const SessionState& session, Platform& platform);
/// "All": the field becomes the load of all nodes.
void EnterAllNodeLoads(TrussWindow& window, const SessionState& session, Platform& platform);
/// Clears and refills the node list.
void SHOW_NODE_LOADS(TrussWindow& window, const SessionState& session);

// Distributed loads (distributed_loads.cpp).

void OpenLineLoad(TrussWindow& window);
void OpenAreaLoad(TrussWindow& window);
void CancelDistributedLoad(TrussWindow& window);
void ApplyLineLoad(TrussWindow& window, SessionState& session, Platform& platform);
void ApplyAreaLoad(TrussWindow& window, SessionState& session, Platform& platform);

// Analysis (run.cpp).

/// "Run".
void RunTruss(TrussWindow& window, SessionState& session, Platform& platform);

// Lists of forces and lengths (force_and_length_lists.cpp).

/// "Memb. Len.".
void ShowMemberLengths(TrussWindow& window, const SessionState& session, Platform& platform);
void CloseMemberLengths(TrussWindow& window);

// Canvas (zoom_and_pan.cpp, canvas_hit.cpp); the report's commands stand in truss/report.h, those
// of its panels in truss/headings_and_fonts.h.

/// "Zoom" "+" and "-".
void EnlargeTruss(TrussWindow& window, const SessionState& session, Platform& platform);
void ReduceTruss(TrussWindow& window, const SessionState& session, Platform& platform);
/// The horizontal scroll bar.
void PanTruss(TrussWindow& window, const SessionState& session, Platform& platform, int barValue);
/// A mouse press on the canvas, in canvas units.
void HitTruss(TrussWindow& window, const SessionState& session, double x, double y);
/// True where a press would hit a member (for the pointer's shape).
bool IsOverMember(const TrussWindow& window, const SessionState& session, double x, double y);

}  // namespace lignara
