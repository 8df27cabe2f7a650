#include "app/clip.h"

#include <algorithm>

namespace lignara {

bool Clip(double start, double delta, double low, double high, double& from, double& to) {
  if (delta == 0) return start >= low && start <= high;
  const double a = (low - start) / delta, b = (high - start) / delta;
  from = std::max(from, std::min(a, b));
  to = std::min(to, std::max(a, b));
  return from <= to;
}

}  // namespace lignara
