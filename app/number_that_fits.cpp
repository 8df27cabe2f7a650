#include "app/number_that_fits.h"

namespace lignara {

std::optional<Float32> NumberThatFits(const Number& number) {
  Float32 stored;
  stored = number;
  // What does not fit leaves the 0, and only numbers above 1 do not fit.
  const bool refused = number.fault() != Fault::None || (stored == 0.0 && Abs(number) > 1.0);
  if (refused) return std::nullopt;
  return stored;
}

}  // namespace lignara
