#include "app/number_pattern.h"
#include "multispan/diagrams.h"
#include "multispan/multi_span_statics.h"
#include "multispan/results_window.h"

namespace lignara {

void ShowDeflectedShape(MultiSpanResults& window, const SessionState& session, Platform& platform) {
  if (window.run == nullptr) return;
  const BusyPointer busy(platform);
  window.shape.shape = FindDeflectedShape(*window.run, session.unitSystem.value());
  window.shape.largest = FormatNumber(window.shape.shape.largest, "0.0000");
  window.shape.open = true;
  MoveShapeStation(window, 0);
  CheckShapeStatics(window, session);
}

void MoveShapeStation(MultiSpanResults& window, int station) {
  ShapePanel& panel = window.shape;
  if (window.run == nullptr || station < 0 || station > DeflectedShape::kStations) return;
  panel.station = station;
  panel.location = FormatNumber(panel.shape.PlaceOf(station), "0.000");
  panel.deflection = FormatNumber(panel.shape.deflection[station], "0.0000");
  panel.rotation = FormatNumber(panel.shape.rotation[station], "0.000000");
  panel.picture = DrawShapeDiagram(*window.run, panel.shape, panel.shape.PlaceOf(station));
}

void CloseDeflectedShape(MultiSpanResults& window) { window.shape.open = false; }

}  // namespace lignara
