#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/window_names.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/form.h"
#include "desktop/windows.h"
#include "multispan/integrations.h"

namespace lignara {
namespace {

/// The stations of the moment curve.
class IntegrationsForm : public ToolWindow {
 public:
  explicit IntegrationsForm(WindowContext context)
      : ToolWindow(window_name::kIntegrations, context) {
    setWindowTitle("Curve Integrations");
    ShowIntegrations(record_, session());
    AddHelpMenu();
    auto* area = new QWidget;
    setCentralWidget(area);
    auto* rows = new QVBoxLayout(area);
    rows->setSpacing(10);
    auto* note = Named("Note", new QLabel(kIntegrationsNote));
    note->setWordWrap(true);
    note->setMinimumWidth(360);
    rows->addWidget(note);
    auto* grid = new QGridLayout;
    QLineEdit* field = AddField(grid, "&Integrations");
    binding().Field(field, &record_.integrations);
    rows->addLayout(grid);
    auto* ok = new QPushButton("&OK");
    binding().Press(ok, [this] { AcceptIntegrations(record_, session(), platform()); });
    rows->addWidget(ok, 0, Qt::AlignRight);
    rows->addStretch();
    SetReturnButton(area, ok);
    field->setFocus();
    field->selectAll();
  }

  /// It goes with the window that opened it.
  void WindowClosed(const QString& name) override {
    if (name == window_name::kMultiSpan) platform().CloseWindow(window_name::kIntegrations);
  }

 private:
  IntegrationsWindow record_;
};

}  // namespace

ToolWindow* MakeIntegrationsWindow(WindowContext context) { return new IntegrationsForm(context); }

}  // namespace lignara
