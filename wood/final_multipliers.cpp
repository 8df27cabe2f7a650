#include "wood/final_multipliers.h"

#include "app/fault.h"
#include "app/number_pattern.h"
#include "app/number_reader.h"
#include "wood/final_selection.h"
#include "wood/stress_adjustment_panel.h"

namespace lignara {
namespace {

/// Which multiplier acts on which shown value. The two compressions are crossed: the stress
/// across the grain takes the multiplier of the one along it, and the reverse.
struct AppliedMultiplier {
  std::string FinalSelection::*shown;
  StressKind multiplier;
  const char* pattern;
};

constexpr AppliedMultiplier kAppliedMultipliers[] = {
    {&FinalSelection::fb, StressKind::Fb, kTwoDecimals},
    {&FinalSelection::fv, StressKind::Fv, kTwoDecimals},
    {&FinalSelection::e, StressKind::E, "0"},
    {&FinalSelection::ft, StressKind::Ft, kTwoDecimals},
    {&FinalSelection::fcPerp, StressKind::FcPar, kTwoDecimals},
    {&FinalSelection::fcPar, StressKind::FcPerp, kTwoDecimals},
};

}  // namespace

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

void ApplyMultipliers(const FactorPanel& panel, FinalSelection& selection) {
  for (const AppliedMultiplier& applied : kAppliedMultipliers) {
    std::string& shown = selection.*applied.shown;
    const Number product = ReadNumber(shown) * ReadNumber(panel.MultiplierText(applied.multiplier));
    ReportFault(product.fault());
    if (product.fault() == Fault::None) shown = FormatNumber(product.value(), applied.pattern);
  }
}

}  // namespace lignara
