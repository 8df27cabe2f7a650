#pragma once

#include <array>
#include <vector>

#include "beam/load_checks.h"
#include "beam/load_fields.h"
#include "beam/single_span_beam.h"

namespace lignara {

/// A field that a kind shows, and the array that keeps its number.
struct LoadValue {
  LoadField field;
  Float32Array SingleSpanBeam::*array;
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
  LoadChecks checks;
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
