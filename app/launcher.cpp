#include "app/launcher.h"

#include <optional>

#include "app/data_directory.h"
#include "app/fault.h"
#include "app/number_reader.h"
#include "app/window_names.h"

namespace lignara {
namespace {

/// The span field as a whole number, ties to even; nothing where it does not fit, which is shown as
/// a fault.
std::optional<Int16> SpanCountOf(const LauncherWindow& window) {
  const Number count = RoundHalfEven(ReadNumber(window.spanText));
  Int16 stored;
  stored = count;
  if (!(stored == count)) return std::nullopt;
  return stored;
}

}  // namespace

void StartSession(SessionState& session, const std::string& currentDirectory) {
  session.DataDirectory = MakeDataDirectory(currentDirectory);
  session.Member = MemberSelection();
  session.ReportFont.Name = "Times New Roman";
  session.ReportFont.Size = 10;
}

void StartTruss(const std::string& trussType, SessionState& session, Platform& platform) {
  platform.CloseWindow(window_name::kTruss);
  // An input window still open belongs to the type pressed before.
  platform.CloseWindow(window_name::kTrussInput);
  session.TrussType = trussType;
  session.DesignMode = "TRUSS";
  platform.OpenWindow(window_name::kTrussInput);
}

void StartMultiSpanBeam(const LauncherWindow& window, SessionState& session, Platform& platform) {
  const FaultScope faults(platform);
  session.DesignMode = "BEAM";
  const std::optional<Int16> count = SpanCountOf(window);
  if (!count) return;
  session.SpanCount = *count;
  if (*count > 1) {
    platform.OpenWindow(window_name::kMultiSpan);
  } else {
    platform.ShowMessage({"You must enter at least 2 spans"});
  }
}

bool AcceptsSpanCount(const LauncherWindow& window) {
  const SilentFaults nobody;
  const std::optional<Int16> count = SpanCountOf(window);
  return count && *count > 1;
}

void StartSingleSpanBeam(SessionState& session, Platform& platform) {
  session.DesignMode = "BEAM";
  platform.OpenWindow(window_name::kBeam);
}

void ChooseDesignMode(const std::string& mode, SessionState& session, Platform& platform) {
  session.DesignMode = mode;
  platform.CloseWindow(window_name::kQuestion);
  platform.OpenWindow(window_name::kMemberSize);
}

void CloseAllWindows(Platform& platform) {
  for (const char* name : kExitOrder) platform.CloseWindow(name);
}

}  // namespace lignara
