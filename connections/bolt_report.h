#pragma once

#include "app/report.h"
#include "connections/bolt_window.h"

namespace lignara {

/// What a report of the window tells.
enum class BoltReportContent { Tension, Shear, Both };

/// The report of the window as it stands: inputs as they are typed, sizes and options as they are
/// chosen now, results as they are shown. Paper has three blank lines ahead (`printed`).
Report BoltReport(const BoltWindow& window, BoltReportContent content, bool printed);

}  // namespace lignara
