#include "desktop/truss/headings_and_fonts.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/kit/form.h"
#include "desktop/kit/option_frame.h"
#include "desktop/kit/tool_window.h"
#include "truss/headings_and_fonts.h"

namespace lignara {

QGroupBox* MakeHeadingsPanel(TrussWindow& window, Binding& binding, SessionState& session) {
  QGroupBox* panel = MakePanel("Output Description");
  binding.CloseOnEscape(panel, [&window] { CloseHeadings(window); });
  binding.Shown(panel, &window.headingsOpen, [panel, &window, &binding, &session] {
    auto* rows = new QVBoxLayout(panel);
    auto* grid = new QGridLayout;
    const auto add = [&](const char* caption, std::string* text) {
      QLineEdit* field = AddField(grid, caption, 220);
      field->setAlignment(Qt::AlignLeft);
      binding.Words(field, text);
    };
    add("Title", &window.titleText);
    add("Description", &window.descriptionText);
    rows->addLayout(grid);
    auto* ok = new QPushButton("OK");
    binding.Press(ok, [&window, &session] { AcceptHeadings(window, session); });
    rows->addWidget(ok, 0, Qt::AlignRight);
    SetReturnButton(panel, ok);
  });
  return panel;
}

QGroupBox* MakeFontsPanel(TrussWindow& window, Binding& binding, SessionState& session) {
  QGroupBox* panel = MakePanel("Fonts");
  binding.CloseOnEscape(panel, [&window] { CloseFonts(window); });
  binding.Shown(panel, &window.fontsOpen, [panel, &window, &binding, &session] {
    auto* rows = new QVBoxLayout(panel);
    auto* pairs = new QHBoxLayout;
    pairs->addWidget(
        MakeOptionPair(binding, "Name", "Times New Roman", "Arial", &window.fontTimes));
    pairs->addWidget(MakeOptionPair(binding, "Size", "10", "8", &window.fontTen));
    rows->addLayout(pairs);
    auto* ok = new QPushButton("OK");
    binding.Press(ok, [&window, &session] { AcceptFonts(window, session); });
    rows->addWidget(ok, 0, Qt::AlignRight);
    SetReturnButton(panel, ok);
  });
  return panel;
}

}  // namespace lignara
