#pragma once

#include <cstddef>
#include <string>

#include "app/platform.h"
#include "app/report.h"
#include "plywood/panel.h"
#include "plywood/ply_window.h"

namespace lignara {

/// The report of a panel as it stands; values that are not there yet are empty.
Report PlyReport(const PlyPanelWindow& window, PlyPanel panel);
/// "Print".
void PrintPlyReport(const PlyPanelWindow& window, PlyPanel panel, Platform& platform);
/// "Save Output to Text File".
void SavePlyReport(const PlyPanelWindow& window, PlyPanel panel, Platform& platform);

// The report lines of a description. A key that is not shown has no line.

/// A fixed text.
PlyReportLine SayText(std::string text);
/// The chosen entry between two texts.
PlyReportLine SayKey(std::size_t key, std::string before = "", std::string after = "");
/// The key's caption, " is ", and the chosen entry.
PlyReportLine SayKeyField(std::size_t key);
/// The text that stands for the chosen entry.
PlyReportLine SayInWords(std::size_t key, Texts words);
/// A result between two texts.
PlyReportLine SayResult(std::size_t result, std::string before, std::string after = "");
/// Each result field: its caption, " is ", and its value.
PlyReportLine SayResultFields();
/// The list of lines.
PlyReportLine SayLines();

}  // namespace lignara
