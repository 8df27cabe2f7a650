#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <vector>

class QMainWindow;

namespace lignara {

class DesktopPlatform;

/// The rows of a list, a text each, or of a table, a text a column.
using RowTexts = QList<QStringList>;

/// What is read in the visible field or label that a path of captions names; of the path "title"
/// the title of the window. Throws ScriptError where there is none, or more than one.
QString ReadText(QMainWindow* window, const QStringList& path);

/// The rows of the visible list or table that a path of captions names. Throws ScriptError where
/// there is none, or more than one.
RowTexts ReadRows(QMainWindow* window, const QStringList& path);

/// Something that can be read in a window: a field or label, or the rows of a list or table.
struct Reading {
  QString window;
  QStringList path;  ///< the fewest captions that name it there
  bool rows = false;
  QStringList columns;  ///< the captions of a table

  bool operator==(const Reading&) const = default;
};

/// What a reading gives in the windows as they stand: a field or label as one row of one text.
/// Throws ScriptError where it is not there. Nothing is done to the windows.
RowTexts Read(const Reading& reading, const DesktopPlatform& platform);

/// What can be read in the open windows and is not empty: in each, the newest first, lists, then
/// results, then fields that take text. Launcher, help and the like have nothing to tell.
std::vector<Reading> ReadingsIn(const DesktopPlatform& platform);

}  // namespace lignara
