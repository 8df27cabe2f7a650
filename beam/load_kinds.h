#pragma once

#include <array>
#include <string>
#include <vector>

#include "beam/single_span_beam.h"

namespace lignara {

/// The fields of the frame "Loads".
enum class LoadField { A, B, P, M, W, Disp };
inline constexpr int kLoadFields = 6;
inline constexpr std::array<const char*, kLoadFields> kLoadFieldCaptions = {
    "A(ft)", "B(ft)", "P(lbs)", "M(ft-lb)", "W(lbs/ft)", "Disp (in)"};

/// The numbers read from the six fields.
using LoadInput = std::array<Float32, kLoadFields>;

/// A field that a kind shows, and the array that keeps its number.
struct LoadValue {
  LoadField field;
  Float32Array SingleSpanBeam::*array;
};

/// A check of a load and what the user reads where it fails.
struct LoadCheck {
  bool (*fails)(const SingleSpanBeam& beam, const LoadInput& input);
  const char* message;
};

/// A number of a load in the report, between two texts.
struct LoadReportLine {
  const char* before;
  Float32Array SingleSpanBeam::*array;
  const char* after;
};

/// All in which one load kind differs from the others.
struct LoadKindInfo {
  LoadKind kind;
  const char* caption;   ///< of its option
  const char* listWord;  ///< in "Applied Loads"
  std::vector<LoadValue> values;
  std::vector<LoadCheck> addChecks;   ///< in their order; the first that fails is told
  std::vector<LoadCheck> editChecks;  ///< not the same, as users know the program
  /// What adding does beyond storing the values; may be nullptr.
  void (*afterAdd)(SingleSpanBeam& beam, int load);
  const char* reportWord;
  std::vector<LoadReportLine> reportLines;

  bool Shows(LoadField field) const;
};

/// The kinds in the order of their codes.
const std::array<LoadKindInfo, kLoadKinds>& LoadKindTable();
const LoadKindInfo& LoadKindOf(LoadKind kind);

/// True for the kinds that are spread over a length.
bool IsDistributed(LoadKind kind);
/// Whether the list has a load of a kind.
bool HasLoadOf(const SingleSpanBeam& beam, LoadKind kind);

}  // namespace lignara
