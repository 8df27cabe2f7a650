#include "desktop/session/control_finder.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>

#include "desktop/kit/text.h"
#include "desktop/session/control_captions.h"
#include "desktop/session/script_error.h"
#include "desktop/session/script_line.h"

namespace lignara {
namespace {

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

/// What a path names, and whether in full.
struct Found {
  QWidget* widget;
  bool inFull;
  std::size_t kind;
};

bool IsNearer(const Found& a, const Found& b) {
  return a.inFull != b.inFull ? a.inFull : a.kind < b.kind;
}

std::vector<Candidate> Search(QMainWindow* window, const QString& caption, const Kinds& kinds) {
  std::vector<Candidate> found;
  for (QWidget* widget : window->findChildren<QWidget*>()) {
    const std::size_t kind = KindOf(widget, kinds);
    if (kind == kinds.size() || widget->window() != window || CaptionOf(widget) != caption) {
      continue;
    }
    found.push_back({widget, FullPath(widget), kind});
  }
  return found;
}

}  // namespace

QWidget* Decide(const QStringList& path, const std::vector<Candidate>& candidates, bool& several) {
  std::vector<Found> found;
  for (const Candidate& candidate : candidates) {
    if (!Names(path, candidate.fullPath)) continue;
    found.push_back({candidate.widget, candidate.fullPath == path, candidate.kind});
  }
  several = false;
  if (found.empty()) return nullptr;
  std::stable_sort(found.begin(), found.end(), IsNearer);
  several = found.size() > 1 && !IsNearer(found[0], found[1]);
  return several ? nullptr : found[0].widget;
}

QWidget* FindControl(QMainWindow* window, const QStringList& path,
                     const std::vector<Kinds>& stages) {
  const QStringList plain = PlainPath(path);
  for (const Kinds& kinds : stages) {
    bool several = false;
    QWidget* control = Decide(plain, Search(window, plain.last(), kinds), several);
    if (several) throw ScriptError{"more than one control is named" + PathWords(path)};
    if (control != nullptr) return control;
  }
  throw ScriptError{"no control is named" + PathWords(path)};
}

QStringList MenuPath(const QList<QAction*>& actions, const QAction* item) {
  for (const QAction* action : actions) {
    const QString caption = PlainCaption(action->text());
    if (action == item) return {caption};
    if (action->menu() == nullptr) continue;
    const QStringList inside = MenuPath(action->menu()->actions(), item);
    if (!inside.isEmpty()) return QStringList(caption) + inside;
  }
  return {};
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
