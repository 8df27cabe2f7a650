#include "desktop/kit/area_keys.h"

#include <QListWidget>
#include <QMainWindow>
#include <QPushButton>
#include <QVariant>

namespace lignara {
namespace {

using Command = std::function<void()>;

constexpr const char* kReturnButton = "returnButton";
constexpr const char* kEscapeButton = "escapeButton";
constexpr const char* kEscapeCommand = "escapeCommand";

QPushButton* ButtonOf(const QWidget* area, const char* key) {
  return qobject_cast<QPushButton*>(area->property(key).value<QObject*>());
}

bool CanBePressed(const QPushButton* button) {
  return button != nullptr && button->isVisible() && button->isEnabled();
}

QPushButton* ButtonFor(QWidget* widget, const char* key) {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    QPushButton* button = ButtonOf(widget, key);
    if (CanBePressed(button)) return button;
    if (widget->isWindow()) break;
  }
  return nullptr;
}

void SetButton(QWidget* area, const char* key, QPushButton* button) {
  area->setProperty(key, QVariant::fromValue<QObject*>(button));
}

}  // namespace

void SetReturnButton(QWidget* area, QPushButton* button) {
  SetButton(area, kReturnButton, button);
  if (qobject_cast<QMainWindow*>(area->parentWidget()) != nullptr) button->setDefault(true);
  if (auto* list = qobject_cast<QListWidget*>(area)) {
    QObject::connect(list, &QListWidget::itemDoubleClicked, button,
                     [button](QListWidgetItem*) { button->click(); });
  }
}

void SetEscapeButton(QWidget* area, QPushButton* button) { SetButton(area, kEscapeButton, button); }

void SetEscapeCommand(QWidget* panel, Command command) {
  panel->setProperty(kEscapeCommand, QVariant::fromValue(std::move(command)));
}

bool HasEscape(const QWidget* area) {
  return ButtonOf(area, kEscapeButton) != nullptr || area->property(kEscapeCommand).isValid();
}

bool PressEscape(QWidget* area) {
  if (const QVariant command = area->property(kEscapeCommand); command.isValid()) {
    command.value<Command>()();
    return true;
  }
  QPushButton* button = ButtonOf(area, kEscapeButton);
  if (!CanBePressed(button)) return false;
  button->click();
  return true;
}

QPushButton* ReturnButtonFor(QWidget* widget) { return ButtonFor(widget, kReturnButton); }
QPushButton* EscapeButtonFor(QWidget* widget) { return ButtonFor(widget, kEscapeButton); }

}  // namespace lignara
