#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "desktop/session/control_kinds.h"

class QAction;
class QMainWindow;
class QWidget;

namespace lignara {

/// The caption by which a script names a widget; empty for one without.
QString CaptionOf(const QWidget* widget);

/// The captions of the panels around a widget and its own, from the window inward. Empty for a
/// widget without a caption, such as the scroll bars inside a list: the panel around it is not its
/// name.
QStringList FullPath(const QWidget* widget);

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

/// The captions of panels that may stand before a control's own, the fewest first: none, one of
/// them, two of them, and so on, each with its own.
std::vector<QStringList> PathsTo(const QStringList& fullPath);

/// The fewest captions by which `FindControl` finds a widget; empty where none do.
QStringList FewestCaptions(QMainWindow* window, const QWidget* widget,
                           const std::vector<Kinds>& stages);

/// The menu item that a path of captions names, from the menu bar on. Null when there is none.
QAction* FindMenuItem(QMainWindow* window, const QStringList& path);

/// The place of a widget's kind; the number of kinds when it is of none.
std::size_t KindOf(const QWidget* widget, const Kinds& kinds);

}  // namespace lignara
