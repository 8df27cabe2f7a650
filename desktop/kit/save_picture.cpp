#include "desktop/kit/save_picture.h"

#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/picture.h"
#include "desktop/kit/text.h"

namespace lignara {

void LetUserSave(Picture* picture, DesktopPlatform& platform) {
  picture->OnSave([picture, &platform] {
    const auto path = platform.ChooseSaveFile("PNG(*.png)|*.png|");
    if (!path) return;
    if (picture->SavePng(ToQt(*path))) {
      platform.ShowNote("Saved to " + *path);
    } else {
      platform.ShowMessage({"Cannot write " + *path});
    }
  });
}

}  // namespace lignara
