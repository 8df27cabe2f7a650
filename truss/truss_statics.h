#pragma once

#include <vector>

#include "statics/plane_truss.h"
#include "truss/reactions.h"
#include "truss/top_nodes.h"
#include "truss/truss_window.h"

namespace lignara {

/// The truss of the window as statics takes it: joints where the drawn members end, the loads of
/// the top nodes, the left end pinned, the right end on a roller. Feet and pounds.
struct DescribedTruss {
  PinTruss truss;
  std::vector<Member> members;    ///< of the bars
  std::vector<TopNode> topNodes;  ///< in the order of the node list
  std::vector<int> topJoints;     ///< of the top nodes
  int leftSupport = 0, rightSupport = 0;
  bool sized = false;  ///< all groups have area and modulus; else the bars' stiffness is 1
};

/// Describes the truss that the window draws. No joints where it draws none.
DescribedTruss DescribeForStatics(const TrussWindow& window, const SessionState& session);

/// Holds the results of a run against statics: reactions, the forces of all listed members, and
/// where sizes are chosen the deflections of the top nodes. Called at the end of a run; the
/// reactions are those from before its unit loads.
void CheckTrussStatics(TrussWindow& window, const SessionState& session,
                       const TrussReactions& reactions);

}  // namespace lignara
