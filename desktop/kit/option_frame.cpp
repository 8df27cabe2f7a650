#include "desktop/kit/option_frame.h"

#include <QBoxLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <algorithm>

#include "desktop/kit/tool_window.h"

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

}  // namespace lignara
