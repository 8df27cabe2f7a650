#include "desktop/kit/window_places.h"

#include <QWidget>
#include <algorithm>

namespace lignara {
namespace {

QRect OnScreen(QRect place, const QRect& screen) {
  place.setSize(place.size().boundedTo(screen.size()));
  place.moveLeft(std::clamp(place.left(), screen.left(), screen.right() - place.width() + 1));
  place.moveTop(std::clamp(place.top(), screen.top(), screen.bottom() - place.height() + 1));
  return place;
}

}  // namespace

void WindowPlaces::Put(QWidget* window, const QRect& first, const QRect& screen) {
  Place& place = places_[window->objectName()];
  const QRect put = place.left.isNull() ? first : OnScreen(place.left, screen);
  window->resize(put.size());
  window->move(put.topLeft());
  if (place.maximized) window->setWindowState(Qt::WindowMaximized);
  place.given = {window->pos(), window->size()};
}

void WindowPlaces::Remember(const QWidget* window) {
  const auto at = places_.find(window->objectName());
  if (at == places_.end()) return;
  at->second.maximized = window->isMaximized();
  const QRect now(window->pos(), window->size());
  if (!window->isMaximized() && now != at->second.given) at->second.left = now;
}

}  // namespace lignara
