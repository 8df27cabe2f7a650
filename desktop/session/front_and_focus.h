#pragma once

#include <QString>
#include <QStringList>

#include "desktop/session/control_kinds.h"

namespace lignara {

class DesktopPlatform;

/// Where a user is: the window in front and its control with the focus, by their names, since both
/// are made anew when a session is played.
struct UserPlace {
  QString window;
  QStringList control;  ///< empty where it has no name
  Kinds kinds;          ///< among which the name is its own
};

UserPlace PlaceOfUser(const DesktopPlatform& platform);

/// Brings the window to the front again, and its control into the focus; leaves out what is not
/// there. A field that acts when the user comes into it is left alone: nobody came.
void LeadBack(const UserPlace& place, DesktopPlatform& platform);

}  // namespace lignara
