#pragma once

#include <QPalette>

namespace lignara {

/// The colour of what a user should look at again: amber, dark enough on a light ground and light
/// enough on a dark one.
inline QColor WarningColour(const QPalette& palette) {
  return palette.color(QPalette::Base).lightness() < 128 ? QColor("#ffb74d") : QColor("#b35900");
}

/// The same as a thin tint over a ground with text on it.
inline QColor WarningTint(const QPalette& palette) {
  QColor tint = WarningColour(palette);
  tint.setAlpha(palette.color(QPalette::Base).lightness() < 128 ? 60 : 40);
  return tint;
}

}  // namespace lignara
