#pragma once

#include "multispan/results_window.h"

namespace lignara {

/// The headings within the list "Stress Check".
namespace stress_heading {
inline constexpr const char* kActual = "ACTUAL STRESSES";
inline constexpr const char* kAllowable = "ALLOWABLE STRESSES";
inline constexpr const char* kGlulamAllowable = "ALLOWABLE STRESS VALUES";
inline constexpr const char* kConditions = "MEMBER USE CONDITIONS";
inline constexpr const char* kAll[] = {kActual, kAllowable, kGlulamAllowable, kConditions};
}  // namespace stress_heading

/// Menu "Check Stress", "Wood member...". The adjusted bending allowable goes into the session.
void CheckWoodSpans(MultiSpanResults& window, SessionState& session, Platform& platform);
/// Menu "Check Stress", "Glu-Lam Members...".
void CheckGlulamSpans(MultiSpanResults& window, const SessionState& session, Platform& platform);
/// What a check made now would read of the spans of the model.
StressInputs StressInputsOf(const MultiSpanModel& model);

}  // namespace lignara
