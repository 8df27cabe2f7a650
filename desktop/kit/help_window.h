#pragma once

#include <QString>

namespace lignara {

class ToolWindow;

/// Shows a help document in the help window, at a section.
void ShowHelpDocument(ToolWindow* helpWindow, const QString& path, const QString& section);

}  // namespace lignara
