#include <optional>

#include "app/fault.h"
#include "app/number_reader.h"
#include "app/number_that_fits.h"
#include "app/plain_number.h"
#include "beam/beam_window.h"
#include "beam/load_picture.h"

namespace lignara {
namespace {

/// The fields of the selected kind as numbers; nothing where one is too large, which the user was
/// told.
std::optional<LoadInput> ReadLoad(const BeamWindow& window) {
  LoadInput input;
  for (const LoadValue& value : LoadKindOf(window.beam.selectedKind).values) {
    const std::optional<Float32> number = NumberThatFits(ReadNumber(window.Field(value.field)));
    if (!number) return std::nullopt;
    input[static_cast<std::size_t>(value.field)] = *number;
  }
  return input;
}

void StoreLoad(SingleSpanBeam& beam, int load, const LoadKindInfo& kind, const LoadInput& input) {
  for (const LoadValue& value : kind.values) {
    (beam.*value.array)[load] = input[static_cast<std::size_t>(value.field)];
  }
}

void ShowLoads(BeamWindow& window, Platform& platform) {
  window.loads.rows = ListLines(window.beam);
  window.loads.row = -1;
  DrawLoadPicture(window, platform);
}

constexpr Float32Array SingleSpanBeam::*kLoadArrays[] = {
    &SingleSpanBeam::loadA, &SingleSpanBeam::loadB, &SingleSpanBeam::loadP,
    &SingleSpanBeam::loadM, &SingleSpanBeam::loadW, &SingleSpanBeam::loadDisp};

void CloseGap(SingleSpanBeam& beam, int deleted) {
  const int last = beam.loadCount.value();
  for (int load = deleted; load < last; ++load) {
    for (const auto array : kLoadArrays) (beam.*array)[load] = (beam.*array)[load + 1];
    beam.loadAxial[load] = beam.loadAxial[load + 1];
    beam.loadKind[load] = beam.loadKind[load + 1];
  }
  for (const auto array : kLoadArrays) (beam.*array)[last] = 0;
  beam.loadCount -= 1;
}

}  // namespace

void SetKind(BeamWindow& window, LoadKind kind) { window.beam.selectedKind = kind; }

void EnterLoadField(BeamWindow& window, LoadField field) { window.Field(field).clear(); }

void AddLoad(BeamWindow& window, Platform& platform) {
  const FaultScope faults(platform);
  SingleSpanBeam& beam = window.beam;
  if (beam.loadCount >= kMostLoads) return;  // the list is full
  const std::optional<LoadInput> input = ReadLoad(window);
  if (!input) return;
  const LoadKindInfo& kind = LoadKindOf(beam.selectedKind);
  const int load = beam.loadCount.value() + 1;
  beam.loadKind[load] = static_cast<int>(kind.kind);
  if (!Passes(kind.checks.add, beam, *input, platform)) return;
  StoreLoad(beam, load, kind, *input);
  if (kind.afterAdd != nullptr) kind.afterAdd(beam, load);
  beam.loadCount += 1;
  ShowLoads(window, platform);
}

void EditLoad(BeamWindow& window, Platform& platform) {
  const FaultScope faults(platform);
  SingleSpanBeam& beam = window.beam;
  if (!window.loads.Has(window.loads.row)) return;
  const std::optional<LoadInput> input = ReadLoad(window);
  if (!input) return;
  const LoadKindInfo& kind = LoadKindOf(beam.selectedKind);
  if (!Passes(kind.checks.edit, beam, *input, platform)) return;
  const int load = window.loads.row + 1;
  beam.loadKind[load] = static_cast<int>(kind.kind);
  StoreLoad(beam, load, kind, *input);
  ClearInputs(window);
  ShowLoads(window, platform);
}

void DeleteLoad(BeamWindow& window, Platform& platform) {
  if (!window.loads.Has(window.loads.row)) return;
  CloseGap(window.beam, window.loads.row + 1);
  ClearInputs(window);
  ShowLoads(window, platform);
}

void ClearInputs(BeamWindow& window) {
  window.addEnabled = true;
  window.editEnabled = false;
  window.loads.row = -1;
  SetKind(window, LoadKind::PointLoad);
  for (std::string& field : window.loadFields) field.clear();
  ShowLoadPicture(window);
}

void SelectLoad(BeamWindow& window, int row) {
  if (!window.loads.Has(row)) return;
  window.loads.row = row;
  window.addEnabled = false;
  window.editEnabled = true;
  const LoadKind kind = window.beam.KindOf(row + 1);
  SetKind(window, kind);
  for (const LoadValue& value : LoadKindOf(kind).values) {
    window.Field(value.field) = PlainNumber((window.beam.*value.array)[row + 1]);
  }
  ShowLoadPicture(window);
}

std::vector<std::string> ListLines(const SingleSpanBeam& beam) {
  std::vector<std::string> lines;
  for (int load = 1; load <= beam.loadCount.value(); ++load) {
    lines.push_back("(" + std::to_string(load) + ")" + LoadKindOf(beam.KindOf(load)).listWord);
  }
  return lines;
}

void RemoveAllLoads(BeamWindow& window) {
  window.beam.loadCount = 0;
  window.loads = ListRows();
  window.addEnabled = true;
  window.editEnabled = false;
}

}  // namespace lignara
