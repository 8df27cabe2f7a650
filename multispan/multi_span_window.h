#pragma once

#include <array>
#include <string>

#include "app/drawing.h"
#include "app/platform.h"
#include "app/session_state.h"
#include "multispan/span_fields.h"

namespace lignara {

/// The window `MS`, "Multi Span Beams": the fields of one span and of one of its point loads. The
/// beam itself lies in the session.
struct MultiSpanWindow {
  std::array<std::string, kSpanFields.size()> fields;
  std::string member;     ///< "Member:"
  std::string type;       ///< "Type"
  bool weakAxis = false;  ///< "Weak Axis", else "Strong Axis"
  std::string pointX;     ///< "X(ft)"
  std::string pointLoad;  ///< "lbs"

  Int16 currentSpan = 1;
  Int16 currentLoad = 1;
  std::string spanNumber;  ///< "Span No."
  std::string loadNumber;  ///< "Load No."
  std::string loadCount;   ///< "# of Point Loads"
  std::string spanCount;   ///< "No. of Spans"

  /// A span has been stored whole since the window was opened: loads and axes can be entered.
  bool spanAccepted = false;
  /// Tells that the fields differ from what is stored for the span, or that a load of the span lies
  /// off it; else empty.
  std::string note;
  Drawing picture;

  std::string& Field(SpanField field) { return fields[static_cast<std::size_t>(field)]; }
  const std::string& Field(SpanField field) const {
    return fields[static_cast<std::size_t>(field)];
  }
};

enum class FarEnd { Left, Right };

// Life of the window (multi_span_window.cpp).

/// The window as it opens, with an empty model of the spans that the session asks for.
void OpenMultiSpan(MultiSpanWindow& window, SessionState& session, Platform& platform);
/// A click on a support of "Far Left Support" or "Far Right Support".
void SetFarSupport(MultiSpanWindow& window, SessionState& session, FarEnd end, EndSupport support);
/// Draws the beam anew.
void ShowBeamSketch(MultiSpanWindow& window, const SessionState& session);
/// Menu "Options": "Member Data Base..." and "Glu-Lam Data Base...".
void OpenSpanMemberDataBase(const MultiSpanWindow& window, SessionState& session,
                            Platform& platform);
void OpenSpanGlulamDataBase(const MultiSpanWindow& window, SessionState& session,
                            Platform& platform);

// Values of the current member (member_fields.cpp).

/// The current member goes into the fields of the span shown, over what stands there. Length, loads
/// and unbraced length stay.
void FillFromMember(MultiSpanWindow& window, const SessionState& session);
/// The user comes back from another window: the current member goes into the fields.
void ActivateMultiSpan(MultiSpanWindow& window, SessionState& session, Platform& platform);
/// "Strong Axis" and "Weak Axis": shows the member's values about the axis.
void ChooseSpanAxis(MultiSpanWindow& window, SessionState& session, Platform& platform, bool weak);
/// After the user changed the text of a field of the span.
void EditSpanField(MultiSpanWindow& window, SessionState& session, Platform& platform,
                   SpanField field);

// Spans (span_input.cpp).

/// "Update Span": stores the fields.
void UpdateSpan(MultiSpanWindow& window, SessionState& session, Platform& platform);
/// The arrows of the span. At the last one the number stays, and the fields show what is stored.
void ShowPreviousSpan(MultiSpanWindow& window, SessionState& session);
void ShowNextSpan(MultiSpanWindow& window, SessionState& session);
/// "Load Same ": takes all but the point loads from the span before.
void LoadSameSpan(MultiSpanWindow& window, SessionState& session);
/// Brings the note beside "Update Span" up to date.
void RefreshSpanNote(MultiSpanWindow& window, const SessionState& session);

// Point loads (point_loads.cpp).

/// "Update Load": checks and stores the load shown.
void UpdatePointLoad(MultiSpanWindow& window, SessionState& session, Platform& platform);
/// The arrows of the load. A new entry comes only behind one that holds a load.
void ShowPreviousLoad(MultiSpanWindow& window, SessionState& session);
void ShowNextLoad(MultiSpanWindow& window, SessionState& session);
/// Shows the entry of the current load, and the numbers.
void ShowPointLoad(MultiSpanWindow& window, const SessionState& session);

// Solving (run.cpp).

/// "Run": solves the beam and shows its results in a window of their own.
void RunMultiSpan(SessionState& session, Platform& platform);

}  // namespace lignara
