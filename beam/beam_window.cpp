#include "beam/beam_window.h"

#include "app/fault.h"
#include "app/number_pattern.h"
#include "app/window_names.h"
#include "beam/diagrams.h"
#include "beam/load_picture.h"
#include "beam/support_class.h"

namespace lignara {
namespace {

/// What the data bases start from.
void HandOverUnbracedLength(BeamWindow& window, SessionState& session) {
  window.beam.unbracedLength = UnbracedLength(window);
  session.Member.UnbracedLength = window.beam.unbracedLength;
}

}  // namespace

void OpenBeam(BeamWindow& window, SessionState& session, Platform& platform) {
  const FaultScope faults(platform);
  window = BeamWindow();
  window.beam.momentOfInertia = session.Member.SectionIx;
  window.beam.unbracedLength = window.beam.spanLength;
  window.length = FormatNumber(window.beam.spanLength, "0.00");
  FillFromMember(window, session);
  DrawLoadPicture(window, platform);
  FollowAccuracy(window);
}

void SetSupport(BeamWindow& window, SessionState& session, BeamEnd side, SupportType type) {
  (side == BeamEnd::Left ? window.beam.leftSupport : window.beam.rightSupport) = type;
  ClassifySupports(window.beam, session);
  ShowLoadPicture(window);
}

void VisitMemberDataBase(BeamWindow& window, SessionState& session, Platform& platform) {
  const FaultScope faults(platform);
  HandOverUnbracedLength(window, session);
  session.DesignMode = "BEAM";
  platform.OpenWindow(window_name::kMemberSize);
}

void VisitGlulamDataBase(BeamWindow& window, SessionState& session, Platform& platform) {
  const FaultScope faults(platform);
  HandOverUnbracedLength(window, session);
  platform.OpenWindow(window_name::kGlulam);
}

}  // namespace lignara
