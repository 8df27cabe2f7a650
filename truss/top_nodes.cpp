#include "truss/top_nodes.h"

#include "app/number_text.h"

namespace lignara {
namespace {

void AddHalf(NodeSide side, const TopNodeRange& range, std::vector<TopNode>& nodes) {
  for (int i = range.first; i <= range.last; ++i) nodes.push_back({side, i});
}

void AddPeak(const TopNodeRange& range, std::vector<TopNode>& nodes) {
  if (range.peak) nodes.push_back({NodeSide::Peak});
}

/// A scissors truss has one node a half and needs no blank before its number.
std::string IndexText(int index, const std::string& trussType) {
  return trussType == "SCI" ? std::to_string(index) : NumberText(index);
}

template <typename Model>
auto& LoadIn(Model& model, const TopNode& node) {
  if (node.side == NodeSide::Peak) return model.PT;
  return node.side == NodeSide::Left ? model.PL[node.index] : model.PR[node.index];
}

}  // namespace

TopNodeRange TopNodesOf(const ActiveModel& model, const SessionState& session) {
  const std::string& type = session.TrussType;
  if (type == "KINGPOST") return {1, 0, true};
  const int half = HalfSpans(session);
  if (type == "WARREN") {
    if (model.WarrenChord == "TOP") return {0, half / 2 - 1, true};
    return {0, model.WarrenChord == "BOTTOM" ? half / 2 : -1, false};
  }
  const bool flat = type == "PRATT2" || type == "HOWE";
  return {1, flat ? half : half - 1, true};
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
