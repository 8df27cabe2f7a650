#pragma once

#include "app/report.h"
#include "connections/fastener_window.h"

namespace lignara {

/// The report of the window as it stands, the same on paper and in a file: the values that the kind
/// shows, and its notes.
Report FastenerReport(const FastenerWindow& window);

}  // namespace lignara
