#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "desktop/session/control_kinds.h"

class QAction;
class QMainWindow;
class QWidget;

namespace lignara {

/// A control that bears the caption asked for.
struct Candidate {
  QWidget* widget;
  QStringList fullPath;
  std::size_t kind;  ///< its place among the kinds asked for
};

/// Of candidates with the last caption of a path, the one that the path names: what it names in
/// full wins over what stands deeper inside panels, and then the preferred kind. Null where there
/// is none; sets `several` where there is more than one.
QWidget* Decide(const QStringList& path, const std::vector<Candidate>& candidates, bool& several);

/// The control that a path of captions names: its own caption last, before it, where needed, those
/// of panels around it. `stages` are tried in order; the first in which something is named decides.
/// Throws ScriptError when there is none, or more than one.
QWidget* FindControl(QMainWindow* window, const QStringList& path,
                     const std::vector<Kinds>& stages);

/// The menu item that a path of captions names, from the menu bar on. Null when there is none.
QAction* FindMenuItem(QMainWindow* window, const QStringList& path);

/// The captions that lead to an item from a menu bar on; empty where it is not in there.
QStringList MenuPath(const QList<QAction*>& actions, const QAction* item);

}  // namespace lignara
