#pragma once

#include <cstddef>
#include <vector>

#include "app/stored_number.h"

namespace lignara {

/// An array of stored numbers with the elements 0 to its upper bound. An index outside is not an
/// accident: it leads to the cell whose use is a fault, and the statement stores nothing.
template <typename T>
class BoundedArray {
 public:
  BoundedArray() = default;
  explicit BoundedArray(int upper) { Allocate(upper); }

  /// Makes the array anew with the elements 0..upper, all zero; none when upper is negative.
  void Allocate(int upper) {
    cells_.assign(upper < 0 ? 0 : static_cast<std::size_t>(upper) + 1, Stored<T>());
  }

  /// -1 for an array without elements.
  int upper() const { return static_cast<int>(cells_.size()) - 1; }

  Stored<T>& operator[](int index) {
    return Has(index) ? cells_[static_cast<std::size_t>(index)] : Stored<T>::Nowhere();
  }
  const Stored<T>& operator[](int index) const {
    return Has(index) ? cells_[static_cast<std::size_t>(index)] : Stored<T>::Nowhere();
  }

 private:
  bool Has(int index) const { return index >= 0 && index <= upper(); }

  std::vector<Stored<T>> cells_;
};

using Float32Array = BoundedArray<float>;
using Float64Array = BoundedArray<double>;
using Int16Array = BoundedArray<std::int16_t>;

}  // namespace lignara
