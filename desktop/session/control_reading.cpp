#include "desktop/session/control_reading.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTableWidget>
#include <algorithm>

#include "app/window_names.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/text.h"
#include "desktop/kit/tool_window.h"
#include "desktop/session/control_finder.h"
#include "desktop/session/control_names.h"
#include "desktop/session/script_error.h"

namespace lignara {
namespace {

bool IsLabel(const QWidget* widget) { return IsAny<QLabel>(widget); }
bool IsNamedLabel(const QWidget* widget) {
  return IsLabel(widget) && !widget->accessibleName().isEmpty();
}
bool IsResult(const QWidget* widget) {
  return IsNamedLabel(widget) || (IsAny<QLineEdit>(widget) && !IsTypedInto(widget));
}

/// Where texts and lists are looked for, in this order.
const std::vector<Kinds>& TextStages() {
  static const std::vector<Kinds> stages = {
      {Visible(IsAny<QLineEdit>)}, {Visible(IsNamedLabel)}, {Visible(IsLabel)}};
  return stages;
}

const std::vector<Kinds>& ListStages() {
  static const std::vector<Kinds> stages = {AllVisible({IsList})};
  return stages;
}

/// What is read in a field or a label. The `&` before the key of the field beside it is not seen.
QString TextOf(const QWidget* widget) {
  if (const auto* field = qobject_cast<const QLineEdit*>(widget)) return field->text();
  const auto* label = static_cast<const QLabel*>(widget);
  return label->buddy() != nullptr ? WithoutKeyMarks(label->text()) : label->text();
}

RowTexts TableRows(const QTableWidget* table) {
  RowTexts rows;
  for (int row = 0; row < table->rowCount(); ++row) {
    QStringList texts;
    for (int column = 0; column < table->columnCount(); ++column) {
      const QTableWidgetItem* item = table->item(row, column);
      texts << (item == nullptr ? QString() : item->text());
    }
    rows << texts;
  }
  return rows;
}

RowTexts RowsOf(const QWidget* widget) {
  if (const auto* table = qobject_cast<const QTableWidget*>(widget)) return TableRows(table);
  const auto* list = static_cast<const QListWidget*>(widget);
  RowTexts rows;
  for (int row = 0; row < list->count(); ++row) rows << QStringList(list->item(row)->text());
  return rows;
}

bool TellsNothing(const RowTexts& rows) {
  return std::all_of(rows.begin(), rows.end(),
                     [](const QStringList& row) { return row.join("").isEmpty(); });
}

QStringList ColumnsOf(const QWidget* widget) {
  const auto* table = qobject_cast<const QTableWidget*>(widget);
  if (table == nullptr) return {};
  QStringList columns;
  for (int column = 0; column < table->columnCount(); ++column) {
    columns << PlainCaption(table->model()->headerData(column, Qt::Horizontal).toString());
  }
  return columns;
}

/// Adds what can be read in the widgets of one kind in a window.
void AddReadings(ToolWindow* window, const WidgetFilter& kind, std::vector<Reading>& readings) {
  for (const QWidget* widget : window->findChildren<QWidget*>()) {
    if (widget->window() != window || !widget->isVisible() || !kind(widget)) continue;
    const bool rows = IsList(widget);
    if (TellsNothing(rows ? RowsOf(widget) : RowTexts{{TextOf(widget)}})) continue;
    const QStringList path = FewestCaptions(window, widget, rows ? ListStages() : TextStages());
    if (!path.isEmpty()) readings.push_back({window->name(), path, rows, ColumnsOf(widget)});
  }
}

}  // namespace

QString ReadText(QMainWindow* window, const QStringList& path) {
  if (path == QStringList("title")) return window->windowTitle();
  return TextOf(FindControl(window, path, TextStages()));
}

RowTexts ReadRows(QMainWindow* window, const QStringList& path) {
  return RowsOf(FindControl(window, path, ListStages()));
}

RowTexts Read(const Reading& reading, const DesktopPlatform& platform) {
  ToolWindow* window = platform.FindWindow(reading.window);
  if (window == nullptr) throw ScriptError{"the window " + reading.window + " is not open"};
  return reading.rows ? ReadRows(window, reading.path) : RowTexts{{ReadText(window, reading.path)}};
}

std::vector<Reading> ReadingsIn(const DesktopPlatform& platform) {
  static const QStringList none = {window_name::kLauncher, window_name::kHelp, window_name::kAbout,
                                   window_name::kRepeat};
  std::vector<Reading> readings;
  QStringList names = platform.OpenWindows();
  std::reverse(names.begin(), names.end());
  for (const QString& name : names) {
    if (none.contains(name)) continue;
    for (const WidgetFilter& kind :
         {WidgetFilter(IsList), WidgetFilter(IsResult), WidgetFilter(IsTypedInto)}) {
      AddReadings(platform.FindWindow(name), kind, readings);
    }
  }
  return readings;
}

}  // namespace lignara
