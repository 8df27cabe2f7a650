#include "desktop/kit/exclusive_button.h"

#include <QKeyEvent>
#include <algorithm>
#include <cstdlib>
#include <limits>

#include "desktop/kit/text.h"

namespace lignara {
namespace {

/// Colours with enough contrast on a light and on a dark button face.
void Mark(QPushButton* button, bool active) {
  const bool dark = button->palette().color(QPalette::Button).lightness() < 128;
  const QColor red = dark ? QColor("#ff6b6b") : QColor("#c00000");
  const QColor blue = dark ? QColor("#7aa2ff") : QColor("#1030c0");
  QPalette palette = button->palette();
  palette.setColor(QPalette::ButtonText, active ? red : blue);
  button->setPalette(palette);
  QFont font = button->font();
  font.setBold(active);
  button->setFont(font);
  button->setChecked(active);
}

/// Room for the bold letters of the active button, so that a choice moves nothing on the screen.
int WidthWhenActive(const QPushButton* button) {
  constexpr int kBorder = 16;
  QFont bold = button->font();
  bold.setBold(true);
  return QFontMetrics(bold).horizontalAdvance(PlainCaption(button->text())) + kBorder;
}

/// The step on the screen that an arrow key stands for; null for any other key.
QPoint StepOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return {-1, 0};
    case Qt::Key_Right:
      return {1, 0};
    case Qt::Key_Up:
      return {0, -1};
    case Qt::Key_Down:
      return {0, 1};
    default:
      return {};
  }
}

/// Goes from button to button with the arrow keys.
class ArrowKeys : public QObject {
 public:
  explicit ArrowKeys(const std::vector<QPushButton*>& buttons)
      : QObject(buttons.front()), buttons_(buttons) {
    for (QPushButton* button : buttons_) button->installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const QPoint step = StepOf(static_cast<QKeyEvent*>(event)->key());
    if (step.isNull()) return false;
    auto* from = static_cast<QPushButton*>(watched);
    QPushButton* to = Nearest(from, step);
    if (to == nullptr && step.y() != 0) to = InOrder(from, step.y());
    if (to == nullptr) return true;
    to->setFocus(Qt::TabFocusReason);
    to->click();
    return true;
  }

 private:
  static bool CanBeChosen(const QPushButton* button) {
    return button->isVisible() && button->isEnabled();
  }

  /// The next button in the direction of a step; what lies aside of it counts as farther.
  QPushButton* Nearest(QPushButton* from, const QPoint& step) const {
    QPushButton* nearest = nullptr;
    int least = std::numeric_limits<int>::max();
    for (QPushButton* button : buttons_) {
      const QPoint way = button->mapTo(button->window(), button->rect().center()) -
                         from->mapTo(from->window(), from->rect().center());
      const int ahead = QPoint::dotProduct(way, step);
      const int aside = std::abs(way.x() * step.y()) + std::abs(way.y() * step.x());
      if (!CanBeChosen(button) || ahead <= aside || ahead + aside >= least) continue;
      least = ahead + aside;
      nearest = button;
    }
    return nearest;
  }

  QPushButton* InOrder(QPushButton* from, int step) const {
    auto at = std::find(buttons_.begin(), buttons_.end(), from) - buttons_.begin() + step;
    const bool inside = at >= 0 && at < static_cast<std::ptrdiff_t>(buttons_.size());
    QPushButton* button = inside ? buttons_[static_cast<std::size_t>(at)] : nullptr;
    return button != nullptr && CanBeChosen(button) ? button : nullptr;
  }

  std::vector<QPushButton*> buttons_;
};

}  // namespace

QPushButton* MakeExclusiveButton(Binding& binding, const QString& caption,
                                 Binding::Condition active, Binding::Command command) {
  auto* button = new QPushButton(caption);
  button->setCheckable(true);
  button->setMinimumWidth(WidthWhenActive(button));
  binding.Press(button, std::move(command));
  binding.Follow([button, active] { Mark(button, active()); });
  return button;
}

void MakeOneTabStop(Binding& binding, const std::vector<QPushButton*>& buttons) {
  new ArrowKeys(buttons);
  binding.Follow([buttons] {
    const auto active = std::find_if(buttons.begin(), buttons.end(),
                                     [](const QPushButton* button) { return button->isChecked(); });
    const QPushButton* stop = active == buttons.end() ? buttons.front() : *active;
    for (QPushButton* button : buttons) {
      button->setFocusPolicy(button == stop ? Qt::StrongFocus : Qt::ClickFocus);
    }
  });
}

}  // namespace lignara
