#include "desktop/session/control_kinds.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QTableWidget>
#include <map>

#include "desktop/kit/picture_widget.h"

namespace lignara {

bool IsControl(const QWidget* widget) {
  return IsAny<QAbstractButton, QLineEdit, QListWidget, QTableWidget, Picture, QScrollBar>(widget);
}

bool IsList(const QWidget* widget) { return IsAny<QListWidget, QTableWidget>(widget); }

bool IsTypedInto(const QWidget* widget) {
  const auto* field = qobject_cast<const QLineEdit*>(widget);
  return field != nullptr && !field->isReadOnly();
}

std::size_t KindOf(const QWidget* widget, const Kinds& kinds) {
  std::size_t kind = 0;
  while (kind < kinds.size() && !kinds[kind](widget)) ++kind;
  return kind;
}

const Kinds& KindsOf(UserAction::Kind action) {
  using Kind = UserAction::Kind;
  // Where a field and a list bear the same name, keys go to the field.
  static const Kinds keys = {IsTypedInto, IsList, IsControl};
  static const std::map<Kind, Kinds> table = {{Kind::Press, {IsAny<QAbstractButton>}},
                                              {Kind::Enter, {IsTypedInto}},
                                              {Kind::ComeInto, keys},
                                              {Kind::Key, keys},
                                              {Kind::Select, {IsAny<QListWidget>}},
                                              {Kind::Click, {IsAny<Picture>}},
                                              {Kind::Scroll, {IsAny<QScrollBar>}}};
  static const Kinds none;
  const auto found = table.find(action);
  return found == table.end() ? none : found->second;
}

WidgetFilter Visible(WidgetFilter kind) {
  return [kind](const QWidget* widget) { return widget->isVisible() && kind(widget); };
}

Kinds AllVisible(const Kinds& kinds) {
  Kinds visible;
  for (const WidgetFilter& kind : kinds) visible.push_back(Visible(kind));
  return visible;
}

}  // namespace lignara
