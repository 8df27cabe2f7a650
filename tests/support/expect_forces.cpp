#include "tests/support/expect_forces.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lignara {

void ExpectForces(const Float32Array& forces, const std::vector<double>& fromElement1) {
  for (std::size_t i = 0; i < fromElement1.size(); ++i) {
    const double expected = fromElement1[i];
    // The right angle of four decimals moves a force in its fifth digit.
    EXPECT_NEAR(forces[static_cast<int>(i) + 1].value(), expected,
                0.01 + 2e-5 * std::fabs(expected))
        << "element " << i + 1;
  }
}

}  // namespace lignara
