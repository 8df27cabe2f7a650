#include "desktop/kit/option_frame.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <algorithm>

#include "desktop/kit/form.h"

namespace lignara {
namespace {

void SetOn(QRadioButton* option, bool on) {
  // One of several that exclude each other cannot be switched off by itself.
  option->setAutoExclusive(false);
  option->setChecked(on);
  option->setAutoExclusive(true);
}

}  // namespace

QGroupBox* MakeOptionFrame(Binding& binding, const QString& caption,
                           const std::vector<QString>& options, std::function<int()> chosen,
                           Binding::RowCommand choose, Qt::Orientation orientation) {
  QGroupBox* frame = MakePanel(caption);
  const bool inARow = orientation == Qt::Horizontal;
  auto* places = new QBoxLayout(inARow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, frame);
  int at = 0;
  for (const QString& text : options) {
    auto* option = new QRadioButton(text);
    binding.Press(option, [choose, at] { choose(at); });
    binding.Follow([option, chosen, at] {
      const int on = chosen();
      SetOn(option, on == at);
      const bool stop = at == std::max(on, 0);
      option->setFocusPolicy(stop ? Qt::StrongFocus : Qt::ClickFocus);
    });
    places->addWidget(option);
    ++at;
  }
  if (inARow) places->addStretch();
  return frame;
}

QGroupBox* MakeOptionPair(Binding& binding, const QString& caption, const QString& first,
                          const QString& second, bool* firstIsOn, Qt::Orientation orientation) {
  return MakeOptionFrame(
      binding, caption, {first, second}, [firstIsOn] { return *firstIsOn ? 0 : 1; },
      [firstIsOn](int at) { *firstIsOn = at == 0; }, orientation);
}

QRadioButton* ChosenOption(const QGroupBox* frame) {
  const auto options = frame->findChildren<QRadioButton*>();
  for (QRadioButton* option : options) {
    if (option->isChecked()) return option;
  }
  return options.front();
}

}  // namespace lignara
