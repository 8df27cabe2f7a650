#pragma once

#include "truss/active_model.h"
#include "truss/truss_window.h"

namespace lignara {

// End reactions by the lever rule: TOTAL_LOAD, NODE_RL, NODE_RR, lbs. Without a length each shows
// "TOTAL LENGTH (TL) IS 0!", fails the run and leaves all as it is.

/// PRATT1, ENGLISH: inner top nodes and the peak.
void REACTIONS(TrussJob& job);
/// FINK: top nodes at the heads of the webs, and the peak.
void REACTIONS_FINK(TrussJob& job);
/// KINGPOST: the peak alone.
void REACTIONS_KINGPOST(TrussJob& job);
/// SCI: a node in each rafter, and the peak.
void REACTIONS_SCI(TrussJob& job);
/// PRATT2, HOWE: all top nodes, those over the supports too.
void REACTIONS_FLAT(TrussJob& job);
/// WARREN: every second panel point from the end on. Nothing where WarrenChord is not set.
void REACTIONS_WARREN(TrussJob& job);

/// Fills the two fields under "End Reactions (lbs)". They keep the reactions of the run, for the
/// unit loads of the deflections overwrite those of the model.
void SHOW_REACTIONS(TrussWindow& window);

/// The end reactions of a run, lbs, upward.
struct TrussReactions {
  double left = 0, right = 0;
};
TrussReactions ReactionsOf(const ActiveModel& model);

}  // namespace lignara
