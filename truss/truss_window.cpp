#include "truss/truss_window.h"

#include "app/fault.h"
#include "app/window_names.h"
#include "truss/canvas.h"
#include "truss/headings_and_fonts.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

/// A king post truss has a panel on each side of its post, though its arrays are made for four.
void SetPanelLength(SessionState& session) {
  const bool two = TrussTypeOf(session.TrussType).onePanelAHalf;
  session.PanelLength = session.TrussLength / (two ? Number(2) : Number(session.TrussSpans));
}

}  // namespace

void OpenTruss(TrussWindow& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  window = TrussWindow();
  window.title = TrussTypeOf(session.TrussType).title;
  SetPanelLength(session);
  const int half = HalfSpans(session);
  window.model.PL.Allocate(half);
  window.model.PR.Allocate(half);
  ShowReportChoices(window, session);
  ResetView(window.view, session);
  RedrawTruss(window, session, platform);
  SHOW_NODE_LOADS(window, session);
}

void OpenWoodType(SessionState& session, Platform& platform) {
  session.DesignMode = "TRUSS";
  platform.OpenWindow(window_name::kMemberSize);
}

void OpenDeflections(TrussWindow& window) { window.deflectionsOpen = true; }
void CloseDeflections(TrussWindow& window) { window.deflectionsOpen = false; }

void OpenStresses(TrussWindow& window) { window.stressOpen = true; }
void CloseStresses(TrussWindow& window) { window.stressOpen = false; }

}  // namespace lignara
