#pragma once

#include <initializer_list>

class QWidget;

namespace lignara {

/// Lets the Tab key go through these parts of a window in this order; within a part it keeps its
/// order. A part that is shown later has its place already.
void TabThrough(std::initializer_list<QWidget*> parts);

}  // namespace lignara
