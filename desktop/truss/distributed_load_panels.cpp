#include "desktop/truss/distributed_load_panels.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/kit/form.h"
#include "desktop/kit/tool_window.h"

namespace lignara {
namespace {

/// "Apply", and "Cancel", which closes the panel.
QLayout* ApplyAndCancel(TrussWindow& window, Binding& binding, QGroupBox* panel,
                        Binding::Command apply) {
  auto* row = new QHBoxLayout;
  auto* accept = new QPushButton("Apply");
  binding.Press(accept, std::move(apply));
  auto* leave = new QPushButton("Cancel");
  binding.Press(leave, [&window] { CancelDistributedLoad(window); });
  row->addStretch();
  row->addWidget(accept);
  row->addWidget(leave);
  SetReturnButton(panel, accept);
  SetEscapeButton(panel, leave);
  return row;
}

}  // namespace

QGroupBox* MakeLineLoadPanel(TrussWindow& window, Binding& binding, SessionState& session,
                             Platform& platform) {
  QGroupBox* panel = MakePanel("Uniform Load (Line Load)");
  binding.Shown(panel, &window.lineLoadOpen, [&window, &binding, &session, &platform, panel] {
    auto* grid = new QGridLayout(panel);
    binding.Field(AddField(grid, "Load (lb / ft)"), &window.lineLoad);
    QLayout* buttons = ApplyAndCancel(window, binding, panel, [&window, &session, &platform] {
      ApplyLineLoad(window, session, platform);
    });
    grid->addLayout(buttons, grid->rowCount(), 0, 1, 2);
  });
  return panel;
}

QGroupBox* MakeAreaLoadPanel(TrussWindow& window, Binding& binding, SessionState& session,
                             Platform& platform) {
  QGroupBox* panel = MakePanel("Area Load ");
  binding.Shown(panel, &window.areaLoadOpen, [&window, &binding, &session, &platform, panel] {
    auto* grid = new QGridLayout(panel);
    binding.Field(AddField(grid, "Truss Spacing (ft)"), &window.trussSpacing);
    binding.Field(AddField(grid, "Load (lb/sf)"), &window.areaLoad);
    QLayout* buttons = ApplyAndCancel(window, binding, panel, [&window, &session, &platform] {
      ApplyAreaLoad(window, session, platform);
    });
    grid->addLayout(buttons, grid->rowCount(), 0, 1, 2);
  });
  return panel;
}

}  // namespace lignara
