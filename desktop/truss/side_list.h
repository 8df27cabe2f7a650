#pragma once

class QListWidget;

namespace lignara {

/// A list of the side column: it takes its height from the window and leaves the width to the
/// drawing.
QListWidget* MakeSideList(const char* name);

}  // namespace lignara
