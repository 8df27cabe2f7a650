#include "desktop/kit/choice_button.h"

#include <QButtonGroup>
#include <algorithm>

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

}  // namespace

QPushButton* MakeChoiceButton(Binding& binding, const QString& caption, Binding::Condition active,
                              Binding::Command command) {
  auto* button = new QPushButton(caption);
  button->setCheckable(true);
  button->setMinimumWidth(WidthWhenActive(button));
  binding.Press(button, std::move(command));
  binding.Follow([button, active] { Mark(button, active()); });
  return button;
}

void MakeOneTabStop(Binding& binding, const std::vector<QPushButton*>& buttons) {
  auto* group = new QButtonGroup(buttons.front());
  group->setExclusive(false);
  for (QPushButton* button : buttons) group->addButton(button);
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
