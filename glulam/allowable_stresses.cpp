// From the published values of a combination to the allowables of one member. Each step reads the
// texts that the one before shows.

#include "glulam/allowable_stresses.h"

#include <optional>
#include <string_view>

#include "app/fault.h"
#include "app/number_pattern.h"
#include "app/number_reader.h"
#include "app/number_that_fits.h"
#include "glulam/combination_files.h"
#include "glulam/glulam_window.h"
#include "glulam/load_durations.h"
#include "glulam/size_and_stability.h"
#include "glulam/use_codes.h"
#include "glulam/user_factors.h"
#include "glulam/values_and_wet_factors.h"

namespace lignara {
namespace {

using Row = GlulamCombinationTable::Row;

constexpr const char* kWhole = "0";

/// Another code leaves note and choice as they were.
void FollowUseCode(GlulamWindow& window, const std::string& code) {
  for (const GlulamUseCode& use : kGlulamUseCodes) {
    if (use.code != code) continue;
    window.useNote = use.note;
    window.wetOffered = use.wetOffered;
    if (!use.wetOffered) window.dryUse = true;
  }
}

void ShowPublishedValues(GlulamWindow& window, const Row& row) {
  window.species = row[glulam_cell::kSpecies];
  FollowUseCode(window, row[glulam_cell::kUseCode]);
  for (std::size_t i = 0; i < kGlulamValues; ++i) {
    window.values[i] = row[glulam_cell::kFirstValue + i];
  }
}

void ApplyMoisture(GlulamWindow& window) {
  if (window.dryUse) return;
  for (std::size_t i = 0; i < kGlulamValues; ++i) {
    std::string& value = window.values[i];
    ShowValue(value, ReadNumber(value) * kGlulamColumns[i].wetFactor, kWhole);
  }
}

void ApplyDuration(GlulamWindow& window) {
  if (window.duration < 0) return;
  const GlulamDuration& duration = kGlulamDurations[static_cast<std::size_t>(window.duration)];
  for (std::size_t i = 0; i < kGlulamValues; ++i) {
    if (!duration.actsOnAll && !kGlulamColumns[i].takesAllDurations) continue;
    std::string& value = window.values[i];
    ShowValue(value, ReadNumber(value) * duration.factor, kWhole);
  }
}

/// The section; nothing where a side is not above 0.
std::optional<GlulamSection> ReadSection(const GlulamWindow& window) {
  GlulamSection section;
  section.depth = ReadNumber(window.depth);
  section.width = ReadNumber(window.width);
  section.feet = ReadNumber(window.length);
  const bool whole = section.depth > 0 && section.width > 0 && section.Length() > 0;
  return whole ? std::optional(section) : std::nullopt;
}

/// A bending zone and the note that stands where its member is too long.
struct BendingZone {
  GlulamValue value;
  const char* tooLong;
};
constexpr BendingZone kBendingZones[] = {
    {GlulamValue::FbxTensionZone, kTooLongForTensionZone},
    {GlulamValue::FbxCompressionZone, kTooLongForCompressionZone},
};

/// Size and lateral stability do not add up: the lesser stress of the two stands. The size factor
/// acts on the rounded stress of the stability, so that one above 1 raises nothing.
void ApplyBendingLimits(GlulamWindow& window, const GlulamSection& section) {
  const Float32 sizeFactor = SizeFactor(section);
  const Number e = ReadNumber(window.Value(GlulamValue::Ex));
  for (const BendingZone& zone : kBendingZones) {
    std::string& shown = window.Value(zone.value);
    const StableStress stable = StableBending(section, ReadNumber(shown), e);
    if (stable.tooLong) window.useNote = zone.tooLong;
    ShowValue(shown, stable.stress, kWhole);
    const std::optional<Float32> sized = NumberThatFits(sizeFactor * ReadNumber(shown));
    if (sized && *sized < stable.stress) ShowValue(shown, *sized, kWhole);
  }
}

void ApplyColumnLimit(GlulamWindow& window, const GlulamSection& section) {
  std::string& shown = window.Value(GlulamValue::Fc);
  const StableStress euler = ColumnStress(section, ReadNumber(window.Value(GlulamValue::Ea)));
  if (euler.tooLong) window.useNote = kTooSlenderColumn;
  const bool keeps = !euler.tooLong && ReadNumber(shown) < euler.stress;
  if (!keeps) ShowValue(shown, euler.stress, kWhole);
}

}  // namespace

void ShowValue(std::string& shown, const Number& value, std::string_view pattern) {
  const std::optional<Float32> stored = NumberThatFits(value);
  if (stored) shown = FormatNumber(*stored, pattern);
}

void RecomputeAllowables(GlulamWindow& window, const SessionState& session, Platform& platform) {
  if (window.combinations.rows.empty()) return;
  FaultScope faults(platform);
  ShowPublishedValues(window, session.GlulamCombinations.RowAt(window.combinations.row + 1));
  ApplyMoisture(window);
  ApplyDuration(window);
  if (const std::optional<GlulamSection> section = ReadSection(window)) {
    ApplyBendingLimits(window, *section);
    ApplyColumnLimit(window, *section);
  }
  ApplyUserFactors(window);
}

}  // namespace lignara
