#include "desktop/session/played_keys.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <functional>
#include <vector>

#include "desktop/kit/lead_focus.h"
#include "desktop/kit/tool_window.h"

namespace lignara {
namespace {

/// What a key means to a widget, and to whom.
struct Meaning {
  const QObject* owner;
  std::function<void()> act;
};

bool IsThere(const QWidget* widget, const QMainWindow* window) {
  return widget != nullptr && widget->isVisible() && widget->isEnabled() &&
         widget->window() == window;
}

/// False where a key is meant for a single widget that has the focus.
bool IsForWindow(Qt::ShortcutContext context) {
  return context == Qt::WindowShortcut || context == Qt::ApplicationShortcut;
}

void ClickByKey(QAbstractButton* button) {
  // What can be switched on comes to have the focus, as under the hand.
  if (button->isCheckable() && (button->focusPolicy() & Qt::ClickFocus) != 0) LeadFocus(button);
  button->click();
}

void AddButtons(QMainWindow* window, const QKeySequence& key, std::vector<Meaning>& meanings) {
  for (QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
    if (button->shortcut() != key || !IsThere(button, window)) continue;
    meanings.push_back({button, [button] { ClickByKey(button); }});
  }
}

void AddShortcuts(QMainWindow* window, const QKeySequence& key, std::vector<Meaning>& meanings) {
  for (QShortcut* shortcut : window->findChildren<QShortcut*>()) {
    const auto* owner = qobject_cast<QWidget*>(shortcut->parent());
    const bool means = shortcut->key() == key && shortcut->isEnabled() &&
                       IsForWindow(shortcut->context()) && IsThere(owner, window);
    if (!means) continue;
    meanings.push_back({owner, [shortcut] { emit shortcut->activated(); }});
  }
}

void AddItems(QMainWindow* window, const QKeySequence& key, std::vector<Meaning>& meanings) {
  for (QAction* item : window->findChildren<QAction*>()) {
    const bool means = item->shortcuts().contains(key) && item->isEnabled() && item->isVisible() &&
                       IsForWindow(item->shortcutContext());
    if (!means) continue;
    meanings.push_back({item, [item] { item->trigger(); }});
  }
}

void AddCaptions(QMainWindow* window, const QKeySequence& key, std::vector<Meaning>& meanings) {
  for (const QLabel* label : window->findChildren<QLabel*>()) {
    QWidget* field = label->buddy();
    const bool means = IsThere(field, window) && label->isVisible() &&
                       QKeySequence::mnemonic(label->text()) == key;
    if (means) meanings.push_back({field, [field] { LeadFocus(field, Qt::ShortcutFocusReason); }});
  }
}

std::vector<Meaning> MeaningsOf(QMainWindow* window, const QKeySequence& key) {
  std::vector<Meaning> meanings;
  AddButtons(window, key, meanings);
  AddShortcuts(window, key, meanings);
  AddItems(window, key, meanings);
  AddCaptions(window, key, meanings);
  return meanings;
}

bool Presses(const QKeySequence& key, const QAbstractButton* button, QMainWindow* window) {
  if (key.isEmpty()) return false;
  const std::vector<Meaning> meanings = MeaningsOf(window, key);
  return meanings.size() == 1 && meanings.front().owner == button;
}

}  // namespace

bool PressWindowKey(QMainWindow* window, const QKeySequence& key) {
  const std::vector<Meaning> meanings = MeaningsOf(window, key);
  if (meanings.size() != 1) return false;
  meanings.front().act();
  return true;
}

QKeySequence KeyThatPresses(const QAbstractButton* button, ToolWindow* window) {
  if (button->isCheckable()) return {};  // its key brings the focus along
  for (const QShortcut* shortcut : button->findChildren<QShortcut*>()) {
    if (Presses(shortcut->key(), button, window)) return shortcut->key();
  }
  if (Presses(button->shortcut(), button, window)) return button->shortcut();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    if (window->ButtonOfKey(key) == button) return QKeySequence(key);
  }
  return {};
}

}  // namespace lignara
