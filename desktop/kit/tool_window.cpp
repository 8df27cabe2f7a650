#include "desktop/kit/tool_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPushButton>

#include "app/launcher.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/text.h"

namespace lignara {
namespace {

constexpr const char* kReturnButton = "returnButton";
constexpr const char* kEscapeButton = "escapeButton";

void SetKeyButton(QWidget* area, const char* key, QPushButton* button) {
  area->setProperty(key, QVariant::fromValue<QObject*>(button));
}

/// The button that a key presses for a widget: that of the innermost area around it.
QPushButton* KeyButton(QWidget* widget, const char* key) {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    auto* button = qobject_cast<QPushButton*>(widget->property(key).value<QObject*>());
    if (button != nullptr && button->isVisible() && button->isEnabled()) return button;
    if (widget->isWindow()) break;
  }
  return nullptr;
}

}  // namespace

ToolWindow::ToolWindow(const char* name, WindowContext context)
    : name_(name), context_(context), binding_([this] { platform().RefreshWindows(); }) {
  setObjectName(name_);
}

DesktopPlatform& ToolWindow::platform() { return context_.platform; }

void ToolWindow::CloseControl() { platform().CloseWindow(FromQt(name_)); }

void ToolWindow::CloseForGood() {
  closingForGood_ = true;
  binding_.Release();
  close();
}

void SetReturnButton(QWidget* area, QPushButton* button) {
  SetKeyButton(area, kReturnButton, button);
  if (qobject_cast<QMainWindow*>(area->parentWidget()) != nullptr) button->setDefault(true);
}

void SetEscapeButton(QWidget* area, QPushButton* button) {
  SetKeyButton(area, kEscapeButton, button);
}

QMenu* ToolWindow::AddHelpMenu() {
  QMenu* menu = menuBar()->addMenu("&Help");
  QAction* help = menu->addAction("&Help");
  help->setShortcut(QKeySequence::HelpContents);
  binding_.Menu(help, [this] { ShowHelp(FromQt(name_), session(), platform()); });
  return menu;
}

bool ToolWindow::event(QEvent* event) {
  const bool handled = QMainWindow::event(event);
  if (event->type() == QEvent::WindowActivate) platform().NoteActive(this);
  return handled;
}

void ToolWindow::closeEvent(QCloseEvent* event) {
  if (closingForGood_) {
    event->accept();
    return;
  }
  event->ignore();
  binding_.Run([this] { CloseControl(); });
}

void ToolWindow::keyPressEvent(QKeyEvent* event) {
  QWidget* focus = focusWidget() != nullptr ? focusWidget() : this;
  QPushButton* button = nullptr;
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    button = qobject_cast<QPushButton*>(focus);
    if (button == nullptr) button = KeyButton(focus, kReturnButton);
  } else if (event->key() == Qt::Key_Escape) {
    button = KeyButton(focus, kEscapeButton);
  }
  if (button == nullptr) {
    QMainWindow::keyPressEvent(event);
  } else {
    button->click();
  }
}

QGroupBox* MakePanel(const QString& caption) {
  auto* panel = new QGroupBox(caption);
  panel->setAccessibleName(PlainCaption(caption));
  return panel;
}

}  // namespace lignara
