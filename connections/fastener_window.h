#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "app/list_rows.h"
#include "app/platform.h"
#include "connections/fastener_kinds.h"

namespace lignara {

/// The window `FASTENER`, "Fastener Data Base".
struct FastenerWindow {
  FastenerKind kind = FastenerKind::Nails;
  FastenerWood wood = FastenerWood::DouglasFir;
  ListRows sizes;                                   ///< "Size"
  ListRows embedments;                              ///< "Embedment Length of Lag Screw (in)"
  std::array<std::string, kFastenerFields> fields;  ///< empty where the kind does not have it
  std::string firstNote;
  std::string secondNote;

  std::string& Field(FastenerField field) { return fields[static_cast<std::size_t>(field)]; }
  const std::string& Field(FastenerField field) const {
    return fields[static_cast<std::size_t>(field)];
  }
};

/// The window as it opens: the first nail in Douglas Fir.
void OpenFastenerDataBase(FastenerWindow& window);
/// The button of a kind, also of the one that is shown already: both lists go to their first row.
/// The wood stays.
void ChooseFastenerKind(FastenerWindow& window, FastenerKind kind);
/// A click on a row of "Size". A row outside changes nothing.
void ChooseFastenerSize(FastenerWindow& window, int row);
/// A click on a row of the embedment list. A row outside changes nothing.
void ChooseEmbedment(FastenerWindow& window, int row);
/// "Douglas Fir" or "Southern Pine".
void ChooseFastenerWood(FastenerWindow& window, FastenerWood wood);
/// Shows the texts of the chosen size and embedment. A list without a choice goes to its first row.
void ShowFastenerValues(FastenerWindow& window);

/// Menu "Files", "Print".
void PrintFastenerReport(const FastenerWindow& window, Platform& platform);
/// Menu "Files", "Save Output to Text File...".
void SaveFastenerReport(const FastenerWindow& window, Platform& platform);

}  // namespace lignara
