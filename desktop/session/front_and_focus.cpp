#include "desktop/session/front_and_focus.h"

#include "desktop/kit/binding.h"
#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/tool_window.h"
#include "desktop/session/control_names.h"
#include "desktop/session/script_error.h"

namespace lignara {
namespace {

/// A list and the field below it may bear the same name.
Kinds KindsLike(const QWidget* control) {
  if (IsTypedInto(control)) return {IsTypedInto};
  if (IsList(control)) return {IsList};
  return {IsControl};
}

void LeadFocusBack(ToolWindow* window, const UserPlace& place) {
  try {
    QWidget* control = FindControl(window, place.control, {AllVisible(place.kinds)});
    if (control->isEnabled() && !ActsOnEntry(control)) control->setFocus();
  } catch (const ScriptError&) {
    // It is not there any more: the focus stays where the program has led it.
  }
}

}  // namespace

UserPlace PlaceOfUser(const DesktopPlatform& platform) {
  ToolWindow* window = platform.Front();
  if (window == nullptr) return {};
  QWidget* focus = window->focusWidget();
  if (focus == nullptr) return {window->name(), {}, {}};
  const Kinds kinds = KindsLike(focus);
  return {window->name(), ControlNames(window).ShortestName(focus, kinds), kinds};
}

void LeadBack(const UserPlace& place, DesktopPlatform& platform) {
  ToolWindow* window = platform.FindWindow(place.window);
  if (window == nullptr || platform.IsBlocked(window)) return;
  platform.Activate(window);
  if (!place.control.isEmpty()) LeadFocusBack(window, place);
}

}  // namespace lignara
