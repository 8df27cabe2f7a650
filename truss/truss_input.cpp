#include "truss/truss_input.h"

#include <vector>

#include "app/fault.h"
#include "app/number_pattern.h"
#include "app/number_reader.h"
#include "app/window_names.h"
#include "truss/sketches.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

constexpr const char* kErrorTitle = "ERROR!";

/// The dimensions as the fields hold them. Numbers too large to be kept count as 0.
struct Dimensions {
  Float32 first;   ///< spans, or H1 in ft
  Float32 length;  ///< ft
  Float32 height;  ///< ft
};

/// One field that has to hold more than `least`, and what to say where it does not.
struct Check {
  const Float32& value;
  double least;
  Message message;
};

Message Refusal(const std::string& text) { return {text, kErrorTitle, MessageIcon::Stop}; }

/// The checks of a type, in the order in which the user is told.
std::vector<Check> ChecksOf(const std::string& trussType, const Dimensions& d) {
  const TrussTypeInfo& type = TrussTypeOf(trussType);
  std::vector<Check> checks;
  if (type.HasInnerHeight()) {
    checks.push_back({d.first, 0.0, {"You need to enter a value for H1"}});
  }
  if (type.CountsPanels()) {
    checks.push_back({d.first, 3.0, Refusal("You must enter at least 4 spans ")});
  }
  checks.push_back({d.length, 0.0, Refusal("You must enter a total length.")});
  checks.push_back({d.height, 0.0, Refusal("You must enter a height (H)")});
  return checks;
}

bool Accepted(const std::vector<Check>& checks, Platform& platform) {
  for (const Check& check : checks) {
    if (check.value > check.least) continue;
    platform.ShowMessage(check.message);
    return false;
  }
  return true;
}

void StoreDimensions(const Dimensions& d, SessionState& session) {
  const TrussTypeInfo& type = TrussTypeOf(session.TrussType);
  if (type.HasInnerHeight()) session.TrussInnerHeight = d.first;
  // Types of a fixed shape are kept in arrays for four panels.
  session.TrussSpans = type.CountsPanels() ? Number(d.first) : Number(4.0);
  session.TrussLength = d.length;
  session.TrussHeight = d.height;
}

bool IsEven(const Float32& spans) {
  const Number half = Number(spans) / 2;
  return Floor(half) == half;
}

}  // namespace

TrussInputWindow OpenTrussInput(const SessionState& session) {
  TrussInputWindow window;
  const TrussTypeInfo& type = TrussTypeOf(session.TrussType);
  window.firstCaption = type.HasInnerHeight() ? "H1 (ft)" : "Number of Spans";
  if (type.firstField == FirstField::Nothing) {
    window.first = "   2";
    window.firstEnabled = false;
  }
  window.exampleCaption = type.exampleCaption;
  window.sketch = ExampleSketch(session.TrussType);
  window.slopeSketch = SlopeSketch();
  return window;
}

void AcceptTrussInput(TrussInputWindow& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  Dimensions d;
  d.first = ReadNumber(window.first);
  d.length = ReadNumber(window.totalLength);
  d.height = ReadNumber(window.height);
  if (!Accepted(ChecksOf(session.TrussType, d), platform)) return;
  StoreDimensions(d, session);
  if (!IsEven(session.TrussSpans)) {
    platform.ShowMessage(Refusal("Number of spans must be an even number!"));
    session.TrussSpans = 0;
    session.TrussLength = 0;
    session.TrussHeight = 0;
    return;
  }
  platform.CloseWindow(window_name::kTrussInput);
  platform.OpenWindow(window_name::kTruss);
}

void CancelTrussInput(SessionState& session, Platform& platform) {
  session.TrussType = "";
  platform.CloseWindow(window_name::kTrussInput);
}

void OpenSlopeCalculator(TrussInputWindow& window, Platform& platform) {
  FaultScope faults(platform);
  const Float32 length = ReadNumber(window.totalLength);
  if (!(length > 0.0)) {
    platform.ShowMessage({"ENTER A TOTAL LENGTH VALUE!"});
    return;
  }
  window.slopeLength = length;
  window.slopeOpen = true;
  window.okEnabled = false;
}

void AcceptSlope(TrussInputWindow& window, Platform& platform) {
  FaultScope faults(platform);
  const Float32 rise = ReadNumber(window.rise);
  const Float32 run = ReadNumber(window.run);
  if (!(rise > 0.0) || !(run > 0.0)) {
    platform.ShowMessage({"YOU NEED TO ENTER BOTH RISE AND RUN!"});
    return;
  }
  Float32 height = -1.0;
  height = (rise / run) * (window.slopeLength / 2);
  // Where the slope is too steep for a number the box has told so, and the height typed stays.
  if (height >= 0.0) window.height = FormatNumber(height, "0.0");
  window.okEnabled = true;
}

void CancelSlope(TrussInputWindow& window) {
  window.slopeOpen = false;
  window.okEnabled = true;
}

}  // namespace lignara
