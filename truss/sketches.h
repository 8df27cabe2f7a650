#pragma once

#include <string_view>

#include "app/drawing.h"

namespace lignara {

/// The bare truss of a type, with its example's number of panels: the picture of the launcher's
/// command. Empty for a keyword that is no type.
Drawing TypePicture(std::string_view trussType);

/// The same with its dimensions: "Total Length", "H" and, for scissors, "H1".
Drawing ExampleSketch(std::string_view trussType);

/// The right triangle of the slope calculator, labelled "Rise" and "Run".
Drawing SlopeSketch();

}  // namespace lignara
