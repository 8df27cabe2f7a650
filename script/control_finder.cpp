#include "script/control_finder.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>

#include "desktop/kit/readers.h"
#include "desktop/kit/text.h"
#include "script/script_error.h"
#include "script/script_line.h"

namespace lignara {
namespace {

/// The captions of the panels around a widget, from the window inward, and its own.
QStringList FullPath(const QWidget* widget, const QString& own) {
  QStringList path = {own};
  for (const QWidget* at = widget->parentWidget(); at != nullptr && !at->isWindow();
       at = at->parentWidget()) {
    if (qobject_cast<const QGroupBox*>(at) == nullptr) continue;
    if (const QString caption = CaptionOf(at); !caption.isEmpty()) path.prepend(caption);
  }
  return path;
}

/// True when `path` names captions of `full` in order, the last of which it shares.
bool Names(const QStringList& path, const QStringList& full) {
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

/// What a path names among the widgets of some kinds.
struct Found {
  QWidget* widget;
  bool inFull;
  std::size_t kind;
};

/// The place of a widget's kind; the number of kinds when it is of none.
std::size_t KindOf(const QWidget* widget, const Kinds& kinds) {
  std::size_t kind = 0;
  while (kind < kinds.size() && !kinds[kind](widget)) ++kind;
  return kind;
}

std::vector<Found> Search(QMainWindow* window, const QStringList& path, const Kinds& kinds) {
  std::vector<Found> found;
  for (QWidget* widget : window->findChildren<QWidget*>()) {
    const std::size_t kind = KindOf(widget, kinds);
    if (widget->window() != window || kind == kinds.size()) continue;
    // A widget without a caption, such as a scroll bar inside a list, has no name: that of the
    // panel around it is not its own.
    const QString own = CaptionOf(widget);
    if (own.isEmpty() || own != path.last()) continue;
    const QStringList full = FullPath(widget, own);
    if (Names(path, full)) found.push_back({widget, full == path, kind});
  }
  return found;
}

bool IsNearer(const Found& a, const Found& b) {
  return a.inFull != b.inFull ? a.inFull : a.kind < b.kind;
}

}  // namespace

QString CaptionOf(const QWidget* widget) {
  if (const QString name = ScriptNameOf(widget); !name.isEmpty()) return name;
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
                     const std::vector<Kinds>& stages) {
  const QStringList plain = PlainPath(path);
  QString shown;
  for (const QString& caption : path) shown += " " + Quoted(caption);
  for (const Kinds& kinds : stages) {
    std::vector<Found> found = Search(window, plain, kinds);
    if (found.empty()) continue;
    std::stable_sort(found.begin(), found.end(), IsNearer);
    if (found.size() == 1 || IsNearer(found[0], found[1])) return found[0].widget;
    throw ScriptError{"more than one control is named" + shown};
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
