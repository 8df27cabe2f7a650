#pragma once

#include <QIcon>

namespace lignara {

/// The icon of the program, in all sizes that desktops ask for.
QIcon ProgramIcon();

}  // namespace lignara
