#pragma once

#include "app/multi_span_model.h"
#include "multispan/results_window.h"
#include "statics/beam.h"

namespace lignara {

/// The beam as statics takes it: all loads that were entered, those too that a run passes over.
ContinuousBeam StaticsBeamOf(const MultiSpanModel& model, int unitSystem);

/// Solves the beam of the run that the window is about to show, and holds the run against it.
void CheckMultiSpanStatics(MultiSpanResults& window, const SessionState& session);

/// Takes the largest deflection in, once the deflected shape is shown.
void CheckShapeStatics(MultiSpanResults& window, const SessionState& session);

}  // namespace lignara
