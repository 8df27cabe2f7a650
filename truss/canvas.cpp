#include "truss/canvas.h"

#include "app/fault.h"
#include "truss/canvas_shapes.h"
#include "truss/force_sense.h"
#include "truss/geometry_drawn.h"
#include "truss/truss_picture.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

/// Nine tenths of the canvas's width and seven tenths of its height hold the truss at zoom 1.
void SetScales(TrussView& view, const SessionState& session) {
  const Number width = kCanvasWidth - 0.1 * kCanvasWidth;
  const Number height = kCanvasHeight - 0.3 * kCanvasHeight;
  view.PixelsPerFootX = width / session.TrussLength * view.ZoomFactor;
  view.PixelsPerFootY = height / session.TrussHeight * view.ZoomFactor;
}

Colour MemberColour(const TrussWindow& window, const Member& member) {
  if (!window.view.resultsShown) return Colour::Black;
  return SenseOf(AxialOf(window.model, member.family)[member.index]).colour;
}

void DrawArrow(const TrussWindow& window, const SessionState& session, const TrussShape& shape,
               CanvasPainter& painter) {
  const int row = window.view.markedRow;
  if (row < 1) return;
  const auto nodes = TopNodesInRows(TopNodesOf(window.model, session));
  if (row > static_cast<int>(nodes.size())) return;
  painter.DrawArrow(TopNodePoint(shape, nodes[static_cast<std::size_t>(row - 1)]));
}

void Draw(TrussWindow& window, const SessionState& session, Platform& platform) {
  TrussJob job{window.model, session, platform};
  SetDrawnGeometry(job);
  SetScales(window.view, session);
  const TrussShape shape = ShapeOf(window.model, session);
  CanvasPainter painter(window.view);
  painter.DrawMembers(LayoutOf(shape),
                      [&](const Member& member) { return MemberColour(window, member); });
  DrawArrow(window, session, shape, painter);
  window.view.MemberMark = painter.TakeMarks();
  window.view.drawing = painter.TakeDrawing();
}

}  // namespace

void ResetView(TrussView& view, const SessionState& session) {
  view.ZoomFactor = 1.0;
  view.panBar = 0;
  view.markedRow = -1;
  SetScales(view, session);
  view.CanvasOriginX = view.PixelsPerFootX;
  view.CanvasOriginY = kCanvasHeight - view.PixelsPerFootY * 0.2 * session.TrussHeight;
}

void RedrawTruss(TrussWindow& window, const SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  Draw(window, session, platform);
}

void RecolourTruss(TrussWindow& window, const SessionState& session, Platform& platform) {
  SilentFaults faults;
  Draw(window, session, platform);
}

Drawing PageDrawing(const TrussWindow& window, const SessionState& session) {
  const TrussShape shape = ShapeOf(window.model, session);
  CanvasPainter painter(window.view);
  const TrussTypeInfo& type = TrussTypeOf(shape.type);
  painter.centreName = type.centreNameOnPaper;
  painter.DrawMembers(LayoutOf(shape), [](const Member&) { return Colour::Black; });
  for (const TopNode& node : TopNodesInRows(TopNodesOf(window.model, session))) {
    painter.DrawNodeName(TopNodePoint(shape, node), node.side, type.levelTop,
                         NodeLabel(node, shape.type));
  }
  Drawing drawing = painter.TakeDrawing();
  drawing.scene = PageScene(window, session);
  return drawing;
}

}  // namespace lignara
