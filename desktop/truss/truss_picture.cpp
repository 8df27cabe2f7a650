#include "desktop/truss/truss_picture.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/form.h"
#include "desktop/kit/legend.h"
#include "desktop/kit/picture_widget.h"
#include "desktop/kit/save_picture.h"
#include "desktop/kit/screen_readers.h"
#include "desktop/kit/text.h"
#include "truss/picture_in_words.h"
#include "truss/truss_picture.h"

namespace lignara {
namespace {

/// One step of the horizontal bar moves the picture by an eighth of its width. So many steps to
/// either side are what the canvas can count.
constexpr int kPanSteps = 54;

/// Builds the canvas part by part.
class TrussCanvas {
 public:
  TrussCanvas(TrussWindow& window, Binding& binding, SessionState& session,
              DesktopPlatform& platform)
      : record_(window), binding_(binding), session_(session), platform_(platform) {}

  QLayout* Make() {
    auto* rows = new QVBoxLayout;
    rows->addLayout(Frame(), 1);
    rows->addLayout(Foot());
    return rows;
  }

 private:
  QLayout* Frame() {
    auto* grid = new QGridLayout;
    grid->setSpacing(2);
    grid->addWidget(Canvas(), 0, 0);
    auto* rise = Named("Rise", new QScrollBar(Qt::Vertical));
    rise->setRange(0, kPanSteps);
    // It moves nothing; where it stands is the user's doing all the same.
    QObject::connect(rise, &QScrollBar::valueChanged, [rise, &binding = binding_](int value) {
      binding.Act({UserAction::Kind::Scroll, rise, nullptr, QString::number(value), true}, [] {});
    });
    grid->addWidget(rise, 0, 1);
    auto* pan = Named("Pan", new QScrollBar(Qt::Horizontal));
    pan->setRange(-kPanSteps, kPanSteps);
    pan->setPageStep(4);
    auto& record = record_;
    auto& session = session_;
    auto& platform = platform_;
    binding_.Scroll(pan, &record_.view.panBar,
                    [&](int value) { PanTruss(record, session, platform, value); });
    grid->addWidget(pan, 1, 0);
    return grid;
  }

  Picture* Canvas() {
    auto* canvas = Named("Truss", new Picture);
    canvas->setMinimumSize(280, 180);
    canvas->LetUserExplore();
    auto& record = record_;
    auto& session = session_;
    binding_.Show(canvas, &record_.view.drawing);
    binding_.Follow(
        [canvas, &record, &session] { Describe(canvas, ToQt(DescribeTruss(record, session))); });
    binding_.Click(canvas, [&](double x, double y) { HitTruss(record, session, x, y); });
    canvas->OnHover([&](double x, double y) { return IsOverMember(record, session, x, y); });
    LetUserSave(canvas, platform_);
    return canvas;
  }

  QLayout* Foot() {
    auto* row = new QHBoxLayout;
    row->addWidget(ZoomPanel());
    row->addSpacing(12);
    row->addLayout(Legend());
    row->addStretch();
    return row;
  }

  /// In two lines, so that it asks for no more width than the drawing. The last entries are there
  /// only while they are needed.
  QLayout* Legend() {
    auto* grid = new QGridLayout;
    auto& record = record_;
    const std::vector<LegendEntry> entries = TrussLegend(false);
    for (std::size_t i = 0; i < entries.size(); ++i) {
      QWidget* entry = MakeLegend({entries[i]});
      grid->addWidget(entry, static_cast<int>(i) % 2, static_cast<int>(i) / 2);
      binding_.Shown(entry, [&record, shown = entries[i]] {
        const auto& legend = record.view.drawing.scene.legend;
        return record.view.resultsShown &&
               std::find(legend.begin(), legend.end(), shown) != legend.end();
      });
    }
    return grid;
  }

  QGroupBox* ZoomPanel() {
    QGroupBox* panel = MakePanel("Zoom");
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins(6, 2, 6, 4);
    row->addWidget(ZoomButton("+", "Enlarge the drawing", EnlargeTruss));
    row->addWidget(ZoomButton("-", "Reduce the drawing", ReduceTruss));
    return panel;
  }

  QPushButton* ZoomButton(const char* caption, const char* tip,
                          void (*zoom)(TrussWindow&, const SessionState&, Platform&)) {
    auto* button = new QPushButton(caption);
    button->setMaximumWidth(44);
    button->setToolTip(tip);
    auto& record = record_;
    auto& session = session_;
    auto& platform = platform_;
    binding_.Press(button,
                   [&record, &session, &platform, zoom] { zoom(record, session, platform); });
    return button;
  }

  TrussWindow& record_;
  Binding& binding_;
  SessionState& session_;
  DesktopPlatform& platform_;
};

}  // namespace

QLayout* MakeTrussCanvas(TrussWindow& window, Binding& binding, SessionState& session,
                         DesktopPlatform& platform) {
  return TrussCanvas(window, binding, session, platform).Make();
}

}  // namespace lignara
