#pragma once

#include <string>
#include <vector>

#include "truss/active_model.h"

namespace lignara {

enum class NodeSide { Left, Right, Peak };

/// A node of the top chord that can be loaded: element `index` of `PL` or `PR`, or `PT`.
struct TopNode {
  NodeSide side;
  int index = 0;
};

/// The elements of `PL` and `PR` that are nodes, and whether `PT` is one.
struct TopNodeRange {
  int first = 1;
  int last = 0;
  bool peak = true;

  int count() const { return last - first + 1; }
};

// The nodes of the types, by the number of panels in a half.

/// One on each inner panel point, and the peak.
TopNodeRange PitchedNodes(const ActiveModel& model, int halfSpans);
/// The peak alone.
TopNodeRange PeakNode(const ActiveModel& model, int halfSpans);
/// One on each panel point, counted from 1 over the support, and the one at midspan.
TopNodeRange FlatNodes(const ActiveModel& model, int halfSpans);
/// One on every second panel point, counted from 0 over the support; the one at midspan is on the
/// top chord or not, as `WarrenChord` says.
TopNodeRange WarrenNodes(const ActiveModel& model, int halfSpans);
/// The same, and before a midspan node on top the element that no node has.
TopNodeRange WarrenElements(const ActiveModel& model, int halfSpans);

/// The nodes of the session's truss.
TopNodeRange TopNodesOf(const ActiveModel& model, const SessionState& session);

/// The nodes in the order of the node list: left half, peak, right half.
std::vector<TopNode> TopNodesInRows(const TopNodeRange& range);
/// The nodes in the order of the report: left half, right half, peak.
std::vector<TopNode> TopNodesInReport(const TopNodeRange& range);

/// The load on a node, lbs.
Float32& NodeLoad(ActiveModel& model, const TopNode& node);
const Float32& NodeLoad(const ActiveModel& model, const TopNode& node);

/// The deflection of a node, in.
const Float32& NodeDeflection(const ActiveModel& model, const TopNode& node);

/// "PL 1", "PT": the name of a node's load. A type with one node a half writes "PL1".
std::string LoadLabel(const TopNode& node, const std::string& trussType);
/// "LN 1", "TN": the name of a node in the report. A type with one node a half writes "LN1".
std::string NodeLabel(const TopNode& node, const std::string& trussType);

}  // namespace lignara
