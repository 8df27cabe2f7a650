#include "truss/distributed_loads.h"

#include "app/fault.h"
#include "app/number_reader.h"
#include "app/number_that_fits.h"
#include "truss/truss_types.h"
#include "truss/truss_window.h"

namespace lignara {
namespace {

/// The loads of all nodes from the line load `w`, lb/ft. The panel stays where the load is refused.
void Apply(TrussWindow& window, SessionState& session, Platform& platform, const Number& w) {
  if (!(session.TrussSpans > 0.0)) {
    platform.ShowMessage({"BN=0,ERROR"});
    return;
  }
  const std::optional<Float32> line = NumberThatFits(w);
  if (!line) return;
  session.LineLoad = *line;
  LineLoadSpread spread{window.model, session, *line, HalfSpans(session)};
  const SpreadStep step = TrussTypeOf(session.TrussType).spread;
  if (step != nullptr) step(spread);
  SHOW_NODE_LOADS(window, session);
  CancelDistributedLoad(window);
}

}  // namespace

void LineLoadSpread::SetPair(int element, const Number& load) {
  model.PL[element] = load;
  model.PR[element] = load;
}

void SpreadFlat(LineLoadSpread& s) {
  s.P = s.w * s.session.TrussLength / s.session.TrussSpans;
  s.SetPair(1, s.P / 2);
  for (int i = 2; i <= s.half; ++i) s.SetPair(i, s.P);
  s.model.PT = s.P;
}

void SpreadWarren(LineLoadSpread& s) {
  s.P = s.w * s.session.TrussLength / (s.session.TrussSpans / 2);
  s.SetPair(0, s.P / 2);
  for (int i = 1; i <= s.half / 2; ++i) s.SetPair(i, s.P);
  if (s.model.WarrenChord == "TOP") s.model.PT = s.P;
}

void SpreadFink(LineLoadSpread& s) {
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

void SpreadScissors(LineLoadSpread& s) {
  s.SetPair(1, s.w * s.model.SCI_RUN);
  s.Half = s.session.TrussLength / 2;
  s.model.PT = (s.Half - s.model.SCI_RUN) * s.w + (s.Half - s.model.SCI_RUN) * s.w;
}

void SpreadPitched(LineLoadSpread& s) {
  s.P = s.w * (s.session.TrussLength / 2) / (s.session.TrussSpans / 2);
  for (int i = 1; i < s.half; ++i) s.SetPair(i, s.P);
  s.model.PT = s.P + s.P;
}

void SpreadKingPost(LineLoadSpread& s) {
  SpreadPitched(s);
  s.model.PT = 4 * s.P;
}

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
