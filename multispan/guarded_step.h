#pragma once

#include <cmath>
#include <cstddef>
#include <limits>
#include <vector>

namespace lignara {

/// What ends a step of the solver: a result that is not finite or does not fit, or an index outside
/// of its list. Nobody is told; the next step goes on with what stands.
struct StepFault {};

/// Runs one step of the solver.
template <typename Step>
void RunStep(const Step& step) {
  try {
    step();
  } catch (const StepFault&) {
  }
}

/// A number of the solver's tables. Storing what T cannot hold ends the step.
template <typename T>
class Guarded {
 public:
  Guarded() = default;
  Guarded(double value) { *this = value; }  // NOLINT: formulas mix plain and guarded numbers

  Guarded& operator=(double value) {
    // Written so that what is no number fails too.
    if (!(std::fabs(value) <= std::numeric_limits<T>::max())) throw StepFault();
    value_ = static_cast<T>(value);
    return *this;
  }
  Guarded& operator+=(double term) { return *this = static_cast<double>(value_) + term; }

  operator double() const { return value_; }  // NOLINT: formulas mix plain and guarded numbers
  T value() const { return value_; }

 private:
  T value_ = 0;
};

/// A list of the solver with the elements 0 to its upper bound. An index outside ends the step.
template <typename T>
class GuardedList {
 public:
  explicit GuardedList(int upper = -1) : cells_(upper < 0 ? 0 : Size(upper)) {}

  int upper() const { return static_cast<int>(cells_.size()) - 1; }

  T& operator[](int index) { return cells_[Checked(index)]; }
  const T& operator[](int index) const { return cells_[Checked(index)]; }

 private:
  static std::size_t Size(int upper) { return static_cast<std::size_t>(upper) + 1; }
  std::size_t Checked(int index) const {
    if (index < 0 || index > upper()) throw StepFault();
    return static_cast<std::size_t>(index);
  }

  std::vector<T> cells_;
};

}  // namespace lignara
