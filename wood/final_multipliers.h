#pragma once

#include <array>

#include "app/stored_number.h"

namespace lignara {

struct FactorPanel;
struct FinalSelection;

/// The stresses that have a final multiplier, in the order of `AdjustmentFactors::Multiplier` and
/// of the fields "Final Stress Multipliers".
enum class StressKind { Fb, Ft, Fv, FcPar, FcPerp, E };
inline constexpr int kStressKinds = 6;

/// The captions of the fields "Final Stress Multipliers", in the order of StressKind.
inline constexpr std::array<const char*, kStressKinds> kMultiplierCaptions = {
    "Fb", "Ft", "Fv", "Fc parell", "Fc perp.", "E"};

/// The working state of the panel "Stress Adjustment Factors".
struct AdjustmentFactors {
  std::array<Float32, 4> SizeFactor;  ///< 1 Fb, 2 Ft, 3 Fc along the grain; 0 stands empty
  Float32 LoadDuration;
  Float32 Repetitive;
  Float32 ShearCondition;
  Float32 FlatUse;
  /// 1 Fb, 2 Ft, 3 Fc along the grain, 4 Fv, 5 Fc across the grain, 6 E; 0 and 7 stand empty.
  std::array<Float32, 8> WetUse;
  std::array<Float32, kStressKinds> Multiplier;

  Float32& MultiplierOf(StressKind kind) { return Multiplier[static_cast<std::size_t>(kind)]; }
  const Float32& MultiplierOf(StressKind kind) const {
    return Multiplier[static_cast<std::size_t>(kind)];
  }
};

/// The final multipliers of all stresses from the factors, each in 32-bit float.
void ComputeMultipliers(AdjustmentFactors& factors);

/// Applies the multipliers that the panel shows to the stresses that the grade shows.
void ApplyMultipliers(const FactorPanel& panel, FinalSelection& selection);

}  // namespace lignara
