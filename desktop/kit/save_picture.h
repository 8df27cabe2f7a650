#pragma once

namespace lignara {

class DesktopPlatform;
class Picture;

/// Lets the user save a picture as a PNG file, from its context menu.
void LetUserSave(Picture* picture, DesktopPlatform& platform);

}  // namespace lignara
