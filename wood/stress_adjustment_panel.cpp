#include "wood/stress_adjustment_panel.h"

#include "app/fault.h"
#include "app/number_pattern.h"
#include "app/number_reader.h"
#include "wood/adjustment_tables.h"
#include "wood/wood_data_base_window.h"

namespace lignara {
namespace {

template <typename Rows>
ListRows FilledList(const Rows& rows) {
  return {{rows.begin(), rows.end()}, -1};
}

void FillLists(FactorPanel& panel) {
  panel.List(FactorList::Width) = FilledList(kWidthRows);
  panel.List(FactorList::Thickness) = FilledList(kThicknessRows);
  panel.List(FactorList::Grade) = FilledList(kGradeRows);
  panel.List(FactorList::LoadDuration) = FilledList(kLoadDurationRows);
  panel.List(FactorList::ShearCondition) = FilledList(kShearConditionRows);
}

void SetFactorsToOne(AdjustmentFactors& factors) {
  factors.Repetitive = 1.0;
  factors.SizeFactor.fill(1.0);
  factors.LoadDuration = 1.0;
  factors.ShearCondition = 1.0;
  factors.FlatUse = 1.0;
  factors.WetUse.fill(1.0);
}

/// All but the lists and the multipliers as on the first opening.
void SetDefaults(FactorPanel& panel) {
  const FactorPanel fresh;
  panel.yes = fresh.yes;
  panel.wetRows.clear();
  panel.repetitive = fresh.repetitive;
  panel.loadDuration = fresh.loadDuration;
  panel.shearCondition = fresh.shearCondition;
  panel.flatUse = fresh.flatUse;
  SetFactorsToOne(panel.factors);
}

void ComputeSizeFactors(FactorPanel& panel, WoodFamily family) {
  const std::array<float, 3> size =
      SizeFactors(family, panel.Row(FactorList::Width), panel.Row(FactorList::Thickness),
                  panel.Row(FactorList::Grade));
  constexpr std::array<const char*, 3> kLabels = {"FB = ", "FT = ", "FC // ="};
  panel.sizeRows.clear();
  const bool blankFirst = family != WoodFamily::SouthernPine && family != WoodFamily::MachineRated;
  if (blankFirst) panel.sizeRows.emplace_back();
  for (std::size_t i = 0; i < size.size(); ++i) {
    panel.factors.SizeFactor[i + 1] = size[i];
    panel.sizeRows.push_back(kLabels[i] + FormatNumber(size[i], kTwoDecimals));
  }
}

void LookUpFlatUse(FactorPanel& panel) {
  panel.factors.FlatUse =
      FlatUseFactor(panel.Row(FactorList::Width), panel.Row(FactorList::Thickness));
  panel.flatUse = FormatNumber(panel.factors.FlatUse, kTwoDecimals);
}

/// A row of the width, thickness or grade list was clicked.
void FollowSize(WoodDataBaseWindow& window, FactorList list) {
  FactorPanel& panel = window.panel;
  if (panel.settingUp) return;
  ComputeSizeFactors(panel, window.DataBaseFamily);
  if (list != FactorList::Grade && panel.Yes(FactorPair::FlatUse)) LookUpFlatUse(panel);
}

void AnswerMoisture(FactorPanel& panel, bool wet) {
  panel.factors.WetUse.fill(1.0);
  panel.wetRows.clear();
  if (!wet) return;
  panel.wetRows.emplace_back();
  for (std::size_t i = 0; i < kWetUse.size(); ++i) {
    panel.factors.WetUse[i + 1] = kWetUse[i].factor;
    panel.wetRows.push_back(kWetUse[i].label + FormatNumber(kWetUse[i].factor, kTwoDecimals));
  }
}

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

}  // namespace

void OpenFactorPanel(WoodDataBaseWindow& window, Platform& platform) {
  FactorPanel& panel = window.panel;
  panel.settingUp = true;
  panel.open = true;
  FillLists(panel);
  SetDefaults(panel);
  for (int list = 0; list < kFactorLists; ++list) {
    ChooseFactorRow(window, platform, static_cast<FactorList>(list), 1);
  }
  panel.settingUp = false;
  ComputeSizeFactors(panel, window.DataBaseFamily);
}

void ChooseFactorRow(WoodDataBaseWindow& window, Platform& platform, FactorList list, int row) {
  FaultScope faults(platform);
  FactorPanel& panel = window.panel;
  if (!panel.List(list).Has(row)) return;
  panel.List(list).row = row;
  switch (list) {
    case FactorList::Width:
    case FactorList::Thickness:
    case FactorList::Grade:
      FollowSize(window, list);
      break;
    case FactorList::LoadDuration:
      panel.factors.LoadDuration = LoadDurationFactor(row);
      panel.loadDuration = FormatNumber(panel.factors.LoadDuration, kTwoDecimals);
      break;
    case FactorList::ShearCondition:
      panel.factors.ShearCondition = ShearConditionFactor(row);
      panel.shearCondition = FormatNumber(panel.factors.ShearCondition, kTwoDecimals);
      break;
  }
}

void AnswerFactorPair(WoodDataBaseWindow& window, Platform& platform, FactorPair pair, bool yes) {
  FaultScope faults(platform);
  FactorPanel& panel = window.panel;
  panel.Yes(pair) = yes;
  switch (pair) {
    case FactorPair::RepetitiveUse:
      panel.factors.Repetitive = yes ? kRepetitiveUse : 1.0F;
      panel.repetitive = FormatNumber(panel.factors.Repetitive, kTwoDecimals);
      break;
    case FactorPair::FlatUse:
      if (yes) {
        LookUpFlatUse(panel);
      } else {
        panel.factors.FlatUse = 1.0;
        panel.flatUse = FormatNumber(panel.factors.FlatUse, kTwoDecimals);
      }
      break;
    case FactorPair::Moisture:
      AnswerMoisture(panel, yes);
      break;
  }
}

void CancelFactors(WoodDataBaseWindow& window) { window.panel.open = false; }

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
  ApplyMultipliers(panel, window.selection);
  panel.open = false;
}

}  // namespace lignara
