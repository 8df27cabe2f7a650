#include "statics/polynomial.h"

#include <algorithm>
#include <cmath>

namespace lignara {
namespace {

/// Halves a range whose ends have different signs until it has no middle any more.
double Bisect(const Polynomial& polynomial, double low, double high) {
  const bool rising = polynomial.At(low) < 0;
  for (;;) {
    const double middle = low + (high - low) / 2;
    if (middle <= low || middle >= high) return middle;
    ((polynomial.At(middle) < 0) == rising ? low : high) = middle;
  }
}

}  // namespace

Polynomial Polynomial::Derivative() const {
  Polynomial slope;
  for (std::size_t k = 1; k < kTerms; ++k) slope.c[k - 1] = static_cast<double>(k) * c[k];
  return slope;
}

bool Polynomial::IsConstant() const {
  return std::all_of(c.begin() + 1, c.end(), [](double term) { return term == 0; });
}

// Between two turning points a polynomial rises or falls all the way, so that it has one zero there
// at most; its turning points are the zeros of its derivative.
Places SignChanges(const Polynomial& polynomial, double length) {
  Places zeros;
  if (polynomial.IsConstant()) return zeros;
  Places turns = SignChanges(polynomial.Derivative(), length);
  turns.Add(length);
  double low = 0;
  for (const double high : turns) {
    if (polynomial.At(low) * polynomial.At(high) < 0) zeros.Add(Bisect(polynomial, low, high));
    low = high;
  }
  return zeros;
}

}  // namespace lignara
