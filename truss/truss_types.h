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

/// All in which one truss type differs from the others.
struct TrussTypeInfo {
  std::string keyword;         ///< as in the session, such as "KINGPOST"
  std::string title;           ///< of its window, such as "KING POST TRUSS"
  std::string exampleCaption;  ///< under the sketch of the input window

  std::vector<MemberRun> axialRows;       ///< rows of the axial and of the length list
  std::vector<MemberRun> checkedMembers;  ///< of the stress check, the hit test and the report
};

/// The eight types, in the order of the launcher's pictures.
const std::vector<TrussTypeInfo>& TrussTypes();

/// The type of this keyword. A keyword that is no type has an entry with nothing in it: no title,
/// no steps and no members.
const TrussTypeInfo& TrussTypeOf(std::string_view keyword);

}  // namespace lignara
