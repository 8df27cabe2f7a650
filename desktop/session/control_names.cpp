#include "desktop/session/control_names.h"

#include <QAbstractButton>
#include <QMainWindow>
#include <algorithm>

#include "desktop/session/control_captions.h"
#include "desktop/session/script_error.h"

namespace lignara {
namespace {

/// What the caption of a widget is worked out from, where that can change.
QString Said(const QWidget* widget) {
  const QString name = widget->accessibleName();
  if (!name.isEmpty()) return name;
  const auto* button = qobject_cast<const QAbstractButton*>(widget);
  return button == nullptr ? QString() : button->text();
}

}  // namespace

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

QStringList ControlNames::ShortestName(QWidget* widget, const Kinds& kinds) {
  const auto isIt = [widget](const Entry& entry) { return entry.widget == widget; };
  if (IsOutOfDate() || std::none_of(controls_.begin(), controls_.end(), isIt)) List();
  const auto entry = std::find_if(controls_.begin(), controls_.end(), isIt);
  if (entry == controls_.end() || Caption(*entry).isEmpty()) return {};
  const std::vector<Candidate> rivals = Rivals(entry->caption, kinds);
  if (rivals.size() == 1) return {entry->caption};
  for (const QStringList& path : PathsTo(FullPath(widget))) {
    bool several = false;
    if (Decide(path, rivals, several) == widget) return path;
  }
  return {};
}

QWidget* ControlNames::AnyButtonBut(const QWidget* other) {
  if (IsOutOfDate()) List();
  for (const Entry& entry : controls_) {
    const bool able = qobject_cast<QAbstractButton*>(entry.widget) != nullptr &&
                      entry.widget->isVisible() && entry.widget->isEnabled();
    if (able && entry.widget != other && !entry.caption.isEmpty()) return entry.widget;
  }
  return nullptr;
}

bool ControlNames::IsOutOfDate() const {
  return controls_.empty() || panelsMade_ != window_->panelsMade();
}

void ControlNames::List() {
  panelsMade_ = window_->panelsMade();
  controls_.clear();
  for (QWidget* widget : window_->findChildren<QWidget*>()) {
    if (!IsControl(widget) || widget->window() != window_) continue;
    controls_.push_back({widget, Said(widget), CaptionOf(widget)});
  }
}

const QString& ControlNames::Caption(Entry& entry) {
  if (QString said = Said(entry.widget); said != entry.said) {
    entry.said = std::move(said);
    entry.caption = CaptionOf(entry.widget);
  }
  return entry.caption;
}

std::vector<Candidate> ControlNames::Rivals(const QString& caption, const Kinds& kinds) {
  std::vector<Candidate> rivals;
  for (Entry& entry : controls_) {
    if (!entry.widget->isVisible() || Caption(entry) != caption) continue;
    const std::size_t kind = KindOf(entry.widget, kinds);
    if (kind != kinds.size()) rivals.push_back({entry.widget, {}, kind});
  }
  if (rivals.size() > 1) {
    for (Candidate& rival : rivals) rival.fullPath = FullPath(rival.widget);
  }
  return rivals;
}

}  // namespace lignara
