#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "truss/members.h"

namespace lignara {

/// One step of a calculation over a truss.
using TrussStep = void (*)(TrussJob& job);

/// Members of one sign: -1 compression, 1 tension.
struct SignRule {
  MemberRun members;
  int sign;
};

/// Fills the list of deflections from the run that stands in the model.
using DeflectionStep = void (*)(TrussJob& job, std::vector<std::string>& rows);

/// The words around a member's actual stress.
struct StressWording {
  Family family = Family::TL;
  std::string before = "Actual Stress = ";
  std::string after = " psi";
};

/// All in which one truss type differs from the others.
struct TrussTypeInfo {
  std::string keyword;         ///< as in the session, such as "KINGPOST"
  std::string title;           ///< of its window, such as "KING POST TRUSS"
  std::string exampleCaption;  ///< under the sketch of the input window

  TrussStep drawnGeometry = nullptr;     ///< what is worked out once, when the truss is drawn
  TrussStep chain = nullptr;             ///< from empty arrays to the magnitudes of the forces
  std::vector<SignRule> signs;           ///< of the members, whatever the loads
  DeflectionStep deflections = nullptr;  ///< of the top nodes

  std::vector<MemberRun> axialRows;           ///< rows of the axial and of the length list
  std::vector<MemberRun> checkedMembers;      ///< of the stress check, the hit test and the report
  std::vector<StressWording> stressWordings;  ///< where they differ from the common words
};

/// The eight types, in the order of the launcher's pictures.
const std::vector<TrussTypeInfo>& TrussTypes();

/// The type of this keyword. A keyword that is no type has an entry with nothing in it: no title,
/// no steps and no members.
const TrussTypeInfo& TrussTypeOf(std::string_view keyword);

}  // namespace lignara
