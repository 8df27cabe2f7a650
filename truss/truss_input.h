#pragma once

#include <string>

#include "app/drawing.h"
#include "app/platform.h"
#include "app/session_state.h"

namespace lignara {

/// The input of a truss's dimensions: all that the window holds and shows.
struct TrussInputWindow {
  std::string firstCaption;  ///< "Number of Spans" or "H1 (ft)"
  std::string first;         ///< spans, or H1 in ft
  bool firstEnabled = true;
  std::string totalLength;  ///< "Total Length (ft)"
  std::string height;       ///< "H (ft)"
  bool okEnabled = true;
  std::string exampleCaption;  ///< such as "Example:(6 Span Pratt1)"
  Drawing sketch;              ///< an example of the type

  bool slopeOpen = false;  ///< panel "Slope Calculator"
  std::string rise;
  std::string run;
  Float32 slopeLength;  ///< total length when the panel opened, ft
  Drawing slopeSketch;  ///< the right triangle, labelled "Rise" and "Run"
};

/// The window as it opens for the session's truss type.
TrussInputWindow OpenTrussInput(const SessionState& session);

/// "OK": checks in order, stores the dimensions, opens the truss.
void AcceptTrussInput(TrussInputWindow& window, SessionState& session, Platform& platform);
/// "Cancel".
void CancelTrussInput(SessionState& session, Platform& platform);

/// "Slope Calculator": opens the panel once there is a total length.
void OpenSlopeCalculator(TrussInputWindow& window, Platform& platform);
/// "OK" of the panel: writes the height; the panel stays.
void AcceptSlope(TrussInputWindow& window, Platform& platform);
/// "Cancel" of the panel.
void CancelSlope(TrussInputWindow& window);

}  // namespace lignara
