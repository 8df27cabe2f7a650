#include "desktop/kit/help_window.h"

#include <QFile>
#include <QTextBrowser>

#include "app/window_names.h"
#include "desktop/windows.h"

namespace lignara {
namespace {

class HelpWindow : public ToolWindow {
 public:
  explicit HelpWindow(WindowContext context) : ToolWindow(window_name::kHelp, context) {
    setWindowTitle("Lignara Help");
    browser_->setOpenLinks(true);
    setCentralWidget(browser_);
    resize(720, 640);
  }

  void ShowDocument(const QString& path, const QString& section) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return;
    browser_->setHtml(QString::fromUtf8(file.readAll()));
    browser_->scrollToAnchor(section);
  }

 private:
  QTextBrowser* browser_ = Named("Help", new QTextBrowser);
};

}  // namespace

ToolWindow* MakeHelpWindow(WindowContext context) { return new HelpWindow(context); }

void ShowHelpDocument(ToolWindow* helpWindow, const QString& path, const QString& section) {
  if (auto* window = dynamic_cast<HelpWindow*>(helpWindow)) window->ShowDocument(path, section);
}

}  // namespace lignara
