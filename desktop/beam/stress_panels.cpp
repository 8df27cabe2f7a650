#include "desktop/beam/stress_panels.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/beam/close_button.h"
#include "desktop/kit/form.h"

namespace lignara {

QGroupBox* MakePropertiesPanel(BeamWindow& window, Binding& binding) {
  QGroupBox* panel = MakePanel("Properties Required For Stress Check");
  auto* rows = new QVBoxLayout(panel);
  QPushButton* close = CloseButton(panel, binding, [&window] { CloseProperties(window); });
  auto* grid = new QGridLayout;
  grid->setColumnMinimumWidth(2, 14);
  constexpr int kRows = 5;
  for (int i = 0; i < kStressFields; ++i) {
    const auto field = static_cast<StressField>(i);
    QLineEdit* box = PutField(grid, i % kRows, i < kRows ? 0 : 3,
                              kStressFieldCaptions[static_cast<std::size_t>(i)], 84);
    binding.Field(box, &window.Field(field).text,
                  [&window, field] { EditStressField(window, field); });
    binding.Entered(box, [&window, field] { EnterStressField(window, field); });
  }
  rows->addLayout(grid);
  rows->addWidget(close, 0, Qt::AlignRight);
  binding.Shown(panel, &window.propertiesOpen);
  return panel;
}

QGroupBox* MakeStressCheckPanel(BeamWindow& window, Binding& binding) {
  QGroupBox* panel = MakePanel("Stress Check");
  auto* rows = new QVBoxLayout(panel);
  QListWidget* list = MakeList("Stress Check", 10);
  binding.List(list, &window.check.rows);
  rows->addWidget(list);
  rows->addWidget(CloseButton(panel, binding, [&window] { window.check.open = false; }), 0,
                  Qt::AlignRight);
  binding.Shown(panel, &window.check.open);
  return panel;
}

}  // namespace lignara
