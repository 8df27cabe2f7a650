#include "desktop/kit/misread_number_mark.h"

#include <QEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

#include "app/number_reader.h"
#include "desktop/kit/text.h"
#include "desktop/kit/warning_colour.h"

namespace lignara {
namespace {

/// Lies over the field that it marks and lets mouse and keys through.
class MisreadNumberMark : public QWidget {
 public:
  explicit MisreadNumberMark(QLineEdit* field)
      : QWidget(field),
        field_(field),
        tip_(field->toolTip()),
        description_(field->accessibleDescription()) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
    field->installEventFilter(this);
    connect(field, &QLineEdit::textChanged, this, [this] { Update(); });
    connect(field, &QLineEdit::textEdited, this, [this] { ShowTip(); });
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Resize) resize(field_->size());
    return false;
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect().adjusted(1, 1, -1, -1), Tint(WarningColour(palette()), palette()));
    painter.setPen(QPen(WarningColour(palette()), 1.6));
    painter.drawPath(Wave());
  }

 private:
  /// A wave along the lower edge, so that the mark is seen without colours too.
  QPainterPath Wave() const {
    constexpr double kStep = 4, kHeight = 2.5;
    const double base = height() - 4.5;
    QPainterPath wave(QPointF(4, base));
    for (double x = 4, up = -1; x + kStep < width() - 4; x += kStep, up = -up) {
      wave.quadTo(x + kStep / 2, base + up * kHeight, x + kStep, base);
    }
    return wave;
  }

  void Update() {
    const QString note = ToQt(ReadingNote(FromQt(field_->text())));
    field_->setToolTip(note.isEmpty() ? tip_ : note);
    field_->setAccessibleDescription(note.isEmpty() ? description_ : note);
    resize(field_->size());
    setVisible(!note.isEmpty());
  }

  void ShowTip() {
    if (!isVisible() || !field_->hasFocus()) {
      QToolTip::hideText();
      return;
    }
    QToolTip::showText(field_->mapToGlobal(QPoint(0, field_->height() - 8)), field_->toolTip(),
                       field_);
  }

  QLineEdit* field_;
  const QString tip_;
  const QString description_;
};

}  // namespace

void MarkReading(QLineEdit* field) { new MisreadNumberMark(field); }

}  // namespace lignara
