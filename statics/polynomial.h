#pragma once

#include <array>
#include <cstddef>

namespace lignara {

/// A polynomial of the fifth degree at most: c[0] + c[1] u + c[2] u^2 ...
struct Polynomial {
  static constexpr std::size_t kTerms = 6;
  std::array<double, kTerms> c{};

  double At(double u) const {
    double value = c[kTerms - 1];
    for (std::size_t k = kTerms - 1; k-- > 0;) value = value * u + c[k];
    return value;
  }
  Polynomial Derivative() const;
  bool IsConstant() const;
};

/// A few places in ascending order.
struct Places {
  std::array<double, Polynomial::kTerms> at{};
  std::size_t count = 0;

  void Add(double place) { at[count++] = place; }
  const double* begin() const { return at.data(); }
  const double* end() const { return at.data() + count; }
};

/// Where a polynomial changes its sign between 0 and `length`, to the last digit. A place where it
/// touches zero and turns back is none.
Places SignChanges(const Polynomial& polynomial, double length);

}  // namespace lignara
