#pragma once

#include <vector>

#include "app/multi_span_model.h"

namespace lignara {

struct SpanPointLoad {
  double force = 0;  ///< lbs, downward positive
  double x = 0;      ///< from the left end of the span, ft

  bool operator==(const SpanPointLoad&) const = default;
};

/// One span as the solver takes it.
struct BeamSpan {
  double length = 0;   ///< ft
  double e = 0;        ///< psi
  double i = 0;        ///< in^4
  double uniform = 0;  ///< lbs/ft

  /// The entries that count, in the order of entry; the first entry always, even where it is free.
  std::vector<SpanPointLoad> points{SpanPointLoad{}};

  /// Only the first entry is asked: where it is free, the span takes none of its point loads.
  bool HasPointLoads() const { return points.front().force != 0; }

  bool operator==(const BeamSpan&) const = default;
};

/// A beam and its loads as the solver takes them. The real loads and a unit load are two of these.
struct BeamCase {
  int count = 0;                ///< spans
  std::vector<BeamSpan> spans;  ///< from 1; element 0 is empty
  EndSupport left = EndSupport::Pinned;
  EndSupport right = EndSupport::Pinned;

  BeamSpan& Span(int j) { return spans[static_cast<std::size_t>(j)]; }
  const BeamSpan& Span(int j) const { return spans[static_cast<std::size_t>(j)]; }

  double TotalLength() const;
  /// The distance of a span's left end from that of the beam; of count + 1: the total length.
  double StartOf(int j) const;

  bool operator==(const BeamCase&) const = default;
};

/// The spans and loads of the model, up to the last span that its lists have room for.
BeamCase RealLoads(const MultiSpanModel& model);

/// The same beam without any load.
BeamCase WithoutLoads(const BeamCase& beam);

}  // namespace lignara
