#pragma once

#include <QString>
#include <functional>

#include "app/drawing.h"

namespace lignara {

/// Takes one line of what a script prints.
using ScriptOutput = std::function<void(const QString& line)>;

/// Prints the shapes of a picture, one a line, in drawing order.
void PrintShapes(const Drawing& drawing, const ScriptOutput& output);

}  // namespace lignara
