#include "desktop/kit/picture_button.h"

#include <QStyleOptionButton>
#include <QStylePainter>

#include "desktop/kit/form.h"
#include "desktop/kit/picture_widget.h"

namespace lignara {

PictureButton::PictureButton(const Drawing& drawing, const QString& caption)
    : drawing_(drawing), caption_(caption) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setMinimumSize(InLetters(140), InLetters(90));
}

void PictureButton::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  painter.drawControl(QStyle::CE_PushButtonBevel, option);
  const QRect inside = rect().adjusted(12, 10, -12, -8);
  const int captionHeight = fontMetrics().height() + 2;
  QPalette face = palette();
  face.setColor(QPalette::Base, palette().color(QPalette::Button));
  PaintDrawing(painter, inside.adjusted(0, 0, 0, -captionHeight), drawing_, face);
  painter.setPen(palette().color(QPalette::ButtonText));
  painter.drawText(inside, Qt::AlignHCenter | Qt::AlignBottom, caption_);
  if (!hasFocus()) return;
  QStyleOptionFocusRect focus;
  focus.QStyleOption::operator=(option);
  focus.rect = rect().adjusted(4, 4, -4, -4);
  painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

}  // namespace lignara
