#pragma once

#include <array>
#include <cstddef>

#include "app/multi_span_model.h"

namespace lignara {

/// The number fields of a span, in the order in which they are read and stored.
enum class SpanField {
  Length,
  Unbraced,
  Uniform,
  Inertia,
  Modulus,
  SectionModulus,
  ShearArea,
  Area,
  B,
  D,
  Fb,
  Fv
};

/// A field's caption in both systems of units, and where the model keeps its value.
struct SpanFieldInfo {
  const char* englishCaption;
  const char* metricCaption;
  Float32Array MultiSpanModel::*list;  ///< none for the uniform load, which is kept in 64 bits
};

inline constexpr std::array<SpanFieldInfo, 12> kSpanFields = {{
    {"Length(ft)", "Length, ft", &MultiSpanModel::spanLength},
    {"Unbraced Length (ft)", "Unbraced Length (ft)", &MultiSpanModel::spanUnbraced},
    {"Unif. ld(lb/ft)", "Unif. Load, lbf/ft", nullptr},
    {"Mom. of Inertia(in^4)", "Mom. of Inertia, in^4", &MultiSpanModel::spanI},
    {"Youngs Mod.(psi)", "Youngs Modulus, psi", &MultiSpanModel::spanE},
    {"Sect. Mod.(in^3)", "Section Mod. in^3", &MultiSpanModel::spanSectionModulus},
    {"Shear Area(in^2)", "Shear Area , in^2", &MultiSpanModel::spanShearArea},
    {"Gross Area , in^2", "Gross Area , in^2", &MultiSpanModel::spanArea},
    {"bf(in)", "B, in", &MultiSpanModel::spanB},
    {"d(in)", "D, in", &MultiSpanModel::spanD},
    {"Base All. Bending Str. (psi)", "Base All. Bending Str. (psi)", &MultiSpanModel::spanFb},
    {"Base All. Shear Str. (psi)", "Base All. Shear Str. (psi)", &MultiSpanModel::spanFv},
}};

/// The captions of a point load, which the model keeps by span and load.
struct LoadCaptions {
  const char* place;
  const char* load;
};
inline constexpr LoadCaptions kLoadCaptions = {"X(ft)", "lbs"};
inline constexpr LoadCaptions kMetricLoadCaptions = {"X, ft", "lbs"};

/// The caption of a field under a `unitSystem`.
constexpr const char* SpanFieldCaption(SpanField field, int unitSystem) {
  const SpanFieldInfo& info = kSpanFields[static_cast<std::size_t>(field)];
  return unitSystem == 0 ? info.englishCaption : info.metricCaption;
}
constexpr const LoadCaptions& LoadCaptionsOf(int unitSystem) {
  return unitSystem == 0 ? kLoadCaptions : kMetricLoadCaptions;
}

}  // namespace lignara
