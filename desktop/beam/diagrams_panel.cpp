#include "desktop/beam/diagrams_panel.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "beam/descriptions.h"
#include "beam/diagrams.h"
#include "desktop/beam/close_button.h"
#include "desktop/kit/form.h"
#include "desktop/kit/picture_widget.h"
#include "desktop/kit/save_picture.h"
#include "desktop/kit/screen_readers.h"
#include "desktop/kit/text.h"

namespace lignara {
namespace {

/// A picture that is pressed wherever the mouse is dragged over it.
class DraggedPicture : public Picture {
 protected:
  void mouseMoveEvent(QMouseEvent* event) override {
    if (!event->buttons().testFlag(Qt::LeftButton)) return Picture::mouseMoveEvent(event);
    QMouseEvent press(QEvent::MouseButtonPress, event->position(), event->globalPosition(),
                      Qt::LeftButton, event->buttons(), event->modifiers());
    mousePressEvent(&press);
  }
};

struct DiagramValue {
  const char* caption;
  const std::string* text;
};

Picture* MakeDiagram(const char* name, Diagram diagram, const Drawing* drawing, BeamWindow& window,
                     Binding& binding, DesktopPlatform& platform) {
  auto* picture = Named(name, new DraggedPicture);
  picture->setMinimumSize(220, 72);
  binding.Show(picture, drawing);
  binding.Follow(
      [picture, diagram, &window] { Describe(picture, ToQt(DescribeDiagram(window, diagram))); });
  binding.Trace(picture, [&window](double x, double) { PressDiagram(window, x); });
  picture->OnHover([](double, double) { return true; });
  LetUserSave(picture, platform);
  return picture;
}

/// A diagram with its values beside it.
QGroupBox* DiagramRow(const char* caption, Picture* picture,
                      const std::vector<DiagramValue>& values, const BeamWindow& window,
                      Binding& binding) {
  QGroupBox* frame = MakePanel(caption);
  auto* row = new QHBoxLayout(frame);
  row->setContentsMargins(8, 2, 8, 2);
  row->addWidget(picture, 1);
  auto* column = new QVBoxLayout;
  auto* grid = new QGridLayout;
  // All three diagrams are equally wide, so that a station stands above the same one.
  grid->setColumnMinimumWidth(0, frame->fontMetrics().horizontalAdvance("Max. Mom. (ft-lbs)"));
  for (const DiagramValue& value : values) {
    QLineEdit* box = AddValue(grid, value.caption, 90);
    binding.Text(box, value.text);
    binding.OutOfDate(box, [&window] { return IsOutOfDate(window); });
  }
  column->addLayout(grid);
  column->addStretch();
  row->addLayout(column);
  return frame;
}

QScrollBar* StationBar(QGroupBox* panel, BeamWindow& window, Binding& binding) {
  auto* bar = Named("Station", new QScrollBar(Qt::Horizontal, panel));
  bar->setFocusPolicy(Qt::StrongFocus);
  bar->setInvertedControls(false);  // the right arrow key goes to the right
  binding.Follow([bar, &window] {
    const QSignalBlocker silent(bar);
    bar->setRange(0, window.diagrams.lastStation);
    bar->setPageStep(std::max(1, window.diagrams.lastStation / 20));
  });
  binding.Scroll(bar, &window.diagrams.station,
                 [&window](int station) { MoveToStation(window, station); });
  return bar;
}

QLayout* DiagramsFoot(QGroupBox* panel, BeamWindow& window, Binding& binding) {
  auto* row = new QHBoxLayout;
  row->addWidget(StationBar(panel, window, binding), 1);
  auto* grid = new QGridLayout;
  binding.Text(AddValue(grid, "(ft)", 90), &window.diagrams.location);
  row->addLayout(grid);
  row->addWidget(CloseButton(panel, binding, [&window] { CloseDiagrams(window); }));
  return row;
}

}  // namespace

QGroupBox* MakeDiagramsPanel(BeamWindow& window, Binding& binding, DesktopPlatform& platform) {
  QGroupBox* panel = MakePanel("Diagrams");
  auto* rows = new QVBoxLayout(panel);
  BeamDiagrams& d = window.diagrams;
  const auto add = [&](const char* name, Diagram diagram, const Drawing* drawing,
                       const std::vector<DiagramValue>& values) {
    Picture* picture = MakeDiagram(name, diagram, drawing, window, binding, platform);
    rows->addWidget(DiagramRow(name, picture, values, window, binding));
  };
  add("Shear", Diagram::Shear, &d.shear,
      {{"Value at X:", &d.shearAt}, {"Max. Shear (lbs):", &window.maxShear}});
  add("Moment", Diagram::Moment, &d.moment,
      {{"Value at X:", &d.momentAt}, {"Max. Mom. (ft-lbs)", &window.maxMoment}});
  add("Deflected Shape", Diagram::Deflection, &d.deflection,
      {{"Def.at X:", &d.deflAt},
       {"Rot. at X(rad)", &d.rotationAt},
       {"Max. Def. (in)", &window.maxDeflection}});
  rows->addLayout(DiagramsFoot(panel, window, binding));
  binding.Shown(panel, &d.open);
  return panel;
}

}  // namespace lignara
