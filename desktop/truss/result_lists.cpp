#include "desktop/truss/result_lists.h"

#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/kit/form.h"
#include "desktop/kit/tool_window.h"
#include "truss/changed_since_run.h"

namespace lignara {
namespace {

/// A list that is called as its panel, and below it the button that closes the panel.
QListWidget* FillListPanel(Binding& binding, QGroupBox* panel, const std::vector<std::string>* rows,
                           int width, const QString& closing, Binding::Command close) {
  auto* column = new QVBoxLayout(panel);
  QListWidget* list = MakeList(panel->title(), 9);
  list->setMinimumWidth(InLetters(width));
  list->setMaximumHeight(240);
  binding.List(list, rows);
  column->addWidget(list);
  auto* button = new QPushButton(closing);
  binding.Press(button, std::move(close));
  column->addWidget(button, 0, Qt::AlignRight);
  SetEscapeButton(panel, button);
  return list;
}

}  // namespace

QGroupBox* MakeLengthsPanel(TrussWindow& window, Binding& binding) {
  QGroupBox* panel = MakePanel("Member Lengths (ft)");
  binding.Shown(panel, &window.lengthsOpen, [&window, &binding, panel] {
    FillListPanel(binding, panel, &window.lengthRows, 150, "Cancel",
                  [&window] { CloseMemberLengths(window); });
  });
  return panel;
}

QGroupBox* MakeDeflectionsPanel(TrussWindow& window, Binding& binding) {
  QGroupBox* panel = MakePanel("Deflections");
  binding.Shown(panel, &window.deflectionsOpen, [&window, &binding, panel] {
    QListWidget* list = FillListPanel(binding, panel, &window.deflectionRows, 150, "Cancel",
                                      [&window] { CloseDeflections(window); });
    binding.WhyEmpty(list, [&window] { return window.whyNoDeflections; });
    binding.OutOfDate(list, [&window] { return AreDeflectionsOlder(window); });
  });
  return panel;
}

QGroupBox* MakeStressesPanel(TrussWindow& window, Binding& binding) {
  QGroupBox* panel = MakePanel("Actual and Allowable Axial Stresses");
  binding.Shown(panel, &window.stressOpen, [&window, &binding, panel] {
    QListWidget* list = FillListPanel(binding, panel, &window.stressRows, 300, "OK",
                                      [&window] { CloseStresses(window); });
    binding.Notes(list, &window.stressNotes);
    binding.WhyEmpty(list, [&window] { return window.whyNoStresses; });
    binding.OutOfDate(list, [&window] { return AreStressesOlder(window); });
  });
  return panel;
}

}  // namespace lignara
