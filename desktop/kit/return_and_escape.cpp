#include "desktop/kit/return_and_escape.h"

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

bool IsAble(const QPushButton* button) {
  return button != nullptr && button->isVisible() && button->isEnabled();
}

bool Click(QPushButton* button) {
  const bool able = IsAble(button);
  if (able) button->click();
  return able;
}

/// The button of the innermost area around a widget that can be pressed; null where an area on the
/// way there has a command of its own.
QPushButton* InnermostButton(QWidget* widget, const char* button, const char* command) {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    if (widget->property(command).isValid()) return nullptr;
    if (IsAble(ButtonOf(widget, button))) return ButtonOf(widget, button);
    if (widget->isWindow()) break;
  }
  return nullptr;
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

QPushButton* ReturnButtonOf(QWidget* widget) {
  return InnermostButton(widget, kReturnButton, kReturnCommand);
}

QPushButton* EscapeButtonOf(QWidget* widget) {
  return InnermostButton(widget, kEscapeButton, kEscapeCommand);
}

bool PressReturn(QWidget* widget) {
  return RunCommand(widget, kReturnCommand) || Click(ReturnButtonOf(widget));
}

}  // namespace lignara
