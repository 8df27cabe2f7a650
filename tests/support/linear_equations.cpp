#include "tests/support/linear_equations.h"

#include <cmath>
#include <stdexcept>
#include <utility>

namespace lignara {

void LinearEquations::Hold(std::size_t unknown) {
  for (std::size_t i = 0; i < size_; ++i) {
    matrix(unknown, i) = 0;
    matrix(i, unknown) = 0;
  }
  matrix(unknown, unknown) = 1;
  right(unknown) = 0;
}

void LinearEquations::Eliminate(std::size_t column) {
  std::size_t pivot = column;
  for (std::size_t row = column + 1; row < size_; ++row) {
    if (std::fabs(matrix(row, column)) > std::fabs(matrix(pivot, column))) pivot = row;
  }
  if (std::fabs(matrix(pivot, column)) < 1e-9) throw std::logic_error("the truss is a mechanism");
  for (std::size_t i = 0; i < size_; ++i) std::swap(matrix(column, i), matrix(pivot, i));
  std::swap(right(column), right(pivot));
  for (std::size_t row = column + 1; row < size_; ++row) {
    const double factor = matrix(row, column) / matrix(column, column);
    for (std::size_t i = column; i < size_; ++i) matrix(row, i) -= factor * matrix(column, i);
    right(row) -= factor * right(column);
  }
}

std::vector<double> LinearEquations::Solve() {
  for (std::size_t column = 0; column < size_; ++column) Eliminate(column);
  std::vector<double> solution(size_);
  for (std::size_t row = size_; row-- > 0;) {
    double sum = right(row);
    for (std::size_t i = row + 1; i < size_; ++i) sum -= matrix(row, i) * solution[i];
    solution[row] = sum / matrix(row, row);
  }
  return solution;
}

}  // namespace lignara
