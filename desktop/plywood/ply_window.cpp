#include "plywood/ply_window.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>

#include "app/window_names.h"
#include "desktop/kit/form.h"
#include "desktop/kit/open_panels.h"
#include "desktop/kit/text.h"
#include "desktop/plywood/panel_form.h"
#include "desktop/windows.h"

namespace lignara {
namespace {

constexpr const char* kNoPanel = "Choose a panel on the left,\nor a reference under \"Options\".";

/// A strip of buttons, and the panel that one of them or the menu has opened.
class PlyForm : public ToolWindow {
 public:
  explicit PlyForm(WindowContext context) : ToolWindow(window_name::kPlywood, context) {
    setWindowTitle("Ply Wood");
    OpenPlyWindow(record_);
    AddMenus();
    AddStatusLine();
    auto* area = new QWidget;
    setCentralWidget(area);
    auto* columns = new QHBoxLayout(area);
    columns->setSpacing(12);
    columns->addLayout(Strip());
    columns->addLayout(Panels(), 1);
    strip_[0]->setFocus();
  }

  /// The panel that is shown: its report is what is saved.
  QString DocumentName() const override {
    return record_.open ? ToQt(PlyPanelKindOf(*record_.open).caption).trimmed() : windowTitle();
  }

 private:
  void AddMenus() {
    QMenu* files = menuBar()->addMenu("&Files");
    binding().Menu(files->addAction("E&xit"), [this] { CloseControl(); });
    QMenu* options = menuBar()->addMenu("&Options");
    for (std::size_t i = kPlyStripPanels; i < kPlyPanels; ++i) {
      const auto panel = static_cast<PlyPanel>(i);
      binding().Menu(options->addAction(ToQt(PlyPanelKindOf(panel).opener)),
                     [this, panel] { ShowPanel(record_, panel); });
    }
    AddHelpMenu();
  }

  QLayout* Strip() {
    auto* rows = new QVBoxLayout;
    for (std::size_t i = 0; i < kPlyStripPanels; ++i) {
      const auto panel = static_cast<PlyPanel>(i);
      auto* button = new QPushButton(ToQt(PlyPanelKindOf(panel).opener));
      button->setMinimumWidth(WidthInBold(button));
      binding().Press(button, [this, panel] { ShowPanel(record_, panel); });
      binding().Follow([this, button, panel] { SetBold(button, record_.open == panel); });
      rows->addWidget(button);
      strip_[i] = button;
    }
    rows->addStretch();
    return rows;
  }

  /// All panels have the same place, so that nothing moves when one takes that of another.
  QLayout* Panels() {
    auto* place = new QGridLayout;
    auto* none = new QLabel(kNoPanel);
    none->setForegroundRole(QPalette::PlaceholderText);
    binding().Shown(none, [this] { return !record_.open; });
    place->addWidget(none, 0, 0, Qt::AlignCenter);
    for (std::size_t i = 0; i < kPlyPanels; ++i) {
      const auto panel = static_cast<PlyPanel>(i);
      QGroupBox* form = new PlyPanelForm(record_, panel, binding(), platform());
      KeepRoom(form);
      if (i < kPlyStripPanels) ReturnFocusTo(form, strip_[i]);
      binding().Shown(form, [this, panel] { return record_.open == panel; });
      place->addWidget(form, 0, 0);
    }
    return place;
  }

  static int WidthInBold(const QPushButton* button) {
    constexpr int kBorder = 20;
    QFont bold = button->font();
    bold.setBold(true);
    return QFontMetrics(bold).horizontalAdvance(PlainCaption(button->text())) + kBorder;
  }

  static void SetBold(QPushButton* button, bool bold) {
    QFont font = button->font();
    font.setBold(bold);
    button->setFont(font);
  }

  PlyPanelWindow record_;
  std::array<QPushButton*, kPlyStripPanels> strip_ = {};
};

}  // namespace

ToolWindow* MakePlyWindow(WindowContext context) { return new PlyForm(context); }

}  // namespace lignara
