#pragma once

#include <QString>
#include <QStringList>
#include <vector>

class QWidget;

namespace lignara {

/// The caption by which a script names a widget; empty for one without.
QString CaptionOf(const QWidget* widget);

/// The captions of the panels around a widget and its own, from the window inward. Empty for a
/// widget without a caption, such as the scroll bars inside a list: the panel around it is not its
/// name.
QStringList FullPath(const QWidget* widget);

/// The captions of panels that may stand before a control's own, the fewest first: none, one of
/// them, two of them, and so on, each with its own.
std::vector<QStringList> PathsTo(const QStringList& fullPath);

}  // namespace lignara
