#include "script/control_finder.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include "desktop/text.h"
#include "script/script_error.h"
#include "script/script_line.h"

namespace lignara {
namespace {

/// The captions around a widget and its own, from the window inward. Empty for a widget without a
/// caption, such as the scroll bars inside a list: the panel around it is not its name.
QStringList FullPath(const QWidget* widget) {
  QStringList path;
  if (CaptionOf(widget).isEmpty()) return path;
  for (const QWidget* at = widget; at != nullptr && !at->isWindow(); at = at->parentWidget()) {
    const bool names = at == widget || qobject_cast<const QGroupBox*>(at) != nullptr;
    if (names && !CaptionOf(at).isEmpty()) path.prepend(CaptionOf(at));
  }
  return path;
}

/// True when `path` ends as `full` does and names its other captions in order.
bool Names(const QStringList& path, const QStringList& full) {
  if (path.isEmpty() || full.isEmpty() || path.last() != full.last()) return false;
  qsizetype at = 0;
  for (const QString& caption : full) {
    if (at < path.size() && path[at] == caption) ++at;
  }
  return at == path.size();
}

QStringList PlainPath(const QStringList& path) {
  QStringList plain;
  for (const QString& caption : path) plain << PlainCaption(caption);
  return plain;
}

struct Found {
  std::vector<QWidget*> all;
  std::vector<QWidget*> exact;
};

Found Search(QMainWindow* window, const QStringList& path, const WidgetFilter& filter) {
  Found found;
  for (QWidget* widget : window->findChildren<QWidget*>()) {
    if (widget->window() != window || !filter(widget)) continue;
    const QStringList full = FullPath(widget);
    if (!Names(path, full)) continue;
    found.all.push_back(widget);
    if (full == path) found.exact.push_back(widget);
  }
  return found;
}

}  // namespace

QString CaptionOf(const QWidget* widget) {
  if (!widget->accessibleName().isEmpty()) return PlainCaption(widget->accessibleName());
  if (const auto* panel = qobject_cast<const QGroupBox*>(widget)) {
    return PlainCaption(panel->title());
  }
  if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
    return PlainCaption(button->text());
  }
  if (const auto* label = qobject_cast<const QLabel*>(widget)) {
    return PlainCaption(label->text());
  }
  return QString();
}

QWidget* FindControl(QMainWindow* window, const QStringList& path,
                     const std::vector<WidgetFilter>& tiers) {
  const QStringList plain = PlainPath(path);
  QString shown;
  for (const QString& caption : path) shown += " " + Quoted(caption);
  for (const WidgetFilter& filter : tiers) {
    const Found found = Search(window, plain, filter);
    if (found.exact.size() == 1) return found.exact.front();
    if (found.all.size() == 1) return found.all.front();
    if (!found.all.empty()) throw ScriptError{"more than one control is named" + shown};
  }
  throw ScriptError{"no control is named" + shown};
}

QAction* FindMenuItem(QMainWindow* window, const QStringList& path) {
  QList<QAction*> actions = window->menuBar()->actions();
  QAction* item = nullptr;
  for (const QString& caption : PlainPath(path)) {
    item = nullptr;
    for (QAction* action : actions) {
      if (PlainCaption(action->text()) == caption && action->isVisible()) item = action;
    }
    if (item == nullptr) return nullptr;
    actions = item->menu() != nullptr ? item->menu()->actions() : QList<QAction*>();
  }
  return item;
}

}  // namespace lignara
