#include "wood/adjustment_factors.h"

namespace lignara {

void ComputeMultipliers(AdjustmentFactors& factors) {
  const auto& size = factors.SizeFactor;
  const auto& wet = factors.WetUse;
  const Number duration = factors.LoadDuration;
  factors.MultiplierOf(StressKind::Fb) =
      factors.Repetitive * size[1] * duration * factors.FlatUse * wet[1];
  factors.MultiplierOf(StressKind::Ft) = size[2] * duration * wet[2];
  factors.MultiplierOf(StressKind::Fv) = duration * factors.ShearCondition * wet[4];
  factors.MultiplierOf(StressKind::FcPar) = size[3] * duration * wet[3];
  factors.MultiplierOf(StressKind::FcPerp) = wet[5];
  factors.MultiplierOf(StressKind::E) = wet[6];
}

}  // namespace lignara
