#pragma once

#include <cstddef>
#include <vector>

namespace lignara {

/// Linear equations whose coefficients lie in a band about the diagonal, solved by elimination with
/// the largest pivot. Time and memory grow with the number of equations times the band.
class BandedEquations {
 public:
  /// `below` and `above` are the numbers of diagonals under and over the main one that are filled.
  BandedEquations(std::size_t size, std::size_t below, std::size_t above);

  std::size_t size() const { return size_; }

  /// A coefficient inside the band; 0 until it is set.
  double& operator()(std::size_t row, std::size_t column) {
    return columns_[column * depth_ + fill_ + row - column];
  }

  /// Eliminates. An unknown that no equation determines is held at about zero: its equation is then
  /// met only if its right side is zero, too. Returns the number of such unknowns.
  std::size_t Factor();

  /// Turns a right side into the solution, any number of times after `Factor`.
  void Solve(std::vector<double>& right) const;

 private:
  void TakeLargestPivot(std::size_t step);
  void EliminateBelow(std::size_t step);
  std::size_t LastRow(std::size_t column) const;
  std::size_t LastColumn(std::size_t row) const;

  std::size_t size_, below_;
  std::size_t fill_;   ///< diagonals over the main one, those filled by exchanging rows included
  std::size_t depth_;  ///< entries a column
  std::vector<double> columns_;
  std::vector<std::size_t> pivots_;
};

}  // namespace lignara
