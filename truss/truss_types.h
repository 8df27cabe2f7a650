#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "truss/distributed_loads.h"
#include "truss/member_layout.h"
#include "truss/member_signs.h"
#include "truss/members.h"
#include "truss/stress_check.h"
#include "truss/top_nodes.h"

namespace lignara {

/// What the first field of the input window asks for.
enum class FirstField { Spans, InnerHeight, Nothing };

/// The truss that stands for its type on pictures, ft; it is 30 ft long.
struct ExampleSize {
  double height = 9;
  double innerHeight = 0;
};

/// Draws the members of a type.
using LayoutStep = TrussLayout (*)(const TrussShape& shape);
/// The place of a top node of the left half by its element in `PL`.
using TopNodePlace = FootPoint (*)(const TrussShape& shape, int element);
/// The top nodes of a type by the number of panels in a half.
using TopNodeRule = TopNodeRange (*)(const ActiveModel& model, int halfSpans);
/// One step of a calculation over a truss.
using TrussStep = void (*)(TrussJob& job);
/// Fills the list of deflections from the run that stands in the model.
using DeflectionStep = void (*)(TrussJob& job, std::vector<std::string>& rows);

/// Where "Enter" puts a load while the blank row of the node list, or none, is chosen: the element
/// before the first node (a fault where there is none), nowhere, or the peak.
enum class BlankRowLoad { ElementBefore, Nowhere, Peak };

/// All in which one truss type differs from the others.
struct TrussTypeInfo {
  std::string keyword;         ///< as in the session, such as "KINGPOST"
  std::string title;           ///< of its window, such as "KING POST TRUSS"
  std::string exampleCaption;  ///< under the sketch of the input window

  // Input and shape.
  FirstField firstField = FirstField::Spans;  ///< without spans the arrays are made for four
  bool onePanelAHalf = false;                 ///< whatever number of panels the arrays are made for
  bool diagonalsFall = false;                 ///< towards midspan, from the vertical behind
  bool levelTop = false;                      ///< the chords are parallel
  ExampleSize example;
  LayoutStep layout = nullptr;
  TopNodePlace topNodePlace = nullptr;

  // Loads.
  TopNodeRule topNodes = PitchedNodes;
  TopNodeRule filledByAll = nullptr;  ///< what "All" loads, where that is not the top nodes
  BlankRowLoad blankRow = BlankRowLoad::ElementBefore;
  bool blankBeforeNodeNumber = true;  ///< "PL 1", else "PL1"
  SpreadStep spread = nullptr;        ///< a line load to the top nodes

  // Analysis.
  TrussStep drawnGeometry = nullptr;     ///< what is worked out once, when the truss is drawn
  TrussStep chain = nullptr;             ///< from empty arrays to the magnitudes of the forces
  std::vector<SignRule> signs;           ///< of the members, whatever the loads
  DeflectionStep deflections = nullptr;  ///< of the top nodes

  // Results.
  std::vector<MemberRange> axialRows;         ///< rows of the axial and of the length list
  std::vector<MemberRange> checkedMembers;    ///< of the stress check, the hit test and the report
  std::vector<StressWording> stressWordings;  ///< where they differ from the common words
  std::string centreNameOnPaper = "CV";       ///< the centre vertical on the printed picture

  bool HasInnerHeight() const { return firstField == FirstField::InnerHeight; }
  bool CountsPanels() const { return firstField == FirstField::Spans; }
};

/// The eight types, in the order of the launcher's pictures.
const std::vector<TrussTypeInfo>& TrussTypes();

/// The type of this keyword. A keyword that is no type has an entry with nothing in it: no title,
/// no steps and no members.
const TrussTypeInfo& TrussTypeOf(std::string_view keyword);

}  // namespace lignara
