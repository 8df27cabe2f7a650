#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/launcher.h"
#include "app/window_names.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/form.h"
#include "desktop/windows.h"

namespace lignara {
namespace {

/// For whom the member size calculator shall work, when no structure is at hand.
class DesignModeForm : public ToolWindow {
 public:
  explicit DesignModeForm(WindowContext context) : ToolWindow(window_name::kQuestion, context) {
    setWindowTitle("???");
    AddHelpMenu();
    auto* area = new QWidget;
    setCentralWidget(area);
    SetEscapeCommand(area, [this] { close(); });
    auto* rows = new QVBoxLayout(area);
    rows->setContentsMargins(32, 24, 32, 24);
    rows->setSpacing(20);
    rows->addWidget(new QLabel("Please make a choice !"), 0, Qt::AlignCenter);
    auto* choices = new QHBoxLayout;
    choices->setSpacing(16);
    rows->addLayout(choices);
    for (const char* mode : {"TRUSS", "BEAM"}) {
      auto* button = new QPushButton(QString("&") + mode);
      button->setMinimumSize(InLetters(120), InLetters(36));
      binding().Press(button, [this, mode] { ChooseDesignMode(mode, session(), platform()); });
      binding().Enabled(button, [this] { return platform().HasWindow(window_name::kMemberSize); });
      choices->addWidget(button);
    }
  }
};

}  // namespace

ToolWindow* MakeDesignModeWindow(WindowContext context) { return new DesignModeForm(context); }

}  // namespace lignara
