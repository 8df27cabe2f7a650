#pragma once

#include <QLabel>

namespace lignara {

/// A text of as many lines as its width needs. It asks its layout for the height of the width that
/// it has, so that no page around it has to find its height by its width: such a page would be as
/// high as all in it would like, whatever the window.
class WrappedLabel : public QLabel {
 public:
  WrappedLabel() { setWordWrap(true); }

  bool hasHeightForWidth() const override { return false; }
  QSize sizeHint() const override { return {0, QLabel::heightForWidth(width())}; }
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QLabel::resizeEvent(event);
    updateGeometry();
  }
};

}  // namespace lignara
