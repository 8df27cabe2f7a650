#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "app/bounded_array.h"
#include "app/glulam_transfer.h"

namespace lignara {

/// What holds a beam at one of its far ends. None: an overhang. The codes are those of the model.
enum class EndSupport { None = 0, Fixed = 1, Pinned = 2 };

/// Spans that all lists of the model have room for.
inline constexpr int kMultiSpanLimit = 51;
/// Point loads of a span that count, from the first on.
inline constexpr int kCountedPointLoads = 50;

/// A continuous beam: spans, loads, far supports. Spans and loads count from 1; element 0 is empty.
/// It lives as long as the program and is cleared where the window that fills it is opened anew.
struct MultiSpanModel {
  static constexpr int kSpans = 100;  ///< upper bound of the lists by span
  static constexpr int kLoads = 100;  ///< upper bound of the lists of point loads
  template <typename T>
  using BySpan = std::array<T, kSpans + 1>;

  MultiSpanModel() {
    for (int j = 0; j <= kMultiSpanLimit; ++j) {
      pointLoad.emplace_back(kLoads);
      pointX.emplace_back(kLoads);
    }
  }

  Int16 spanCount;

  Float32Array spanLength{kSpans};            ///< ft
  Float32Array spanUnbraced{kSpans};          ///< ft
  Float64Array spanUniform{kMultiSpanLimit};  ///< lbs/ft on the whole span, downward positive
  Float32Array spanI{kSpans};                 ///< in^4
  Float32Array spanE{kSpans};                 ///< psi
  Float32Array spanSectionModulus{kSpans};    ///< in^3
  Float32Array spanShearArea{kSpans};         ///< in^2
  Float32Array spanArea{kSpans};              ///< in^2
  Float32Array spanB{kSpans};                 ///< in
  Float32Array spanD{kSpans};                 ///< in
  Float32Array spanFb{kSpans};                ///< allowable bending, psi
  Float32Array spanFv{kSpans};                ///< allowable horizontal shear, psi
  Int16Array spanAxis{kSpans};                ///< 0 strong, 1 weak
  BySpan<std::string> spanMember;             ///< blank until the span is stored
  BySpan<std::string> spanType;               ///< "GLU-LAM", or "NA" where the member has no type

  BySpan<GlulamTransfer> spanGlulam;  ///< of glulam members: allowables, conditions of use

  Int16Array pointCount{kMultiSpanLimit};  ///< of the first 50 entries, those that are not 0
  std::vector<Float32Array> pointLoad;     ///< by span and load: lbs, downward positive; 0 is free
  std::vector<Float32Array> pointX;        ///< its distance from the left end of the span, ft

  EndSupport farLeftSupport = EndSupport::Pinned;
  EndSupport farRightSupport = EndSupport::Pinned;
  Int16 curveIntegrations = 8000;  ///< stations of the moment curve over the whole beam
};

/// True for a span that all lists of a model have.
constexpr bool HasMultiSpan(int span) { return span >= 1 && span <= kMultiSpanLimit; }

}  // namespace lignara
