#include "app/fault.h"
#include "app/field_number.h"
#include "app/number_text.h"
#include "truss/top_nodes.h"
#include "truss/truss_window.h"

namespace lignara {
namespace {

/// What the tributary rules read and write.
struct Spread {
  ActiveModel& model;
  const SessionState& session;
  Float32 w;     ///< line load, lb/ft
  int half;      ///< panels in a half
  Float32 P;     ///< load of one node, lbs
  Float32 Half;  ///< half of the length, ft, or of the load, lbs

  void SetPair(int index, const Number& load) {
    model.PL[index] = load;
    model.PR[index] = load;
  }
};

/// The end nodes carry half a panel each.
void SpreadFlat(Spread& s) {
  s.P = s.w * s.session.TrussLength / s.session.TrussSpans;
  s.SetPair(1, s.P / 2);
  for (int i = 2; i <= s.half; ++i) s.SetPair(i, s.P);
  s.model.PT = s.P;
}

/// Top nodes stand two panels apart; the end nodes carry half of that.
void SpreadWarren(Spread& s) {
  s.P = s.w * s.session.TrussLength / (s.session.TrussSpans / 2);
  s.SetPair(0, s.P / 2);
  for (int i = 1; i <= s.half / 2; ++i) s.SetPair(i, s.P);
  if (s.model.WarrenChord == "TOP") s.model.PT = s.P;
}

/// Each node takes its part of the top chord; the peak takes what is left of the total.
void SpreadFink(Spread& s) {
  const Number L = s.session.PanelLength;
  const Number web = Sin(s.model.ANG_A) * L * Sin(s.model.ANG_W);
  Float32Array TribLen(s.half + 1);
  s.Half = s.w * s.session.TrussLength / 2;
  Float32 S;
  for (int i = 1; i < s.half; ++i) {
    TribLen[i] = L - web * i + web * (i - 1);
    s.P = s.w * TribLen[i];
    S += s.P;
    s.SetPair(i, s.P);
  }
  s.model.PT = (s.Half - S) + (s.Half - S);
}

/// The distance of the node from the heel stands for its tributary length.
void SpreadScissors(Spread& s) {
  s.SetPair(1, s.w * s.model.SCI_RUN);
  s.Half = s.session.TrussLength / 2;
  s.model.PT = (s.Half - s.model.SCI_RUN) * s.w + (s.Half - s.model.SCI_RUN) * s.w;
}

/// The half panel at each heel stays unloaded and the peak takes two panels.
void SpreadPitched(Spread& s) {
  s.P = s.w * (s.session.TrussLength / 2) / (s.session.TrussSpans / 2);
  for (int i = 1; i < s.half; ++i) s.SetPair(i, s.P);
  s.model.PT = s.P + s.P;
}

/// As on any pitched truss, but the one node at the peak takes the whole load of the truss.
void SpreadKingPost(Spread& s) {
  SpreadPitched(s);
  s.model.PT = 4 * s.P;
}

struct SpreadRule {
  const char* trussType;
  void (*spread)(Spread&);
};

constexpr SpreadRule kRules[] = {
    {"PRATT1", SpreadPitched},    {"FINK", SpreadFink},     {"ENGLISH", SpreadPitched},
    {"KINGPOST", SpreadKingPost}, {"SCI", SpreadScissors},  {"HOWE", SpreadFlat},
    {"PRATT2", SpreadFlat},       {"WARREN", SpreadWarren},
};

/// The loads of all nodes from the line load `w`, lb/ft. The panel stays where the load is refused.
void Apply(TrussWindow& window, SessionState& session, Platform& platform, const Number& w) {
  if (!(session.TrussSpans > 0.0)) {
    platform.ShowMessage({"BN=0,ERROR"});
    return;
  }
  const std::optional<Float32> line = FieldNumber(w);
  if (!line) return;
  session.LineLoad = *line;
  Spread spread{window.model, session, *line, HalfSpans(session)};
  for (const SpreadRule& rule : kRules) {
    if (session.TrussType == rule.trussType) rule.spread(spread);
  }
  SHOW_NODE_LOADS(window, session);
  CancelDistributedLoad(window);
}

}  // namespace

void OpenLineLoad(TrussWindow& window) {
  window.lineLoadOpen = true;
  window.areaLoadOpen = false;
}

void OpenAreaLoad(TrussWindow& window) {
  window.areaLoadOpen = true;
  window.lineLoadOpen = false;
}

void CancelDistributedLoad(TrussWindow& window) {
  window.lineLoadOpen = false;
  window.areaLoadOpen = false;
}

void ApplyLineLoad(TrussWindow& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  Apply(window, session, platform, ReadNumber(window.lineLoad));
}

void ApplyAreaLoad(TrussWindow& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  Apply(window, session, platform, ReadNumber(window.trussSpacing) * ReadNumber(window.areaLoad));
}

}  // namespace lignara
