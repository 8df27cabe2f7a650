#pragma once

#include <optional>
#include <string>

#include "beam/beam_window.h"

namespace lignara {

enum class Diagram { Shear, Moment, Deflection };

/// A diagram of the last run as paper shows it: base line, curve, and the peak with its value.
/// Nothing before the first run.
Drawing DiagramOnPaper(const BeamWindow& window, Diagram diagram);

/// The value of largest magnitude, as shown, and the first place of it, ft.
struct DiagramPeak {
  std::string value, location;
};
/// The peak of a diagram of the last run; none before the first.
std::optional<DiagramPeak> PeakOfDiagram(const BeamWindow& window, Diagram diagram);

/// Draws shear, moment and deflected shape of the last run, fills the rotations, and enables "View
/// Diag.". The read-outs follow.
void ShowDiagrams(BeamWindow& window, const SessionState& session);
/// "View Diag.": draws again and opens the panel at station 0.
void OpenDiagrams(BeamWindow& window, const SessionState& session);
/// "Close" of the panel.
void CloseDiagrams(BeamWindow& window);
/// The scroll bar "Station". A station beyond the last run's shows nothing.
void MoveToStation(BeamWindow& window, int station);
/// A press or a drag on a diagram, at its own x.
void PressDiagram(BeamWindow& window, double x);
/// The scroll bar takes the accuracy as its maximum.
void FollowAccuracy(BeamWindow& window);

}  // namespace lignara
