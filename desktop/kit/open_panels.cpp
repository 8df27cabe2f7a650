#include "desktop/kit/open_panels.h"

#include <QRadioButton>
#include <QVariant>
#include <algorithm>

#include "desktop/kit/lead_focus.h"
#include "desktop/kit/return_and_escape.h"

namespace lignara {
namespace {

constexpr const char* kFocusBack = "focusBack";

bool IsTabStop(const QWidget* widget) {
  return widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) != 0;
}

/// The option that is on stands for all of its group.
bool IsOptionThatIsOff(const QWidget* widget) {
  const auto* option = qobject_cast<const QRadioButton*>(widget);
  return option != nullptr && !option->isChecked();
}

bool Holds(const QWidget* panel, const QWidget* widget) {
  return widget != nullptr && (panel == widget || panel->isAncestorOf(widget));
}

void Focus(QWidget* widget) {
  // As the Tab key does: a field is marked whole, ready to be typed over.
  if (widget != nullptr && widget->isEnabled()) LeadFocus(widget, Qt::TabFocusReason);
}

}  // namespace

void ReturnFocusTo(QWidget* panel, QWidget* widget) {
  panel->setProperty(kFocusBack, QVariant::fromValue<QObject*>(widget));
}

QWidget* FirstTabStop(QWidget* area) {
  QWidget* first = nullptr;
  for (QWidget* at = area->nextInFocusChain(); at != area; at = at->nextInFocusChain()) {
    if (!area->isAncestorOf(at) || !IsTabStop(at)) continue;
    if (!IsOptionThatIsOff(at)) return at;
    if (first == nullptr) first = at;
  }
  return first;
}

void OpenPanels::SetShown(QWidget* panel, bool shown) {
  if (panel->isHidden() != shown) return;
  if (!HasEscape(panel)) {
    panel->setVisible(shown);
  } else if (shown) {
    Show(panel);
  } else {
    Hide(panel);
  }
}

void OpenPanels::Show(QWidget* panel) {
  open_.push_back({panel, panel->window()->focusWidget()});
  panel->setVisible(true);
  if (panel->window()->isVisible()) Focus(FirstTabStop(panel));
}

void OpenPanels::Hide(QWidget* panel) {
  const auto at = std::find_if(open_.begin(), open_.end(),
                               [panel](const Open& open) { return open.panel == panel; });
  const bool hadFocus = Holds(panel, panel->window()->focusWidget());
  auto* back = qobject_cast<QWidget*>(panel->property(kFocusBack).value<QObject*>());
  if (at != open_.end()) {
    if (back == nullptr) back = at->before;
    open_.erase(at);
  }
  // A panel that was opened from this one would give the focus back to what is gone.
  for (Open& open : open_) {
    if (Holds(panel, open.before)) open.before = back;
  }
  // First the focus: from a panel that goes it would fall on any field on its way.
  if (hadFocus && panel->window()->isVisible()) Focus(back);
  panel->setVisible(false);
}

QWidget* OpenPanels::Newest() {
  std::erase_if(open_, [](const Open& open) { return !open.panel || open.panel->isHidden(); });
  return open_.empty() ? nullptr : open_.back().panel;
}

bool OpenPanels::CloseNewest() {
  QWidget* newest = Newest();
  return newest != nullptr && PressEscape(newest);
}

}  // namespace lignara
