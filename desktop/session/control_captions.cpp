#include "desktop/session/control_captions.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <algorithm>

#include "desktop/kit/screen_readers.h"
#include "desktop/kit/text.h"

namespace lignara {

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

}  // namespace lignara
