#pragma once

#include <QPointF>
#include <array>
#include <cstddef>
#include <vector>

namespace lignara {

/// Where the names of a series do not all find room, every second, fifth, ... is shown.
inline constexpr std::array<int, 10> kNameSteps = {1, 2, 5, 10, 20, 50, 100, 200, 500, 1000};

/// A mark of a series: a text that stands at a place again and again.
struct SeriesMark {
  int series, place;
  QPointF at;
  double width;  ///< of its text, 0 without one
};

/// The first step, as index, at which the texts of all series stand clear of each other.
std::size_t FirstStep(const std::vector<SeriesMark>& marks, double height, double gap);

}  // namespace lignara
