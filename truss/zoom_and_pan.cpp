#include "app/fault.h"
#include "truss/canvas.h"
#include "truss/truss_window.h"

namespace lignara {
namespace {

constexpr double kZoomStep = 0.1;
constexpr double kZoomLimit = 2.5;
constexpr int kBarStep = 600;

void Zoom(TrussWindow& window, const SessionState& session, Platform& platform, double step) {
  FaultScope faults(platform);
  TrussView& view = window.view;
  view.ZoomFactor = view.ZoomFactor + step * view.ZoomFactor;
  view.markedRow = -1;
  RedrawTruss(window, session, platform);
}

}  // namespace

void EnlargeTruss(TrussWindow& window, const SessionState& session, Platform& platform) {
  if (window.view.ZoomFactor < kZoomLimit) Zoom(window, session, platform, kZoomStep);
}

void ReduceTruss(TrussWindow& window, const SessionState& session, Platform& platform) {
  Zoom(window, session, platform, -kZoomStep);
}

void PanTruss(TrussWindow& window, const SessionState& session, Platform& platform, int barValue) {
  FaultScope faults(platform);
  window.view.panBar = barValue;
  window.view.CanvasOriginX = Number(barValue) * kBarStep;
  window.view.markedRow = -1;
  RedrawTruss(window, session, platform);
}

}  // namespace lignara
