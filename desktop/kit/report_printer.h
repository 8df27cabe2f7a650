#pragma once

namespace lignara {

class DesktopPlatform;
class Report;

/// Sends a report to the default printer. Where the system has none, the user is asked for a PDF
/// file instead; cancelling prints nothing.
void PrintOnPaper(const Report& report, DesktopPlatform& platform);

}  // namespace lignara
