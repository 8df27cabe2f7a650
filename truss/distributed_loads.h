#pragma once

#include "truss/active_model.h"

namespace lignara {

/// What the tributary rules read and write.
struct LineLoadSpread {
  ActiveModel& model;
  const SessionState& session;
  Float32 w;     ///< line load, lb/ft
  int half;      ///< panels in a half
  Float32 P;     ///< load of one node, lbs
  Float32 Half;  ///< half of the length, ft, or of the load, lbs

  /// The node of this element in each half.
  void SetPair(int element, const Number& load);
};

/// Makes loads of the top nodes from a line load.
using SpreadStep = void (*)(LineLoadSpread& spread);

/// As on any truss with panels along the rafter: the half panel at each heel stays unloaded and the
/// peak takes two panels.
void SpreadPitched(LineLoadSpread& spread);
/// The same, but the one node at the peak takes the whole load of the truss.
void SpreadKingPost(LineLoadSpread& spread);
/// Each node takes its part of the top chord; the peak takes what is left of the total.
void SpreadFink(LineLoadSpread& spread);
/// The distance of the node from the heel stands for its tributary length.
void SpreadScissors(LineLoadSpread& spread);
/// The end nodes carry half a panel each.
void SpreadFlat(LineLoadSpread& spread);
/// Top nodes stand two panels apart; the end nodes carry half of that.
void SpreadWarren(LineLoadSpread& spread);

}  // namespace lignara
