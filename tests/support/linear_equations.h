#pragma once

#include <cstddef>
#include <vector>

namespace lignara {

/// A square system of linear equations, for checks of the program in tests.
class LinearEquations {
 public:
  explicit LinearEquations(std::size_t size) : size_(size), matrix_(size * size), right_(size) {}

  double& matrix(std::size_t row, std::size_t column) { return matrix_[row * size_ + column]; }
  double& right(std::size_t row) { return right_[row]; }

  /// Makes an unknown zero.
  void Hold(std::size_t unknown);

  /// Gauss elimination with row exchange. Throws where the system has no single solution.
  std::vector<double> Solve();

 private:
  void Eliminate(std::size_t column);

  std::size_t size_;
  std::vector<double> matrix_;
  std::vector<double> right_;
};

}  // namespace lignara
