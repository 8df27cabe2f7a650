#include "desktop/kit/standard_keys.h"

#include <QAction>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>

#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/session_commands.h"
#include "desktop/kit/text.h"

namespace lignara {
namespace {

struct StandardKey {
  const char* caption;
  QKeySequence key;
};

const StandardKey kMenuKeys[] = {
    {"Print", QKeySequence(Qt::CTRL | Qt::Key_P)},
    {"Print Report", QKeySequence(Qt::CTRL | Qt::Key_P)},
    {"Print Both", QKeySequence(Qt::CTRL | Qt::Key_P)},
    {"Save Output to Text File...", QKeySequence(Qt::CTRL | Qt::Key_S)},
    {"Save Output to Text File", QKeySequence(Qt::CTRL | Qt::Key_S)},
    {"Save Text Output to File...", QKeySequence(Qt::CTRL | Qt::Key_S)},
};

const StandardKey kButtonKeys[] = {
    {"Run", QKeySequence(Qt::Key_F5)},
    {"RUN", QKeySequence(Qt::Key_F5)},
    {"Print", QKeySequence(Qt::CTRL | Qt::Key_P)},
    {"Save Output to Text File", QKeySequence(Qt::CTRL | Qt::Key_S)},
    {"Save as CSV...", QKeySequence(Qt::CTRL | Qt::Key_S)},
    {"Compute", QKeySequence(Qt::Key_F5)},
};

template <typename Table>
QKeySequence KeyOf(const Table& table, const QString& caption) {
  for (const StandardKey& row : table) {
    if (caption == row.caption) return row.key;
  }
  return {};
}

/// Panels that take each other's place may each have a button of the same key, which is that of the
/// visible one: so the keys of buttons are not taken.
QList<QKeySequence> KeysTaken(const QMainWindow* window) {
  QList<QKeySequence> taken;
  for (const QAction* action : window->findChildren<QAction*>()) taken << action->shortcuts();
  for (const QShortcut* shortcut : window->findChildren<QShortcut*>()) {
    if (qobject_cast<QPushButton*>(shortcut->parent()) == nullptr) taken << shortcut->key();
  }
  return taken;
}

void SetMenuKeys(QMainWindow* window, QList<QKeySequence>& taken) {
  for (QAction* action : window->findChildren<QAction*>()) {
    if (action->menu() != nullptr) continue;  // a menu in a menu has the captions of its own items
    const QKeySequence key = KeyOf(kMenuKeys, PlainCaption(action->text()));
    if (key.isEmpty() || !action->shortcut().isEmpty() || taken.contains(key)) continue;
    action->setShortcut(key);
    taken << key;
  }
}

void SetFreeButtonKeys(const QWidget* area, const QList<QKeySequence>& taken) {
  for (QPushButton* button : area->findChildren<QPushButton*>()) {
    const QString caption = PlainCaption(button->text());
    const QKeySequence key = KeyOf(kButtonKeys, caption);
    if (key.isEmpty() || taken.contains(key)) continue;
    QObject::connect(new QShortcut(key, button), &QShortcut::activated, button, [button] {
      if (button->isVisible() && button->isEnabled()) button->click();
    });
    if (button->toolTip().isEmpty()) button->setToolTip(caption + " (" + key.toString() + ")");
  }
}

void SetCloseKey(QMainWindow* window, const QList<QKeySequence>& taken) {
  const QKeySequence close(Qt::CTRL | Qt::Key_W);
  if (taken.contains(close)) return;
  QObject::connect(new QShortcut(close, window), &QShortcut::activated, window, &QWidget::close);
}

}  // namespace

void SetButtonKeys(const QMainWindow* window, const QWidget* area) {
  SetFreeButtonKeys(area, KeysTaken(window));
}

void SetStandardKeys(QMainWindow* window) {
  QList<QKeySequence> taken = KeysTaken(window);
  SetMenuKeys(window, taken);
  SetFreeButtonKeys(window, taken);
  SetCloseKey(window, taken);
}

void SetSessionKeys(QMainWindow* window, const DesktopPlatform& platform) {
  struct SessionKey {
    QKeySequence key;
    void (SessionCommands::*command)();
  };
  static const SessionKey keys[] = {
      {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), &SessionCommands::Save},
      {QKeySequence(Qt::CTRL | Qt::Key_O), &SessionCommands::Open},
      {QKeySequence(Qt::CTRL | Qt::Key_Z), &SessionCommands::Undo},
      {QKeySequence(Qt::CTRL | Qt::Key_Y), &SessionCommands::Redo},
      {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), &SessionCommands::Redo}};
  const QList<QKeySequence> taken = KeysTaken(window);
  for (const SessionKey& row : keys) {
    if (taken.contains(row.key)) continue;
    const auto command = row.command;
    QObject::connect(new QShortcut(row.key, window), &QShortcut::activated, window,
                     [&platform, command] {
                       if (platform.sessions() != nullptr) (platform.sessions()->*command)();
                     });
  }
}

}  // namespace lignara
