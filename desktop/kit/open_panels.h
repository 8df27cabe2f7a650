#pragma once

#include <QPointer>
#include <vector>

class QWidget;

namespace lignara {

/// Shows and hides the panels of a window. A panel that Escape can leave takes the focus when it
/// opens and gives it back when it closes.
class OpenPanels {
 public:
  void SetShown(QWidget* panel, bool shown);

  /// Leaves the panel that was opened last, as Escape does. False where none is open.
  bool CloseNewest();
  /// The panel that Escape leaves next; null where none is open.
  QWidget* Newest();

 private:
  struct Open {
    QPointer<QWidget> panel;
    QPointer<QWidget> before;  ///< what had the focus when it opened
  };

  void Show(QWidget* panel);
  void Hide(QWidget* panel);

  std::vector<Open> open_;  // in the order of opening
};

/// The widget to which the focus goes when a panel closes, instead of where it came from.
void ReturnFocusTo(QWidget* panel, QWidget* widget);

/// The first widget inside an area at which the Tab key stops; null where there is none.
QWidget* FirstTabStop(QWidget* area);

}  // namespace lignara
