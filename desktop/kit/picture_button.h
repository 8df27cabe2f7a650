#pragma once

#include <QPushButton>

#include "app/drawing.h"

namespace lignara {

/// A command button that shows a drawing above its caption.
class PictureButton : public QPushButton {
 public:
  PictureButton(const Drawing& drawing, const QString& caption);

  const Drawing& drawing() const { return drawing_; }

  QSize sizeHint() const override { return {190, 124}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Drawing drawing_;
  QString caption_;
};

}  // namespace lignara
