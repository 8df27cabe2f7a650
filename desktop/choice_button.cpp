#include "desktop/choice_button.h"

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

}  // namespace

QPushButton* MakeChoiceButton(Binding& binding, const QString& caption, Binding::Condition active,
                              Binding::Command command) {
  auto* button = new QPushButton(caption);
  button->setCheckable(true);
  binding.Press(button, std::move(command));
  binding.Follow([button, active] { Mark(button, active()); });
  return button;
}

}  // namespace lignara
