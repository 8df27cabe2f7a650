#include "desktop/session/control_finder.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>

#include "desktop/kit/screen_readers.h"
#include "desktop/kit/text.h"
#include "desktop/session/script_error.h"

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

QString QuotedPath(const QStringList& path) {
  QString quoted;
  for (const QString& caption : path) quoted += " " + Quoted(caption);
  return quoted;
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

QStringList FullPath(const QWidget* widget) {
  QStringList path;
  if (CaptionOf(widget).isEmpty()) return path;
  for (const QWidget* at = widget; at != nullptr && !at->isWindow(); at = at->parentWidget()) {
    const bool names = at == widget || qobject_cast<const QGroupBox*>(at) != nullptr;
    if (names && !CaptionOf(at).isEmpty()) path.prepend(CaptionOf(at));
  }
  return path;
}

std::size_t KindOf(const QWidget* widget, const Kinds& kinds) {
  std::size_t kind = 0;
  while (kind < kinds.size() && !kinds[kind](widget)) ++kind;
  return kind;
}

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
    if (several) throw ScriptError{"more than one control is named" + QuotedPath(path)};
    if (control != nullptr) return control;
  }
  throw ScriptError{"no control is named" + QuotedPath(path)};
}

std::vector<QStringList> PathsTo(const QStringList& fullPath) {
  std::vector<QStringList> paths;
  const qsizetype panels = fullPath.size() - 1;
  for (unsigned mask = 0; mask < (1U << panels); ++mask) {
    QStringList path;
    for (qsizetype i = 0; i < panels; ++i) {
      if ((mask >> i & 1U) != 0) path << fullPath[i];
    }
    paths.push_back(path << fullPath.last());
  }
  std::stable_sort(paths.begin(), paths.end(),
                   [](const QStringList& a, const QStringList& b) { return a.size() < b.size(); });
  return paths;
}

QStringList FewestCaptions(QMainWindow* window, const QWidget* widget,
                           const std::vector<Kinds>& stages) {
  const QStringList fullPath = FullPath(widget);
  if (fullPath.isEmpty()) return {};
  for (const QStringList& path : PathsTo(fullPath)) {
    try {
      if (FindControl(window, path, stages) == widget) return path;
    } catch (const ScriptError&) {
      continue;  // it names several
    }
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
