#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

namespace lignara {

/// Shows where the focus of a window is: a rim around the widget, and areas scrolled to it.
class FocusMark : public QObject {
 public:
  explicit FocusMark(QWidget* window);

 protected:
  /// The rim goes with its widget.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Follow(QWidget* now);
  void ShowRim();
  void PlaceRim();

  QWidget* window_;
  QPointer<QWidget> marked_;
  QPointer<QWidget> rim_;
};

}  // namespace lignara
