#include "desktop/kit/screen_readers.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QVariant>

#include "desktop/kit/picture_widget.h"

namespace lignara {
namespace {

constexpr const char* kScriptName = "scriptName";

QAccessibleInterface* ReaderOf(const QString&, QObject* object) {
  auto* picture = dynamic_cast<Picture*>(object);
  return picture == nullptr ? nullptr : new QAccessibleWidget(picture, QAccessible::Graphic);
}

}  // namespace

void TellReadersOfPictures() {
  static bool told = false;
  if (!told) QAccessible::installFactory(ReaderOf);
  told = true;
}

void SetSpokenName(QWidget* widget, const QString& scriptName, const QString& spoken) {
  widget->setProperty(kScriptName, scriptName);
  widget->setAccessibleName(spoken);
}

QString ScriptNameOf(const QWidget* widget) {
  // Hardly a widget has any, and all its class has would be searched first.
  const bool mayHave = !widget->dynamicPropertyNames().isEmpty();
  return mayHave ? widget->property(kScriptName).toString() : QString();
}

void Describe(QWidget* widget, const QString& words) {
  if (widget->accessibleDescription() != words) widget->setAccessibleDescription(words);
}

}  // namespace lignara
