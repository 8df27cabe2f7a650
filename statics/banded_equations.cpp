#include "statics/banded_equations.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace lignara {
namespace {

/// Pivots of equations with coefficients of about 1 that are rounding and nothing else.
constexpr double kNoPivot = 1e-12;

}  // namespace

BandedEquations::BandedEquations(std::size_t size, std::size_t below, std::size_t above)
    : size_(size),
      below_(below),
      fill_(below + above),
      depth_(2 * below + above + 1),
      columns_(size * depth_),
      pivots_(size) {}

std::size_t BandedEquations::LastRow(std::size_t column) const {
  return std::min(size_ - 1, column + below_);
}

std::size_t BandedEquations::LastColumn(std::size_t row) const {
  return std::min(size_ - 1, row + fill_);
}

void BandedEquations::TakeLargestPivot(std::size_t step) {
  std::size_t largest = step;
  for (std::size_t row = step + 1; row <= LastRow(step); ++row) {
    if (std::abs((*this)(row, step)) > std::abs((*this)(largest, step))) largest = row;
  }
  pivots_[step] = largest;
  if (largest == step) return;
  for (std::size_t column = step; column <= LastColumn(step); ++column) {
    std::swap((*this)(step, column), (*this)(largest, column));
  }
}

void BandedEquations::EliminateBelow(std::size_t step) {
  const std::size_t count = LastRow(step) - step;
  double* factors = &(*this)(step, step) + 1;
  const double pivot = (*this)(step, step);
  for (std::size_t i = 0; i < count; ++i) factors[i] /= pivot;
  for (std::size_t column = step + 1; column <= LastColumn(step); ++column) {
    double* entries = &(*this)(step, column);
    const double upper = entries[0];
    if (upper == 0) continue;
    for (std::size_t i = 0; i < count; ++i) entries[i + 1] -= factors[i] * upper;
  }
}

std::size_t BandedEquations::Factor() {
  std::size_t undetermined = 0;
  for (std::size_t step = 0; step < size_; ++step) {
    TakeLargestPivot(step);
    double& pivot = (*this)(step, step);
    if (std::abs(pivot) < kNoPivot) {
      ++undetermined;
      std::fill_n(&pivot, LastRow(step) - step + 1, 0.0);
      pivot = 1;
    }
    EliminateBelow(step);
  }
  return undetermined;
}

void BandedEquations::Solve(std::vector<double>& right) const {
  const auto column = [this](std::size_t at) { return &columns_[at * depth_ + fill_]; };
  for (std::size_t step = 0; step < size_; ++step) {
    std::swap(right[step], right[pivots_[step]]);
    const double* factors = column(step);
    for (std::size_t i = 1; i <= LastRow(step) - step; ++i)
      right[step + i] -= factors[i] * right[step];
  }
  for (std::size_t step = size_; step-- > 0;) {
    const double* entries = column(step);
    right[step] /= entries[0];
    const std::size_t above = std::min(step, fill_);
    for (std::size_t i = 1; i <= above; ++i) right[step - i] -= *(entries - i) * right[step];
  }
}

}  // namespace lignara
