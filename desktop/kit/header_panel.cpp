#include "desktop/kit/header_panel.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/kit/form.h"
#include "desktop/kit/option_frame.h"
#include "desktop/kit/text.h"
#include "desktop/kit/tool_window.h"

namespace lignara {
namespace {

struct HeaderLine {
  const char* caption;
  std::string ProjectHeader::*text;
};

constexpr HeaderLine kHeaderLines[] = {{"Title:", &ProjectHeader::Title},
                                       {"Title 2", &ProjectHeader::Title2},
                                       {"Engineer:", &ProjectHeader::Engineer},
                                       {"Date:", &ProjectHeader::Date}};

/// Two options of which one is on.
QGroupBox* OptionPair(Binding& binding, const QString& caption, const QString& first,
                      const QString& second, bool* firstIsOn) {
  return MakeOptionFrame(
      binding, caption, {first, second}, [firstIsOn] { return *firstIsOn ? 0 : 1; },
      [firstIsOn](int chosen) { *firstIsOn = chosen == 0; }, Qt::Horizontal);
}

}  // namespace

QGroupBox* MakeHeaderPanel(HeaderPanel& panel, Binding& binding, SessionState& session) {
  QGroupBox* frame = MakePanel("Project Description for Print Header");
  auto* rows = new QVBoxLayout(frame);
  auto* grid = new QGridLayout;
  for (const HeaderLine& line : kHeaderLines) {
    QLineEdit* field = AddField(grid, line.caption, 160);
    field->setAlignment(Qt::AlignLeft);
    binding.Words(field, &(panel.texts.*line.text));
  }
  rows->addLayout(grid);
  rows->addWidget(OptionPair(binding, "Font", "Times New Roman", "Arial", &panel.fontTimes));
  auto* foot = new QHBoxLayout;
  foot->addWidget(OptionPair(binding, "Size", "10", "8", &panel.fontTen));
  auto* ok = new QPushButton("OK");
  binding.Press(ok, [&panel, &session] { AcceptHeaderPanel(panel, session); });
  foot->addWidget(ok);
  rows->addLayout(foot);
  SetReturnButton(frame, ok);
  binding.CloseOnEscape(frame, [&panel] { panel.open = false; });
  binding.Shown(frame, &panel.open);
  return frame;
}

QString TitleOr(const QString& otherwise, const SessionState& session) {
  const QString title = ToQt(session.Header.Title).trimmed();
  return title.isEmpty() ? otherwise : title;
}

}  // namespace lignara
