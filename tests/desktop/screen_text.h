#pragma once

#include <QString>
#include <QStringList>

namespace lignara {

class DesktopPlatform;

/// All that the open windows show, in words: windows that show the same hold the same records.
QStringList ScreenText(const DesktopPlatform& platform);

}  // namespace lignara
