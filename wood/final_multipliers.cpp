#include "wood/final_multipliers.h"

#include "app/fault.h"
#include "app/number_pattern.h"
#include "app/number_reader.h"
#include "wood/wood_data_base_window.h"

namespace lignara {
namespace {

/// Reads the four fields that the user may type over. False where one of them is not above 0.
bool ReadFactorFields(FactorPanel& panel) {
  AdjustmentFactors& factors = panel.factors;
  factors.Repetitive = ReadNumber(panel.repetitive);
  factors.LoadDuration = ReadNumber(panel.loadDuration);
  factors.FlatUse = ReadNumber(panel.flatUse);
  factors.ShearCondition = ReadNumber(panel.shearCondition);
  return factors.Repetitive > 0 && factors.LoadDuration > 0 && factors.FlatUse > 0 &&
         factors.ShearCondition > 0;
}

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

void CalculateFactors(WoodDataBaseWindow& window, Platform& platform) {
  FaultScope faults(platform);
  FactorPanel& panel = window.panel;
  if (!ReadFactorFields(panel)) {
    platform.ShowMessage({" An adjustment factor is <= 0, Enter a value!"});
    return;
  }
  ComputeMultipliers(panel.factors);
  for (int i = 0; i < kStressKinds; ++i) {
    const auto at = static_cast<std::size_t>(i);
    panel.multipliers[at] = FormatNumber(panel.factors.Multiplier[at], kTwoDecimals);
  }
}

void AcceptFactors(WoodDataBaseWindow& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  FactorPanel& panel = window.panel;
  if (panel.MultiplierText(StressKind::Fb).empty()) {
    platform.ShowMessage({"HIT THE CALCULATE FACTORS BUTTON !"});
    return;
  }
  ShowChosenGrade(window, session, platform);
  for (const AppliedMultiplier& applied : kAppliedMultipliers) {
    std::string& shown = window.selection.*applied.shown;
    const Number product = ReadNumber(shown) * ReadNumber(panel.MultiplierText(applied.multiplier));
    ReportFault(product.fault());
    if (product.fault() == Fault::None) shown = FormatNumber(product.value(), applied.pattern);
  }
  panel.open = false;
}

}  // namespace lignara
