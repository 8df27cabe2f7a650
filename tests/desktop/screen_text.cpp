#include "tests/desktop/screen_text.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTableWidget>

#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/picture_widget.h"
#include "desktop/kit/tool_window.h"
#include "desktop/session/control_captions.h"
#include "desktop/session/control_finder.h"
#include "desktop/session/printed_shapes.h"

namespace lignara {
namespace {

QString ListText(const QListWidget* list) {
  QString text = QString("list %1:").arg(ChosenRow(list));
  for (int row = 0; row < list->count(); ++row) text += " " + list->item(row)->text() + ";";
  return text;
}

QString TableText(const QTableWidget* table) {
  QString text = "table";
  for (int row = 0; row < table->rowCount(); ++row) {
    for (int column = 0; column < table->columnCount(); ++column) {
      const QTableWidgetItem* item = table->item(row, column);
      text += "; " + (item == nullptr ? QString() : item->text());
    }
  }
  return text;
}

QString ContentOf(const QWidget* widget) {
  if (const auto* field = qobject_cast<const QLineEdit*>(widget)) return "field " + field->text();
  if (const auto* label = qobject_cast<const QLabel*>(widget)) return "label " + label->text();
  if (const auto* list = qobject_cast<const QListWidget*>(widget)) return ListText(list);
  if (const auto* table = qobject_cast<const QTableWidget*>(widget)) return TableText(table);
  if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
    return QString("button %1").arg(button->isChecked());
  }
  if (const auto* bar = qobject_cast<const QScrollBar*>(widget)) {
    return QString("bar %1").arg(bar->value());
  }
  if (qobject_cast<const QGroupBox*>(widget) != nullptr) return "panel";
  const auto* picture = dynamic_cast<const Picture*>(widget);
  if (picture == nullptr) return QString();
  QString shapes = "picture";
  PrintShapes(picture->drawing(), [&shapes](const QString& line) { shapes += "; " + line; });
  return shapes;
}

/// Hidden by the program: a widget that was made a moment ago comes up with the next events.
bool IsHidden(const QWidget* widget) {
  return widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
}

}  // namespace

QStringList ScreenText(const DesktopPlatform& platform) {
  QStringList texts;
  for (const QString& name : platform.OpenWindows()) {
    ToolWindow* window = platform.FindWindow(name);
    window->MakeAllPanels();
    texts << "window " + name + " " + window->windowTitle();
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
      if (widget->window() != window || FullPath(widget).isEmpty()) continue;
      const QString content = ContentOf(widget);
      if (content.isEmpty()) continue;
      texts << name + " " + FullPath(widget).join('/') +
                   (IsHidden(widget) ? " hidden " : " shown ") +
                   (widget->isEnabled() ? "" : "disabled ") + content;
    }
  }
  return texts;
}

}  // namespace lignara
