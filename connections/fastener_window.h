#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "app/list_rows.h"
#include "app/platform.h"
#include "connections/fastener_tables.h"

namespace lignara {

/// The kinds of fastener, with the values of `FastenerKind`.
enum class FastenerKind : std::int16_t { Nails = 1, Spikes = 2, WoodScrews = 3, LagScrews = 4 };

/// The values that the window shows, in the order of the screen. Not every kind has each.
enum class FastenerField { Length, Diameter, Lateral, PullOut, LateralParallel, LateralPerp };
inline constexpr int kFastenerFields = 6;

/// The captions of the fields, in their order.
inline constexpr std::array<const char*, kFastenerFields> kFastenerFieldCaptions = {
    "Length (in)",
    "Dia. (in)",
    "Lat. Strength (lbs)",
    "Pull out Strength (lbs)",
    "Lat. Strength Parallel to Grain (lbs)",
    "Lat. Strength Perp. to Grain (lbs)"};

/// The captions of the woods, in the order of FastenerWood.
inline constexpr std::array<const char*, kFastenerWoods> kFastenerWoodCaptions = {"Douglas Fir",
                                                                                  "Southern Pine"};

/// What a kind shows.
struct FastenerKindEntry {
  FastenerKind kind;
  const char* caption;     ///< of its button
  const char* reportLine;  ///< its heading in the report
  std::array<bool, kFastenerFields> shows;
  bool showsEmbedment;
  const char* firstNote;
  const char* secondNote;

  bool Shows(FastenerField field) const { return shows[static_cast<std::size_t>(field)]; }
};

inline constexpr int kFastenerKinds = 4;
extern const std::array<FastenerKindEntry, kFastenerKinds> kFastenerKindTable;

/// The row of a kind.
const FastenerKindEntry& EntryOf(FastenerKind kind);

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
