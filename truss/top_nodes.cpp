#include "truss/top_nodes.h"

#include "app/row_number.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

void AddHalf(NodeSide side, const TopNodeRange& range, std::vector<TopNode>& nodes) {
  for (int i = range.first; i <= range.last; ++i) nodes.push_back({side, i});
}

void AddPeak(const TopNodeRange& range, std::vector<TopNode>& nodes) {
  if (range.peak) nodes.push_back({NodeSide::Peak});
}

std::string IndexText(int index, const std::string& trussType) {
  return TrussTypeOf(trussType).blankBeforeNodeNumber ? NumberText(index) : std::to_string(index);
}

template <typename Model>
auto& LoadIn(Model& model, const TopNode& node) {
  if (node.side == NodeSide::Peak) return model.PT;
  return node.side == NodeSide::Left ? model.PL[node.index] : model.PR[node.index];
}

}  // namespace

TopNodeRange PitchedNodes(const ActiveModel&, int half) { return {.last = half - 1}; }
TopNodeRange PeakNode(const ActiveModel&, int) { return {}; }
TopNodeRange FlatNodes(const ActiveModel&, int half) { return {.last = half}; }

TopNodeRange WarrenNodes(const ActiveModel& model, int half) {
  if (model.WarrenChord == "TOP") return {.first = 0, .last = half / 2 - 1};
  const int last = model.WarrenChord == "BOTTOM" ? half / 2 : -1;
  return {.first = 0, .last = last, .peak = false};
}

TopNodeRange WarrenElements(const ActiveModel& model, int half) {
  TopNodeRange range = WarrenNodes(model, half);
  if (range.peak) ++range.last;
  return range;
}

TopNodeRange TopNodesOf(const ActiveModel& model, const SessionState& session) {
  return TrussTypeOf(session.TrussType).topNodes(model, HalfSpans(session));
}

std::vector<TopNode> TopNodesInRows(const TopNodeRange& range) {
  std::vector<TopNode> nodes;
  AddHalf(NodeSide::Left, range, nodes);
  AddPeak(range, nodes);
  AddHalf(NodeSide::Right, range, nodes);
  return nodes;
}

std::vector<TopNode> TopNodesInReport(const TopNodeRange& range) {
  std::vector<TopNode> nodes;
  AddHalf(NodeSide::Left, range, nodes);
  AddHalf(NodeSide::Right, range, nodes);
  AddPeak(range, nodes);
  return nodes;
}

Float32& NodeLoad(ActiveModel& model, const TopNode& node) { return LoadIn(model, node); }
const Float32& NodeLoad(const ActiveModel& model, const TopNode& node) {
  return LoadIn(model, node);
}

const Float32& NodeDeflection(const ActiveModel& model, const TopNode& node) {
  if (node.side == NodeSide::Peak) return model.DeflT[1];
  return node.side == NodeSide::Left ? model.DeflL[node.index] : model.DeflR[node.index];
}

std::string LoadLabel(const TopNode& node, const std::string& trussType) {
  if (node.side == NodeSide::Peak) return "PT";
  return (node.side == NodeSide::Left ? "PL" : "PR") + IndexText(node.index, trussType);
}

std::string NodeLabel(const TopNode& node, const std::string& trussType) {
  if (node.side == NodeSide::Peak) return "TN";
  return (node.side == NodeSide::Left ? "LN" : "RN") + IndexText(node.index, trussType);
}

}  // namespace lignara
