#pragma once

#include <array>

namespace lignara {

/// A threaded rod in tension.
struct RodSize {
  const char* size;
  double diameter;             ///< in
  double area;                 ///< tensile area at the thread, sq in
  const char* plateThickness;  ///< of the smallest bearing plate, in
};

/// The rods of the tension section, by rising diameter. The areas are those of coarse threads.
extern const std::array<RodSize, 16> RodTable;

}  // namespace lignara
