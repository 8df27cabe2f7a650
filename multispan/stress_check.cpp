#include "multispan/stress_check.h"

#include <algorithm>

#include "app/fault.h"
#include "app/number_pattern.h"
#include "glulam/load_durations.h"
#include "glulam/moisture_and_load_types.h"
#include "glulam/values_and_wet_factors.h"

namespace lignara {
namespace {

constexpr double kInchesPerFoot = 12;
constexpr double kEffectiveLength = 1.92;
constexpr double kShortBeam = 100;  // largest slenderness of a short beam
constexpr double kLongBeam = 2500;  // largest slenderness of a beam at all

using Rows = std::vector<std::string>;

int SpansOf(const MultiSpanModel& model) {
  return std::min<int>(model.spanCount.value(), kMultiSpanLimit);
}

/// What stands for a span in a list kept by span, 0 where the run had fewer spans.
double OfSpan(const std::vector<float>& values, int span) {
  const auto at = static_cast<std::size_t>(span);
  return at < values.size() ? static_cast<double>(values[at]) : 0;
}

std::string Psi(const char* label, const Float32& stress) {
  return label + FormatNumber(stress, kTwoDecimals) + " psi";
}

std::string NameLine(int span, const std::string& name) {
  return "Span " + std::to_string(span) + " " + name;
}

bool HasCheckData(const MultiSpanModel& model, int span) {
  return model.spanSectionModulus[span] > 0 && model.spanShearArea[span] > 0 &&
         model.spanB[span] > 0 && model.spanD[span] > 0 && model.spanFb[span] > 0 &&
         model.spanFv[span] > 0;
}

/// "ACTUAL STRESSES" with the names of the spans.
void WriteActual(const MultiSpanResults& window, const MultiSpanModel& model,
                 const MultiSpanModel::BySpan<std::string>& names, Rows& rows) {
  rows.push_back(stress_heading::kActual);
  for (int j = 1; j <= SpansOf(model); ++j) {
    Float32 bending;
    Float32 shear;
    bending = OfSpan(window.run->spanMaxMoment, j) * kInchesPerFoot / model.spanSectionModulus[j];
    shear = OfSpan(window.run->spanMaxShear, j) / model.spanShearArea[j];
    rows.push_back(NameLine(j, names[static_cast<std::size_t>(j)]));
    rows.push_back(Psi("Bending stress = ", bending));
    rows.push_back(Psi("Shear stress = ", shear));
  }
}

/// A span bent between its bracings.
struct Slenderness {
  Float32 le;  ///< effective length, in
  Float32 s;   ///< le d / b^2
  Float32 k;   ///< the slenderness from which a beam is long
};

Slenderness SlendernessOf(const MultiSpanModel& model, int j) {
  const bool lying = model.spanB[j] >= model.spanD[j];
  const Float32& d = lying ? model.spanB[j] : model.spanD[j];
  const Float32& b = lying ? model.spanD[j] : model.spanB[j];
  Slenderness slenderness;
  slenderness.le = model.spanUnbraced[j] * kEffectiveLength * kInchesPerFoot;
  slenderness.s = slenderness.le * d / Square(b);
  slenderness.k = 3 * model.spanE[j] / (5 * model.spanFb[j]);
  return slenderness;
}

/// The bending allowable of a span, into the session. A short span leaves what stands there: the
/// current member's, or that of the span before.
void AdjustFb(const MultiSpanModel& model, int j, const Slenderness& of, Float32& fb) {
  if (of.s <= kShortBeam) return;
  if (of.s <= of.k) {
    fb = (1 - 0.333 * Square(of.le / of.k)) * model.spanFb[j];
  } else if (of.s <= kLongBeam) {
    fb = 0.4 * model.spanE[j] / of.s;
  }
}

void WriteAllowable(const MultiSpanModel& model, Float32& fb, Rows& rows) {
  rows.push_back(stress_heading::kAllowable);
  for (int j = 1; j <= SpansOf(model); ++j) {
    const Slenderness slenderness = SlendernessOf(model, j);
    AdjustFb(model, j, slenderness, fb);
    rows.push_back(NameLine(j, model.spanMember[static_cast<std::size_t>(j)]));
    rows.push_back(slenderness.s <= kLongBeam
                       ? Psi("Allowable Bending Stress = ", fb)
                       : "Length is to long, no allowable stress is applicable!");
    rows.push_back(Psi("Allowable Shear Stress = ", model.spanFv[j]));
  }
}

void WriteGlulamAllowables(const MultiSpanModel& model, Rows& rows) {
  rows.push_back(stress_heading::kGlulamAllowable);
  for (int j = 1; j <= SpansOf(model); ++j) {
    const GlulamTransfer& glulam = model.spanGlulam[static_cast<std::size_t>(j)];
    for (std::size_t i = 0; i < kGlulamValues; ++i) {
      rows.push_back("SPAN " + std::to_string(j) + ", " + kGlulamColumns[i].spanLabel +
                     FormatNumber(glulam.Values[i], "0"));
    }
  }
}

void WriteUseConditions(const MultiSpanModel& model, Rows& rows) {
  rows.push_back(stress_heading::kConditions);
  for (int j = 1; j <= SpansOf(model); ++j) {
    const GlulamTransfer& glulam = model.spanGlulam[static_cast<std::size_t>(j)];
    rows.push_back("SPAN " + std::to_string(j));
    for (const GlulamUseCondition* condition :
         {FindGlulamDuration(glulam.DurationCode.value()),
          FindUseCondition(kGlulamLoadTypes, glulam.LoadCode.value()),
          FindUseCondition(kGlulamMoistures, glulam.MoistureCode.value())}) {
      if (condition != nullptr) rows.push_back(condition->spanLine);
    }
  }
}

void AddGlulamInputs(const GlulamTransfer& glulam, std::vector<float>& numbers) {
  for (const Float32& value : glulam.Values) numbers.push_back(value.value());
  for (const Int16* code : {&glulam.DurationCode, &glulam.LoadCode, &glulam.MoistureCode}) {
    numbers.push_back(code->value());
  }
}

}  // namespace

StressInputs StressInputsOf(const MultiSpanModel& model) {
  StressInputs inputs;
  for (int j = 1; j <= SpansOf(model); ++j) {
    const auto span = static_cast<std::size_t>(j);
    for (const Float32Array* list :
         {&model.spanSectionModulus, &model.spanShearArea, &model.spanB, &model.spanD,
          &model.spanFb, &model.spanFv, &model.spanE, &model.spanUnbraced}) {
      inputs.numbers.push_back((*list)[j].value());
    }
    AddGlulamInputs(model.spanGlulam[span], inputs.numbers);
    inputs.names.push_back(model.spanMember[span]);
    inputs.names.push_back(model.spanType[span]);
  }
  return inputs;
}

void CheckWoodSpans(MultiSpanResults& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  const MultiSpanModel& model = session.MultiSpan;
  window.stressRows.clear();
  if (session.Member.MemberSource.value() != MemberSelection::kSawnSource) {
    platform.ShowMessage({"YOUR MEMBER IS GLU-LAM, NOT NORMAL WOOD!"});
    return;
  }
  for (int j = 1; j <= SpansOf(model); ++j) {
    if (HasCheckData(model, j)) continue;
    platform.ShowMessage(
        {"YOU ARE MISSING DATA REQUIRED FOR CODE CHECK IN SPAN " + std::to_string(j)});
    return;
  }
  if (window.run == nullptr) return;
  WriteActual(window, model, model.spanMember, window.stressRows);
  WriteAllowable(model, session.Member.AllowFb, window.stressRows);
  window.stressInputs = StressInputsOf(model);
}

void CheckGlulamSpans(MultiSpanResults& window, const SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  const MultiSpanModel& model = session.MultiSpan;
  window.stressRows.clear();
  if (session.Member.MemberSource.value() != MemberSelection::kGlulamSource) {
    platform.ShowMessage({"YOUR MEMBER IS NORMAL WOOD, NOT GLU-LAM!"});
    return;
  }
  if (window.run == nullptr) return;
  WriteActual(window, model, model.spanType, window.stressRows);
  WriteGlulamAllowables(model, window.stressRows);
  WriteUseConditions(model, window.stressRows);
  window.stressInputs = StressInputsOf(model);
}

}  // namespace lignara
