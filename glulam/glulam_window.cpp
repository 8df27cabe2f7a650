#include "glulam/glulam_window.h"

#include "app/fault.h"
#include "app/window_names.h"
#include "glulam/user_factors.h"

namespace lignara {

void OpenGlulamWindow(GlulamWindow& window, const SessionState& session, Platform& platform) {
  window = GlulamWindow();
  ShowDefaultFactors(window, session, platform);
  ReturnToGlulam(window, session, platform);
}

void ExitGlulam(Platform& platform) { platform.CloseWindow(window_name::kGlulam); }

void ChooseCombination(GlulamWindow& window, const SessionState& session, Platform& platform,
                       int row) {
  if (!window.combinations.Has(row)) return;
  window.combinations.row = row;
  RecomputeAllowables(window, session, platform);
}

void ChooseMoisture(GlulamWindow& window, const SessionState& session, Platform& platform,
                    bool dryUse) {
  window.dryUse = dryUse;
  RecomputeAllowables(window, session, platform);
}

void ChooseDuration(GlulamWindow& window, const SessionState& session, Platform& platform,
                    int duration) {
  window.duration = duration;
  RecomputeAllowables(window, session, platform);
}

void ChooseLoadType(GlulamWindow& window, int loadType) { window.loadType = loadType; }

void EmptySize(GlulamWindow& window, const SessionState& session, Platform& platform,
               std::string GlulamWindow::*size) {
  (window.*size).clear();
  RecomputeAllowables(window, session, platform);
}

}  // namespace lignara
