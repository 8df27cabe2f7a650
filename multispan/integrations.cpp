#include "multispan/integrations.h"

#include "app/fault.h"
#include "app/number_reader.h"
#include "app/window_names.h"

namespace lignara {

void OpenIntegrations(Platform& platform) { platform.OpenWindow(window_name::kIntegrations); }

void ShowIntegrations(IntegrationsWindow& window, const SessionState& session) {
  window.integrations = std::to_string(session.MultiSpan.curveIntegrations.value());
}

void AcceptIntegrations(const IntegrationsWindow& window, SessionState& session,
                        Platform& platform) {
  FaultScope faults(platform);
  session.MultiSpan.curveIntegrations = ReadNumber(window.integrations);
  platform.CloseWindow(window_name::kIntegrations);
}

}  // namespace lignara
