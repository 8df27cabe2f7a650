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
  rows->addWidget(MakeOptionPair(binding, "Font", "Times New Roman", "Arial", &panel.fontTimes,
                                 Qt::Horizontal));
  auto* foot = new QHBoxLayout;
  foot->addWidget(MakeOptionPair(binding, "Size", "10", "8", &panel.fontTen, Qt::Horizontal));
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
