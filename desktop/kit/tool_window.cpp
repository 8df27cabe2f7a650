#include "desktop/kit/tool_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>

#include "app/help.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/focus_mark.h"
#include "desktop/kit/form.h"
#include "desktop/kit/scroll_page.h"
#include "desktop/kit/standard_keys.h"
#include "desktop/kit/text.h"

namespace lignara {
namespace {

/// No window insists on more room than this, so that each fits beside others on a small screen.
constexpr QSize kMostInsisted(1000, 700);

}  // namespace

ToolWindow::ToolWindow(const char* name, WindowContext context)
    : name_(name),
      context_(context),
      binding_(
          [this] {
            platform().RefreshWindows();
            platform().EndCommand();
          },
          [this](const UserAction& action) { platform().BeginCommand(this, action); },
          [this](QWidget* panel) { SetButtonKeys(this, panel); }) {
  setObjectName(name_);
}

DesktopPlatform& ToolWindow::platform() { return context_.platform; }

void ToolWindow::CloseControl() { platform().CloseWindow(FromQt(name_)); }

void ToolWindow::CloseForGood() {
  closingForGood_ = true;
  binding_.Release();
  close();
}

void ToolWindow::Furnish(const QSize& screen) {
  QWidget* focus = focusWidget();
  QWidget* content = takeCentralWidget();
  auto* page = new ScrollPage(this);
  page->Hold(content);
  setCentralWidget(page);
  const auto* status = findChild<QStatusBar*>(QString(), Qt::FindDirectChildrenOnly);
  int bars = menuWidget() == nullptr ? 0 : menuWidget()->sizeHint().height();
  if (status != nullptr) bars += status->sizeHint().height();
  page->SetMost(kMostInsisted.boundedTo(screen) - QSize(0, bars));
  if (focus != nullptr) focus->setFocus();
  SetStandardKeys(this);
  SetSessionKeys(this, platform());
  new FocusMark(this);
}

QMenu* ToolWindow::AddHelpMenu() {
  QMenu* menu = menuBar()->addMenu("&Help");
  QAction* help = menu->addAction("&Help");
  help->setShortcut(QKeySequence::HelpContents);
  binding_.Menu(help, [this] { ShowHelp(FromQt(name_), session(), platform()); });
  return menu;
}

QLabel* ToolWindow::AddStatusText(const char* name) {
  auto* text = Named(name, new QLabel);
  text->setContentsMargins(6, 0, 6, 0);
  statusBar()->addWidget(text, 1);
  return text;
}

void ToolWindow::AddStatusLine() { statusBar()->setSizeGripEnabled(true); }

void ToolWindow::ShowNote(const QString& note) {
  constexpr int kMilliseconds = 20000;
  statusBar()->showMessage(note, kMilliseconds);
}

bool ToolWindow::event(QEvent* event) {
  const bool handled = QMainWindow::event(event);
  // A desktop may activate a window behind a modal one: the user can do nothing in there.
  const bool active = event->type() == QEvent::WindowActivate;
  if (active && !platform().IsPlayed() && !platform().IsBlocked(this)) platform().NoteActive(this);
  return handled;
}

void ToolWindow::closeEvent(QCloseEvent* event) {
  if (closingForGood_) {
    event->accept();
    return;
  }
  event->ignore();
  binding_.Act({UserAction::Kind::Close}, [this] { CloseControl(); });
}

void ToolWindow::keyPressEvent(QKeyEvent* event) {
  QWidget* focus = focusWidget() != nullptr ? focusWidget() : this;
  const bool entered = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool left = event->key() == Qt::Key_Escape;
  if (entered && Enter(focus)) return;
  if (left && (binding_.panels().CloseNewest() || LeaveArea(focus))) return;
  QMainWindow::keyPressEvent(event);
}

QPushButton* ToolWindow::ButtonOfKey(Qt::Key key) {
  QWidget* focus = focusWidget() != nullptr ? focusWidget() : this;
  if (key != Qt::Key_Escape) return ReturnButtonOf(focus);
  QWidget* newest = binding_.panels().Newest();
  return EscapeButtonOf(newest != nullptr ? newest : focus);
}

bool ToolWindow::Enter(QWidget* focus) {
  auto* button = qobject_cast<QPushButton*>(focus);
  if (button == nullptr) return PressReturn(focus);
  button->click();
  return true;
}

}  // namespace lignara
