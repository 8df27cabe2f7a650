#include <cstddef>
#include <optional>

#include "app/fault.h"
#include "app/list_rows.h"
#include "app/number_pattern.h"
#include "app/number_reader.h"
#include "app/number_that_fits.h"
#include "app/plain_number.h"
#include "truss/canvas.h"
#include "truss/top_nodes.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

std::vector<TopNode> RowNodes(const TrussWindow& window, const SessionState& session) {
  return TopNodesInRows(TopNodesOf(window.model, session));
}

/// The load that "Enter" sets for a row, by counting from the first node of a half. The blank row
/// and no row at all stand before the first element: a fault where there is no such element.
TopNode NodeOfRow(const TopNodeRange& range, int row) {
  const int peakRow = range.count() + 1;
  if (row < peakRow) return {NodeSide::Left, range.first + row - 1};
  if (range.peak && row == peakRow) return {NodeSide::Peak};
  return {NodeSide::Right, range.first + row - peakRow - (range.peak ? 1 : 0)};
}

/// Where "Enter" puts a load; nothing for a row that means nothing to the type.
std::optional<TopNode> EnterTarget(const TrussWindow& window, const SessionState& session) {
  const BlankRowLoad blankRow = TrussTypeOf(session.TrussType).blankRow;
  if (window.nodeRow < 1 && blankRow == BlankRowLoad::Nowhere) return std::nullopt;
  if (window.nodeRow < 1 && blankRow == BlankRowLoad::Peak) return TopNode{NodeSide::Peak};
  return NodeOfRow(TopNodesOf(window.model, session), window.nodeRow);
}

/// The elements that "All" fills.
TopNodeRange AllRange(const TrussWindow& window, const SessionState& session) {
  const TopNodeRule filled = TrussTypeOf(session.TrussType).filledByAll;
  if (filled == nullptr) return TopNodesOf(window.model, session);
  return filled(window.model, HalfSpans(session));
}

}  // namespace

void SHOW_NODE_LOADS(TrussWindow& window, const SessionState& session) {
  window.nodeRows = RowsBelowBlank();
  for (const TopNode& node : RowNodes(window, session)) {
    window.nodeRows.push_back(LoadLabel(node, session.TrussType) + " = " +
                              FormatNumber(NodeLoad(window.model, node), kTwoDecimals));
  }
}

void SelectNode(TrussWindow& window, const SessionState& session, Platform& platform, int row) {
  FaultScope faults(platform);
  window.nodeRow = row;
  window.view.markedRow = row;
  const std::vector<TopNode> nodes = RowNodes(window, session);
  if (row >= 1 && row <= static_cast<int>(nodes.size())) {
    const TopNode& node = nodes[static_cast<std::size_t>(row) - 1];
    window.nodeLoad = PlainNumber(NodeLoad(window.model, node));
  }
  RedrawTruss(window, session, platform);
}

void EnterNodeLoad(TrussWindow& window, const SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  const std::optional<Float32> load = NumberThatFits(ReadNumber(window.nodeLoad));
  const std::optional<TopNode> target = EnterTarget(window, session);
  if (load && target) NodeLoad(window.model, *target) = *load;
  SHOW_NODE_LOADS(window, session);
}

void EnterNodeLoadAndGoOn(TrussWindow& window, const SessionState& session, Platform& platform) {
  EnterNodeLoad(window, session, platform);
  const int next = window.nodeRow + 1;
  const bool onRow = window.nodeRow >= 0 && next < static_cast<int>(window.nodeRows.size());
  if (onRow) SelectNode(window, session, platform, next);
}

void EnterAllNodeLoads(TrussWindow& window, const SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  const std::optional<Float32> load = NumberThatFits(ReadNumber(window.nodeLoad));
  if (load) {
    for (const TopNode& node : TopNodesInRows(AllRange(window, session))) {
      NodeLoad(window.model, node) = *load;
    }
  }
  SHOW_NODE_LOADS(window, session);
}

}  // namespace lignara
