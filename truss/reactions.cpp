#include "truss/reactions.h"

#include "app/number_pattern.h"

namespace lignara {
namespace {

/// The nodes of a half by their index.
struct LoadedNodes {
  int overSupport = -1;  ///< the node over the support, -1 where the heel bears no load
  int first = 1, last;   ///< the nodes between support and midspan
  bool midspan = true;   ///< PT stands on a node
};

bool HasLength(TrussJob& job) {
  const bool has = job.session.TrussLength > 0;
  if (!has) FailRun(job, "TOTAL LENGTH (TL) IS 0!", "ERROR!");
  return has;
}

/// Shares the loads between the supports; `distance` gives a node's distance from the nearer one.
template <typename Distance>
void ShareLoads(TrussJob& job, const LoadedNodes& nodes, Distance distance) {
  ActiveModel& m = job.model;
  const Number length = job.session.TrussLength;
  const bool overSupport = nodes.overSupport >= 0;
  const Number peak = nodes.midspan ? Number(m.PT) : Number(0);

  m.TOTAL_LOAD = overSupport ? m.PL[nodes.overSupport] + m.PR[nodes.overSupport] : Number(0);
  Float32 fromLeft;
  Float32 fromRight;
  for (int i = nodes.first; i <= nodes.last; ++i) {
    const Number share = (length - distance(i)) / length;
    m.TOTAL_LOAD += m.PL[i] + m.PR[i];
    fromLeft += share * m.PL[i];
    fromRight += (1 - share) * m.PR[i];
  }
  m.TOTAL_LOAD += peak;
  const Number atSupport = overSupport ? Number(m.PL[nodes.overSupport]) : Number(0);
  m.NODE_RL = fromLeft + peak / 2 + atSupport + fromRight;
  m.NODE_RR = m.TOTAL_LOAD - m.NODE_RL;
}

}  // namespace

void REACTIONS(TrussJob& job) {
  if (!HasLength(job)) return;
  ShareLoads(job, {.last = job.HalfSpans() - 1},
             [&](int i) { return i * job.session.PanelLength; });
}

void REACTIONS_FINK(TrussJob& job) {
  if (!HasLength(job)) return;
  const Number cosine = Cos(job.model.ANG_A);
  ShareLoads(job, {.last = job.HalfSpans() - 1},
             [&](int i) { return cosine * job.model.ARM_L[i]; });
}

void REACTIONS_KINGPOST(TrussJob& job) {
  if (!HasLength(job)) return;
  ActiveModel& m = job.model;
  m.TOTAL_LOAD = m.PT;
  m.NODE_RL = m.PT / 2;
  m.NODE_RR = m.PT / 2;
}

void REACTIONS_SCI(TrussJob& job) {
  if (!HasLength(job)) return;
  ShareLoads(job, {.last = 1}, [&](int) { return Number(job.model.ARM_D[1]); });
}

void REACTIONS_FLAT(TrussJob& job) {
  if (!HasLength(job)) return;
  ShareLoads(job, {.overSupport = 1, .first = 2, .last = job.HalfSpans()},
             [&](int i) { return (i - 1) * job.session.PanelLength; });
}

void REACTIONS_WARREN(TrussJob& job) {
  if (!HasLength(job)) return;
  const bool top = job.model.WarrenChord == "TOP";
  if (!top && job.model.WarrenChord != "BOTTOM") return;
  const int n = job.HalfSpans();
  const int last = top ? n / 2 - 1 : (n - 1) / 2;
  ShareLoads(job, {.overSupport = 0, .last = last, .midspan = top},
             [&](int i) { return 2 * i * job.session.PanelLength; });
}

void SHOW_REACTIONS(TrussWindow& window) {
  window.leftReaction = FormatNumber(window.model.NODE_RL, kTwoDecimals);
  window.rightReaction = FormatNumber(window.model.NODE_RR, kTwoDecimals);
}

TrussReactions ReactionsOf(const ActiveModel& model) {
  return {static_cast<double>(model.NODE_RL.value()), static_cast<double>(model.NODE_RR.value())};
}

}  // namespace lignara
