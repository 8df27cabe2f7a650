#include "desktop/kit/tab_order.h"

#include <QWidget>
#include <algorithm>
#include <vector>

namespace lignara {
namespace {

/// The widgets of a part that can have the focus, in the order of the Tab key, but for those
/// that an earlier part holds.
void AddStops(QWidget* part, std::vector<QWidget*>& stops) {
  const auto add = [&](QWidget* widget) {
    const bool known = std::find(stops.begin(), stops.end(), widget) != stops.end();
    if (!known && widget->focusPolicy() != Qt::NoFocus) stops.push_back(widget);
  };
  add(part);
  for (QWidget* at = part->nextInFocusChain(); at != part; at = at->nextInFocusChain()) {
    if (part->isAncestorOf(at)) add(at);
  }
}

}  // namespace

void TabThrough(std::initializer_list<QWidget*> parts) {
  std::vector<QWidget*> stops;
  for (QWidget* part : parts) AddStops(part, stops);
  for (std::size_t i = 1; i < stops.size(); ++i) QWidget::setTabOrder(stops[i - 1], stops[i]);
}

}  // namespace lignara
