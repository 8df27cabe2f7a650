#include "desktop/kit/area_keys.h"

#include <QListWidget>
#include <QMainWindow>
#include <QPushButton>
#include <QVariant>

namespace lignara {
namespace {

using Command = std::function<void()>;

constexpr const char* kReturnButton = "returnButton";
constexpr const char* kReturnCommand = "returnCommand";
constexpr const char* kEscapeButton = "escapeButton";
constexpr const char* kEscapeCommand = "escapeCommand";

QPushButton* ButtonOf(const QWidget* area, const char* key) {
  return qobject_cast<QPushButton*>(area->property(key).value<QObject*>());
}

bool Click(QPushButton* button) {
  const bool able = button != nullptr && button->isVisible() && button->isEnabled();
  if (able) button->click();
  return able;
}

bool RunCommand(const QWidget* widget, const char* key) {
  const QVariant command = widget->property(key);
  if (command.isValid()) command.value<Command>()();
  return command.isValid();
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

void SetReturnCommand(QWidget* field, Command command) {
  field->setProperty(kReturnCommand, QVariant::fromValue(std::move(command)));
}

void SetEscapeButton(QWidget* area, QPushButton* button) { SetButton(area, kEscapeButton, button); }

void SetEscapeCommand(QWidget* panel, Command command) {
  panel->setProperty(kEscapeCommand, QVariant::fromValue(std::move(command)));
}

bool HasEscape(const QWidget* area) {
  return ButtonOf(area, kEscapeButton) != nullptr || area->property(kEscapeCommand).isValid();
}

bool PressEscape(QWidget* area) {
  return RunCommand(area, kEscapeCommand) || Click(ButtonOf(area, kEscapeButton));
}

bool LeaveArea(QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    if (PressEscape(widget)) return true;
    if (widget->isWindow()) break;
  }
  return false;
}

bool PressReturn(QWidget* widget) {
  if (RunCommand(widget, kReturnCommand)) return true;
  for (; widget != nullptr; widget = widget->parentWidget()) {
    if (Click(ButtonOf(widget, kReturnButton))) return true;
    if (widget->isWindow()) break;
  }
  return false;
}

}  // namespace lignara
