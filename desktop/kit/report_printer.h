#pragma once

namespace lignara {

/// What the save dialog of a PDF file offers.
inline constexpr const char* kPdfFilter = "PDF(*.pdf)|*.pdf|";
/// The caption of that dialog.
inline constexpr const char* kPdfCaption = "There is no printer: a PDF file is written";

class DesktopPlatform;
class Report;

/// Sends a report to the default printer. Where the system has none, the user is asked for a PDF
/// file instead; cancelling prints nothing.
void PrintOnPaper(const Report& report, DesktopPlatform& platform);

}  // namespace lignara
