#pragma once

#include <QWidget>
#include <functional>
#include <type_traits>
#include <vector>

#include "desktop/kit/user_action.h"

namespace lignara {

/// A choice among widgets, such as "lists".
using WidgetFilter = std::function<bool(const QWidget*)>;

/// Kinds of widgets, the preferred first.
using Kinds = std::vector<WidgetFilter>;

/// The toolkit tells the classes sooner that it knows, ours are none of those.
template <typename Widget>
bool Is(const QWidget* widget) {
  using Known = const QMetaObject* (Widget::*)() const;
  if constexpr (std::is_same_v<decltype(&Widget::metaObject), Known>) {
    return qobject_cast<const Widget*>(widget) != nullptr;
  } else {
    return dynamic_cast<const Widget*>(widget) != nullptr;
  }
}

template <typename... Widgets>
bool IsAny(const QWidget* widget) {
  return (Is<Widgets>(widget) || ...);
}

/// What a user can act on. Lists and pictures have scroll bars and viewports of their own inside;
/// those have no names.
bool IsControl(const QWidget* widget);
bool IsList(const QWidget* widget);
/// A field that takes text.
bool IsTypedInto(const QWidget* widget);

/// The place of a widget's kind; the number of kinds when it is of none.
std::size_t KindOf(const QWidget* widget, const Kinds& kinds);

/// The controls among which a script line of an action looks.
const Kinds& KindsOf(UserAction::Kind action);

/// The same, of what can be seen.
Kinds AllVisible(const Kinds& kinds);
WidgetFilter Visible(WidgetFilter kind);

}  // namespace lignara
