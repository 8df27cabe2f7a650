#pragma once

#include <QPalette>

namespace lignara {

/// The colour of what a user should look at again: amber, dark enough on a light ground and light
/// enough on a dark one.
inline QColor WarningColour(const QPalette& palette) {
  return palette.color(QPalette::Base).lightness() < 128 ? QColor("#ffb74d") : QColor("#b35900");
}

/// The colour of what is beyond what is allowed: a red apart from the amber of warnings and from
/// the colours of forces.
inline QColor AlarmColour(const QPalette& palette) {
  return palette.color(QPalette::Base).lightness() < 128 ? QColor("#ff4d6d") : QColor("#d0103a");
}

/// A colour as a thin tint over a ground with text on it.
inline QColor Tint(QColor colour, const QPalette& palette) {
  colour.setAlpha(palette.color(QPalette::Base).lightness() < 128 ? 70 : 40);
  return colour;
}

}  // namespace lignara
