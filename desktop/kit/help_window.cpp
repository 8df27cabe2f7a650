#include "desktop/kit/help_window.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

#include "app/window_names.h"
#include "desktop/kit/command_button.h"
#include "desktop/kit/form.h"
#include "desktop/windows.h"

namespace lignara {
namespace {

/// The help document, with the way back and to its contents, and a search.
class HelpWindow : public ToolWindow {
 public:
  explicit HelpWindow(WindowContext context) : ToolWindow(window_name::kHelp, context) {
    setWindowTitle("Lignara Help");
    browser_->setOpenLinks(true);
    auto* area = new QWidget;
    setCentralWidget(area);
    auto* rows = new QVBoxLayout(area);
    rows->addLayout(Tools());
    rows->addWidget(browser_, 1);
    SetEscapeCommand(area, [this] { close(); });
    browser_->setFocus();
    resize(720, 640);
  }

  void ShowDocument(const QString& path, const QString& section) {
    if (!QFileInfo(path).isReadable()) return;
    contents_ = QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath());
    QUrl place = contents_;
    place.setFragment(section);
    // Its ending does not tell that it is a page of text.
    browser_->setSource(place, QTextDocument::HtmlResource);
  }

 private:
  QLayout* Tools() {
    auto* row = new QHBoxLayout;
    auto* back = AddButton(row, "&Back", [this] { browser_->backward(); });
    back->setEnabled(false);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    AddButton(row, "&Contents", [this] { ShowContents(); });
    row->addStretch();
    auto* caption = new QLabel("&Find");
    find_ = MakeField("Find", 160);
    find_->setAlignment(Qt::AlignLeft);
    binding().Words(find_, &sought_);
    caption->setBuddy(find_);
    row->addWidget(caption);
    row->addWidget(find_);
    auto* next = AddButton(row, "&Next", [this] { FindNext(); });
    SetReturnButton(find_, next);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, find_, [this] {
      find_->setFocus(Qt::ShortcutFocusReason);
      find_->selectAll();
    });
    connect(new QShortcut(QKeySequence::FindNext, this), &QShortcut::activated, this,
            [this] { FindNext(); });
    return row;
  }

  QPushButton* AddButton(QHBoxLayout* row, const QString& caption, Binding::Command command) {
    QPushButton* button = MakeButton(binding(), caption, std::move(command));
    row->addWidget(button);
    return button;
  }

  void ShowContents() {
    browser_->setSource(contents_, QTextDocument::HtmlResource);
    browser_->moveCursor(QTextCursor::Start);
  }

  /// From the place at hand on, then from the start of the document.
  void FindNext() {
    const QString text = find_->text();
    if (text.isEmpty() || browser_->find(text)) return;
    const QTextCursor here = browser_->textCursor();
    browser_->moveCursor(QTextCursor::Start);
    if (!browser_->find(text)) browser_->setTextCursor(here);
  }

  QTextBrowser* browser_ = Named("Help", new QTextBrowser);
  QLineEdit* find_ = nullptr;
  std::string sought_;
  QUrl contents_;
};

}  // namespace

ToolWindow* MakeHelpWindow(WindowContext context) { return new HelpWindow(context); }

void ShowHelpDocument(ToolWindow* helpWindow, const QString& path, const QString& section) {
  if (auto* window = dynamic_cast<HelpWindow*>(helpWindow)) window->ShowDocument(path, section);
}

}  // namespace lignara
