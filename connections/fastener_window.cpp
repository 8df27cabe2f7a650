#include "connections/fastener_window.h"

namespace lignara {
namespace {

void ShowLagScrew(FastenerWindow& window) {
  const auto size = static_cast<std::size_t>(window.sizes.row);
  const auto embedment = static_cast<std::size_t>(window.embedments.row);
  const auto wood = static_cast<std::size_t>(window.wood);
  window.Field(FastenerField::PullOut) = LagScrewTable.pullOut[wood][size];
  window.Field(FastenerField::LateralParallel) = LagScrewTable.parallel[embedment][size];
  window.Field(FastenerField::LateralPerp) = LagScrewTable.perpendicular[embedment][size];
}

void ShowRow(FastenerWindow& window, const FastenerRow& row) {
  window.Field(FastenerField::Length) = row.length;
  window.Field(FastenerField::Diameter) = row.diameter;
  window.Field(FastenerField::Lateral) = row.lateral;
  window.Field(FastenerField::PullOut) = row.pullOut[static_cast<std::size_t>(window.wood)];
}

}  // namespace

void OpenFastenerDataBase(FastenerWindow& window) {
  window = FastenerWindow();
  window.embedments.rows = {LagScrewTable.embedments.begin(), LagScrewTable.embedments.end()};
  ChooseFastenerKind(window, FastenerKind::Nails);
}

void ChooseFastenerKind(FastenerWindow& window, FastenerKind kind) {
  const FastenerKindEntry& entry = EntryOf(kind);
  window.kind = kind;
  window.firstNote = entry.firstNote;
  window.secondNote = entry.secondNote;
  window.sizes = {SizesOf(kind), 0};
  window.embedments.row = 0;
  ShowFastenerValues(window);
}

void ChooseFastenerSize(FastenerWindow& window, int row) {
  if (!window.sizes.Has(row)) return;
  window.sizes.row = row;
  ShowFastenerValues(window);
}

void ChooseEmbedment(FastenerWindow& window, int row) {
  if (!window.embedments.Has(row)) return;
  window.embedments.row = row;
  ShowFastenerValues(window);
}

void ChooseFastenerWood(FastenerWindow& window, FastenerWood wood) {
  window.wood = wood;
  ShowFastenerValues(window);
}

void ShowFastenerValues(FastenerWindow& window) {
  for (ListRows* list : {&window.sizes, &window.embedments}) {
    if (!list->Has(list->row)) list->row = 0;
  }
  window.fields = {};
  if (window.kind == FastenerKind::LagScrews) {
    ShowLagScrew(window);
  } else {
    ShowRow(window, EntryOf(window.kind).rows[static_cast<std::size_t>(window.sizes.row)]);
  }
}

}  // namespace lignara
