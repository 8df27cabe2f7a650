#pragma once

#include <QStringList>

namespace lignara {

class ToolWindow;

/// Hands the window "Repeat With..." the session that it repeats, which takes the place of the one
/// before.
void RepeatSession(ToolWindow* window, const QStringList& lines);

}  // namespace lignara
