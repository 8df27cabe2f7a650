#include "multispan/multi_span_window.h"

#include "app/fault.h"
#include "app/number_reader.h"
#include "app/window_names.h"
#include "multispan/beam_sketch.h"

namespace lignara {
namespace {

/// The data bases work for beams, whatever the last window worked for, and the unbraced length of
/// the span goes along.
void PrepareDataBase(const MultiSpanWindow& window, SessionState& session) {
  session.DesignMode = "BEAM";
  const Number unbraced = ReadNumber(window.Field(SpanField::Unbraced));
  if (unbraced > 0) session.Member.UnbracedLength = unbraced;
}

}  // namespace

void OpenMultiSpan(MultiSpanWindow& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  session.MultiSpan = MultiSpanModel();
  session.MultiSpan.spanCount = session.SpanCount;
  window = MultiSpanWindow();
  window.spanCount = std::to_string(session.SpanCount.value());
  ShowPointLoad(window, session);
  window.fields.fill("0.00");
  window.pointX = "0.00";
  window.pointLoad = "0";
  FillFromMember(window, session);
  ShowBeamSketch(window, session);
  RefreshSpanNote(window, session);
}

void ShowBeamSketch(MultiSpanWindow& window, const SessionState& session) {
  window.picture = DrawBeamSketch(session.MultiSpan, window.currentSpan.value());
}

void SetFarSupport(MultiSpanWindow& window, SessionState& session, FarEnd end, EndSupport support) {
  (end == FarEnd::Left ? session.MultiSpan.farLeftSupport : session.MultiSpan.farRightSupport) =
      support;
  ShowBeamSketch(window, session);
}

void OpenSpanMemberDataBase(const MultiSpanWindow& window, SessionState& session,
                            Platform& platform) {
  FaultScope faults(platform);
  PrepareDataBase(window, session);
  platform.OpenWindow(window_name::kMemberSize);
}

void OpenSpanGlulamDataBase(const MultiSpanWindow& window, SessionState& session,
                            Platform& platform) {
  FaultScope faults(platform);
  PrepareDataBase(window, session);
  platform.OpenWindow(window_name::kGlulam);
}

}  // namespace lignara
