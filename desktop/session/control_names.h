#pragma once

#include <QStringList>
#include <vector>

#include "desktop/kit/tool_window.h"
#include "desktop/session/control_finder.h"

namespace lignara {

/// The fewest captions by which `FindControl` finds a widget; empty where none do.
QStringList FewestCaptions(QMainWindow* window, const QWidget* widget,
                           const std::vector<Kinds>& stages);

/// The controls of one window, to be named at each action of a user: the list of them is made once
/// and when a panel was made since, and a caption is worked out anew only when its widget says
/// another one.
class ControlNames {
 public:
  explicit ControlNames(ToolWindow* window) : window_(window) {}

  /// The fewest captions by which `FindControl` finds a widget among the visible ones of these
  /// kinds. Empty where none do.
  QStringList ShortestName(QWidget* widget, const Kinds& kinds);
  /// A button that can be pressed and is not `other`; null where there is none.
  QWidget* AnyButtonBut(const QWidget* other);

 private:
  struct Entry {
    QWidget* widget;
    QString said;  ///< the caption as the widget says it
    QString caption;
  };

  bool IsOutOfDate() const;
  void List();
  const QString& Caption(Entry& entry);
  std::vector<Candidate> Rivals(const QString& caption, const Kinds& kinds);

  ToolWindow* window_;
  int panelsMade_ = 0;  ///< when the controls were listed
  std::vector<Entry> controls_;
};

}  // namespace lignara
