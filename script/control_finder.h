#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

class QAction;
class QMainWindow;
class QWidget;

namespace lignara {

/// The caption by which a script names a widget; empty for one without.
QString CaptionOf(const QWidget* widget);

/// A choice among widgets, such as "lists".
using WidgetFilter = std::function<bool(const QWidget*)>;

/// Kinds of widgets, the preferred first.
using Kinds = std::vector<WidgetFilter>;

/// The control that a path of captions names: its own caption last, before it, where needed, those
/// of panels around it. `stages` are tried in order; the first in which something is named decides.
/// There, what the captions name in full wins over what stands deeper inside panels, and then the
/// preferred kind. Throws ScriptError when there is none, or more than one.
QWidget* FindControl(QMainWindow* window, const QStringList& path,
                     const std::vector<Kinds>& stages);

/// The menu item that a path of captions names, from the menu bar on. Null when there is none.
QAction* FindMenuItem(QMainWindow* window, const QStringList& path);

}  // namespace lignara
