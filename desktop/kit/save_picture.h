#pragma once

#include <QString>

namespace lignara {

class DesktopPlatform;
class Picture;

/// Writes a picture as PNG, with its legend. False when the file cannot be written.
bool SavePng(Picture& picture, const QString& path);

/// Lets the user save a picture as a PNG file, from its context menu.
void LetUserSave(Picture* picture, DesktopPlatform& platform);

}  // namespace lignara
