#include "app/fault.h"
#include "app/number_reader.h"
#include "app/plain_number.h"
#include "multispan/results_window.h"

namespace lignara {
namespace {

constexpr const char* kTooLong =
    "Unbraced length is greater than total length of span. Total length will be used for unbraced "
    "length!";
constexpr const char* kNone =
    "Unbraced length is less than or equal to 0. Total length will be used for unbraced lenhth!";

}  // namespace

void ShowUnbracedLength(MultiSpanResults& window, const SessionState& session) {
  const int span = window.unbraced.currentSpan.value();
  window.unbraced.span = std::to_string(span);
  window.unbraced.length = PlainNumber(session.MultiSpan.spanUnbraced[span]);
}

void ShowPreviousUnbraced(MultiSpanResults& window, const SessionState& session) {
  if (window.unbraced.currentSpan > 1) window.unbraced.currentSpan -= 1;
  ShowUnbracedLength(window, session);
}

void ShowNextUnbraced(MultiSpanResults& window, const SessionState& session) {
  const int span = window.unbraced.currentSpan.value();
  const bool last = span >= session.MultiSpan.spanCount.value();
  if (!last && HasMultiSpan(span + 1)) window.unbraced.currentSpan += 1;
  ShowUnbracedLength(window, session);
}

void EnterUnbracedLength(MultiSpanResults& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  MultiSpanModel& model = session.MultiSpan;
  const int span = window.unbraced.currentSpan.value();
  Float32& unbraced = model.spanUnbraced[span];
  unbraced = ReadNumber(window.unbraced.length);
  const char* message = nullptr;
  if (unbraced > model.spanLength[span]) message = kTooLong;
  if (unbraced <= 0) message = kNone;
  if (message == nullptr) return;
  platform.ShowMessage({message});
  unbraced = model.spanLength[span];
  ShowUnbracedLength(window, session);
}

}  // namespace lignara
