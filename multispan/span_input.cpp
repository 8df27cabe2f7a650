#include "app/fault.h"
#include "app/number_reader.h"
#include "app/plain_number.h"
#include "multispan/multi_span_window.h"

namespace lignara {
namespace {

/// The stored value of a field as a user would type it.
std::string StoredText(const MultiSpanModel& model, const SpanFieldInfo& field, int span) {
  return field.list == nullptr ? PlainNumber(model.spanUniform[span])
                               : PlainNumber((model.*field.list)[span]);
}

/// What the text of a field would be stored as, in the same form.
std::string TypedText(const std::string& text, const SpanFieldInfo& field) {
  const Number typed = ReadNumber(text);
  return field.list == nullptr ? PlainNumber(Float64(typed)) : PlainNumber(Float32(typed));
}

void StoreFields(const MultiSpanWindow& window, MultiSpanModel& model, int span) {
  for (std::size_t i = 0; i < kSpanFields.size(); ++i) {
    const Number typed = ReadNumber(window.fields[i]);
    if (kSpanFields[i].list == nullptr) {
      model.spanUniform[span] = typed;
    } else {
      (model.*kSpanFields[i].list)[span] = typed;
    }
  }
  model.spanMember[static_cast<std::size_t>(span)] = window.member;
  model.spanType[static_cast<std::size_t>(span)] = window.type;
}

void ShowStoredSpan(MultiSpanWindow& window, const MultiSpanModel& model) {
  const int span = window.currentSpan.value();
  for (std::size_t i = 0; i < kSpanFields.size(); ++i) {
    window.fields[i] = StoredText(model, kSpanFields[i], span);
  }
  window.member = model.spanMember[static_cast<std::size_t>(span)];
  window.type = model.spanType[static_cast<std::size_t>(span)];
  window.weakAxis = model.spanAxis[span] == 1;
}

void ShowSpan(MultiSpanWindow& window, SessionState& session) {
  window.currentLoad = 1;
  if (HasMultiSpan(window.currentSpan.value())) ShowStoredSpan(window, session.MultiSpan);
  ShowPointLoad(window, session);
  ShowBeamSketch(window, session);
  RefreshSpanNote(window, session);
}

bool ShowsWhatIsStored(const MultiSpanWindow& window, const MultiSpanModel& model) {
  const int span = window.currentSpan.value();
  for (std::size_t i = 0; i < kSpanFields.size(); ++i) {
    const std::string stored = StoredText(model, kSpanFields[i], span);
    if (TypedText(window.fields[i], kSpanFields[i]) != stored) return false;
  }
  return window.member == model.spanMember[static_cast<std::size_t>(span)] &&
         window.type == model.spanType[static_cast<std::size_t>(span)] &&
         window.weakAxis == (model.spanAxis[span] == 1);
}

/// The first point load that lies behind the end of its span, which was made shorter after the load
/// was entered; 0 where there is none.
int LoadOffSpan(const MultiSpanModel& model, int span) {
  for (int k = 1; k <= model.pointCount[span].value(); ++k) {
    if (model.pointX[static_cast<std::size_t>(span)][k] > model.spanLength[span]) return k;
  }
  return 0;
}

/// Copies what a list holds for one span to the next.
template <typename T>
void CopyToNext(BoundedArray<T>& list, int span) {
  list[span + 1] = list[span];
}
template <typename T>
void CopyToNext(MultiSpanModel::BySpan<T>& list, int span) {
  const auto from = static_cast<std::size_t>(span);
  list[from + 1] = list[from];
}

}  // namespace

void UpdateSpan(MultiSpanWindow& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  MultiSpanModel& model = session.MultiSpan;
  const int span = window.currentSpan.value();
  if (!HasMultiSpan(span)) return;
  StoreFields(window, model, span);
  if (model.spanI[span] > 0 && model.spanE[span] > 0 && model.spanLength[span] > 0) {
    model.spanAxis[span] = window.weakAxis ? 1 : 0;
    if (session.Member.MemberSource.value() == MemberSelection::kGlulamSource) {
      model.spanGlulam[static_cast<std::size_t>(span)] = session.Glulam;
    }
    window.spanAccepted = true;
    ShowBeamSketch(window, session);
  } else {
    platform.ShowMessage({"I,E OR L IS MISSING"});
  }
  RefreshSpanNote(window, session);
}

void ShowPreviousSpan(MultiSpanWindow& window, SessionState& session) {
  if (window.currentSpan > 1) window.currentSpan -= 1;
  ShowSpan(window, session);
}

void ShowNextSpan(MultiSpanWindow& window, SessionState& session) {
  if (window.currentSpan < session.MultiSpan.spanCount) window.currentSpan += 1;
  ShowSpan(window, session);
}

void LoadSameSpan(MultiSpanWindow& window, SessionState& session) {
  MultiSpanModel& model = session.MultiSpan;
  const int before = window.currentSpan.value() - 1;
  if (before < 1 || !HasMultiSpan(before + 1)) return;
  for (const SpanFieldInfo& field : kSpanFields) {
    if (field.list != nullptr) CopyToNext(model.*field.list, before);
  }
  CopyToNext(model.spanUniform, before);
  CopyToNext(model.spanAxis, before);
  CopyToNext(model.spanMember, before);
  CopyToNext(model.spanType, before);
  CopyToNext(model.spanGlulam, before);
  ShowStoredSpan(window, model);
  ShowBeamSketch(window, session);
  RefreshSpanNote(window, session);
}

void RefreshSpanNote(MultiSpanWindow& window, const SessionState& session) {
  const SilentFaults silent;
  window.note.clear();
  if (!HasMultiSpan(window.currentSpan.value())) {
    window.note = "Only " + std::to_string(kMultiSpanLimit) + " spans can be stored";
  } else if (!ShowsWhatIsStored(window, session.MultiSpan)) {
    window.note = "Not stored yet";
  } else if (const int load = LoadOffSpan(session.MultiSpan, window.currentSpan.value())) {
    window.note = "Load " + std::to_string(load) + " is off the span";
  }
}

}  // namespace lignara
