#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "beam/class_formulas.h"

namespace lignara {

/// The stations of a run: x(i) = (L / N) i for i = 0 to the last one.
struct StationGrid {
  double span = 0;   ///< L, ft
  double steps = 0;  ///< N
  int last = 0;      ///< S: N as a whole number

  double DistanceFrom(BeamEnd end, int station) const {
    const double x = span / steps * station;
    return end == BeamEnd::Left ? x : span - x;
  }
};

template <std::size_t N>
double ValueAt(const Coefficients<N>& c, double u) {
  double value = c[N - 1];
  for (std::size_t k = N - 1; k-- > 0;) value = value * u + c[k];
  return value;
}

template <std::size_t N>
void AddTo(Coefficients<N>& sum, const Coefficients<N>& term) {
  for (std::size_t k = 0; k < N; ++k) sum[k] += term[k];
}

/// One curve of a beam (shear, moment or deflection) as the sum of many pieces, each a polynomial
/// that reaches from a station to one end of the beam. The pieces are summed as coefficients and
/// each station is evaluated once, so the cost is pieces plus stations.
///
/// Coefficients are only ever added, from the far end inward: never a piece taken out again where
/// it ends. Those of forces of one direction have one sign each, so nothing cancels that was
/// summed; in evaluation no more is lost than each single formula loses.
template <std::size_t N>
class StationSums {
 public:
  /// `left` and `right`: the ends from which the pieces of either side measure.
  StationSums(const StationGrid& grid, BeamEnd left, BeamEnd right)
      : grid_(grid), leftFrom_(left), rightFrom_(right) {
    const auto stations = static_cast<std::size_t>(grid.last) + 1;
    left_.assign(stations, {});
    right_.assign(stations, {});
  }

  /// A piece at the stations 0 to `station`, left of a force.
  void AddUpTo(int station, const Coefficients<N>& piece) {
    if (station >= 0) AddTo(left_[Index(std::min(station, grid_.last))], piece);
  }
  /// A piece at the stations from `station` on, right of a force.
  void AddFrom(int station, const Coefficients<N>& piece) {
    if (station <= grid_.last) AddTo(right_[Index(std::max(station, 0))], piece);
  }
  /// A piece all along the beam, measured from `end`.
  void AddWhole(BeamEnd end, const Coefficients<N>& piece) {
    if (end == leftFrom_) {
      AddUpTo(grid_.last, piece);
    } else {
      AddFrom(0, piece);
    }
  }
  /// One value at the stations `first` to `last`.
  void AddLevel(int first, int last, double value) { levels_.push_back({first, last, value}); }

  /// A left piece's value at a station.
  double LeftValue(const Coefficients<N>& piece, int station) const {
    return ValueAt(piece, grid_.DistanceFrom(leftFrom_, station));
  }

  /// The curve at all stations.
  std::vector<double> Values() const {
    std::vector<double> values(left_.size());
    Coefficients<N> sum{};
    for (int i = grid_.last; i >= 0; --i) {
      AddTo(sum, left_[Index(i)]);
      values[Index(i)] = ValueAt(sum, grid_.DistanceFrom(leftFrom_, i));
    }
    sum = {};
    for (int i = 0; i <= grid_.last; ++i) {
      AddTo(sum, right_[Index(i)]);
      values[Index(i)] += ValueAt(sum, grid_.DistanceFrom(rightFrom_, i));
    }
    for (const Level& level : levels_) {
      const int last = std::min(level.last, grid_.last);
      for (int i = std::max(level.first, 0); i <= last; ++i) values[Index(i)] += level.value;
    }
    return values;
  }

 private:
  struct Level {
    int first, last;
    double value;
  };

  static std::size_t Index(int station) { return static_cast<std::size_t>(station); }

  StationGrid grid_;
  BeamEnd leftFrom_, rightFrom_;
  std::vector<Coefficients<N>> left_;   // at the last station that they reach
  std::vector<Coefficients<N>> right_;  // at the first one
  std::vector<Level> levels_;
};

}  // namespace lignara
