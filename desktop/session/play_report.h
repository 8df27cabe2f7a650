#pragma once

#include <QStringList>

#include "desktop/session/session_player.h"

class QWidget;

namespace lignara {

/// What is told of a play in one text, a line each; empty where there is nothing to tell.
QString PlayAsText(const SessionPlay& play);

/// How a play ended, in a sentence or two. `name` is the file of its lines.
QString HowItEnded(const SessionPlay& play, const QString& name);

/// Lines for the eye: equal ones are one, with their number behind it.
QStringList Folded(const QStringList& lines);

/// Shows how a play ended, and all that was said and left out, as a list that can be scrolled and
/// copied.
void ShowPlay(const SessionPlay& play, const QString& name, const QString& title, QWidget* parent);

}  // namespace lignara
