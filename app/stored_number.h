#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "app/fault.h"

namespace lignara {

template <typename T>
class Stored;

/// The value of an expression on its way to a stored number: a 64-bit value, or the first fault
/// met while it was worked out. Formulas read as on paper; a fault goes through all that follows,
/// so the statement that stores the result can refuse it.
class Number {
 public:
  constexpr Number() = default;
  template <typename T>
  requires std::is_arithmetic_v<T>
  constexpr Number(T value)  // NOLINT: formulas mix plain and stored numbers
      : Number(Checked(static_cast<double>(value))) {}
  template <typename T>
  Number(const Stored<T>& stored);  // NOLINT: formulas mix plain and stored numbers

  static constexpr Number Faulted(Fault fault) {
    Number n;
    n.fault_ = fault;
    return n;
  }

  /// The value; 0 when the expression met a fault.
  constexpr double value() const { return value_; }
  constexpr Fault fault() const { return fault_; }

  /// A result that is too large for 64 bits becomes an overflow.
  static constexpr Number Checked(double result) {
    Number n;
    if (result - result != 0.0) {
      n.fault_ = Fault::Overflow;
    } else {
      n.value_ = result;
    }
    return n;
  }

 private:
  double value_ = 0.0;
  Fault fault_ = Fault::None;
};

/// The first fault of two operands, in reading order.
constexpr Fault FirstFault(Number a, Number b) {
  return a.fault() != Fault::None ? a.fault() : b.fault();
}

inline Number operator+(Number a, Number b) {
  const Fault fault = FirstFault(a, b);
  return fault != Fault::None ? Number::Faulted(fault) : Number::Checked(a.value() + b.value());
}

inline Number operator-(Number a, Number b) {
  const Fault fault = FirstFault(a, b);
  return fault != Fault::None ? Number::Faulted(fault) : Number::Checked(a.value() - b.value());
}

inline Number operator*(Number a, Number b) {
  const Fault fault = FirstFault(a, b);
  return fault != Fault::None ? Number::Faulted(fault) : Number::Checked(a.value() * b.value());
}

inline Number operator/(Number a, Number b) {
  const Fault fault = FirstFault(a, b);
  if (fault != Fault::None) return Number::Faulted(fault);
  if (b.value() == 0.0) return Number::Faulted(Fault::DivisionByZero);
  return Number::Checked(a.value() / b.value());
}

inline Number operator-(Number a) { return Number(0.0) - a; }

// Comparisons of a faulted expression are all false, so that "not above 0" refuses it too.
inline bool operator>(Number a, Number b) {
  return FirstFault(a, b) == Fault::None && a.value() > b.value();
}
inline bool operator<(Number a, Number b) { return b > a; }
inline bool operator>=(Number a, Number b) {
  return FirstFault(a, b) == Fault::None && a.value() >= b.value();
}
inline bool operator<=(Number a, Number b) { return b >= a; }
inline bool operator==(Number a, Number b) {
  return FirstFault(a, b) == Fault::None && a.value() == b.value();
}

inline Number Sqrt(Number x) {
  if (x.fault() == Fault::None && x.value() < 0.0) return Number::Faulted(Fault::NoRealResult);
  return x.fault() != Fault::None ? x : Number(std::sqrt(x.value()));
}
inline Number Square(Number x) { return x * x; }
inline Number Abs(Number x) { return x.fault() != Fault::None ? x : Number(std::fabs(x.value())); }
inline Number Sin(Number x) { return x.fault() != Fault::None ? x : Number(std::sin(x.value())); }
inline Number Cos(Number x) { return x.fault() != Fault::None ? x : Number(std::cos(x.value())); }
inline Number Tan(Number x) { return x.fault() != Fault::None ? x : Number(std::tan(x.value())); }
inline Number Atan(Number x) { return x.fault() != Fault::None ? x : Number(std::atan(x.value())); }

/// Rounds to the nearest whole number, ties to the even one.
inline Number RoundHalfEven(Number x) {
  return x.fault() != Fault::None ? x : Number(std::nearbyint(x.value()));
}

/// The largest whole number not above x.
inline Number Floor(Number x) {
  return x.fault() != Fault::None ? x : Number(std::floor(x.value()));
}

/// A number kept in a record or an array: 32- or 64-bit float, or 16- or 32-bit integer.
///
/// Assigning an expression rounds it to the width (integers: nearest, ties to even). An expression
/// that met a fault or does not fit is reported once and stores nothing.
template <typename T>
class Stored {
 public:
  Stored() = default;
  Stored(const Stored& other) { *this = Number(other); }
  Stored(Number expression) { *this = expression; }  // NOLINT: initial values in records
  template <typename A>
  requires std::is_arithmetic_v<A> Stored(A value)
      : Stored(Number(value)) {}  // NOLINT: initial values in records
  ~Stored() = default;

  Stored& operator=(const Stored& other) { return *this = Number(other); }
  template <typename A>
  requires std::is_arithmetic_v<A> Stored& operator=(A value) { return *this = Number(value); }

  Stored& operator=(Number expression) {
    if (this == &Nowhere()) {
      ReportFault(Fault::IndexOutOfBounds);
    } else if (expression.fault() != Fault::None) {
      ReportFault(expression.fault());
    } else {
      Store(expression.value());
    }
    return *this;
  }

  Stored& operator+=(Number term) { return *this = Number(*this) + term; }
  Stored& operator-=(Number term) { return *this = Number(*this) - term; }

  /// The number as stored.
  T value() const { return value_; }

  /// The cell that stands for all elements outside of an array: reading it is a fault, and so is
  /// storing into it.
  static Stored& Nowhere() {
    static Stored cell{Uninitialised{}};
    return cell;
  }

 private:
  struct Uninitialised {};
  explicit Stored(Uninitialised) {}

  void Store(double wide) {
    if constexpr (std::is_integral_v<T>) {
      const double whole = std::nearbyint(wide);
      if (whole < std::numeric_limits<T>::min() || whole > std::numeric_limits<T>::max()) {
        ReportFault(Fault::Overflow);
        return;
      }
      value_ = static_cast<T>(whole);
    } else {
      // The cast of a number too large for the type is undefined, so look before.
      if (std::fabs(wide) > kLargest) {
        ReportFault(Fault::Overflow);
        return;
      }
      value_ = static_cast<T>(wide);
    }
  }

  /// The largest 64-bit number that still rounds to a finite T.
  static constexpr double kLargest =
      sizeof(T) == sizeof(float) ? 3.4028235677973362e38 : std::numeric_limits<double>::max();

  T value_ = T();
};

template <typename T>
Number::Number(const Stored<T>& stored)
    : Number(&stored == &Stored<T>::Nowhere() ? Faulted(Fault::IndexOutOfBounds)
                                              : Checked(static_cast<double>(stored.value()))) {}

using Float32 = Stored<float>;
using Float64 = Stored<double>;
using Int16 = Stored<std::int16_t>;
using Int32 = Stored<std::int32_t>;

}  // namespace lignara
