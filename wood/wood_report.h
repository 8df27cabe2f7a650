#pragma once

#include "app/report.h"
#include "wood/wood_data_base_window.h"

namespace lignara {

/// The two forms of the report: the printed one stands one print zone from the left edge, below
/// ten blank lines; the file starts at the first column of its first line.
enum class WoodReportForm { Printed, File };

/// The report of the window as it stands, also where the factor panel was never opened.
Report WoodReport(const WoodDataBaseWindow& window, WoodReportForm form);

}  // namespace lignara
