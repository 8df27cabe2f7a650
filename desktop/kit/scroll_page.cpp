#include "desktop/kit/scroll_page.h"

#include <QBoxLayout>
#include <QEvent>
#include <QScrollBar>
#include <algorithm>

namespace lignara {

namespace {

/// The least room of columns side by side, without the margins around them.
QSize SideBySide(const QBoxLayout* columns) {
  QSize room(0, 0);
  for (int i = 0; i < columns->count(); ++i) {
    const QLayoutItem* column = columns->itemAt(i);
    if (column->isEmpty()) continue;
    const QSize least = column->minimumSize();
    const int gap = room.width() > 0 ? columns->spacing() : 0;
    room = {room.width() + gap + least.width(), std::max(room.height(), least.height())};
  }
  return room;
}

}  // namespace

ScrollPage::ScrollPage(QWidget* parent) : QScrollArea(parent), most_(1000, 640) {
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
}

void ScrollPage::Hold(QWidget* content) {
  content_ = content;
  content_->setParent(viewport());
  content_->setAttribute(Qt::WA_Resized);  // nobody has to measure it until then
  auto* columns = qobject_cast<QBoxLayout*>(content_->layout());
  if (columns != nullptr && columns->direction() == QBoxLayout::LeftToRight) columns_ = columns;
}

void ScrollPage::TakeIn() {
  if (widget() != nullptr || content_ == nullptr) return;
  content_->setAttribute(Qt::WA_Resized, false);
  setWidget(content_);
}

void ScrollPage::SetMost(const QSize& most) {
  most_ = most;
  updateGeometry();
}

QSize ScrollPage::sizeHint() const {
  return content_ == nullptr ? QScrollArea::sizeHint() : WithBars(content_->sizeHint());
}

QSize ScrollPage::minimumSizeHint() const {
  if (content_ == nullptr) return QScrollArea::minimumSizeHint();
  const QSize least = content_->minimumSizeHint().expandedTo(content_->minimumSize());
  return WithBars(least).boundedTo(most_);
}

bool ScrollPage::focusNextPrevChild(bool next) {
  return widget() == nullptr ? QWidget::focusNextPrevChild(next)
                             : QScrollArea::focusNextPrevChild(next);
}

/// A bar that is needed one way takes room the other way.
QSize ScrollPage::WithBars(const QSize& size) const {
  const bool beside = size.height() > most_.height();
  const bool below = size.width() > most_.width();
  return size + QSize(beside ? verticalScrollBar()->sizeHint().width() : 0,
                      below ? horizontalScrollBar()->sizeHint().height() : 0);
}

bool ScrollPage::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest) {
    Arrange();
    updateGeometry();
  }
  return QScrollArea::eventFilter(watched, event);
}

void ScrollPage::resizeEvent(QResizeEvent* event) {
  Arrange();
  QScrollArea::resizeEvent(event);
}

void ScrollPage::Arrange() {
  if (columns_ == nullptr || widget() == nullptr) return;
  const QMargins margins = columns_->contentsMargins();
  const QSize room = maximumViewportSize().shrunkBy(margins);
  const QSize needed = SideBySide(columns_);
  const int bar = needed.height() > room.height() ? verticalScrollBar()->sizeHint().width() : 0;
  const bool wide = needed.width() + bar <= room.width();
  const auto direction = wide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
  if (columns_->direction() != direction) columns_->setDirection(direction);
}

std::vector<ScrollPage*> PagesOf(const QWidget* window) {
  std::vector<ScrollPage*> pages;
  // A page is no class of its own to the toolkit: asked for it, it would give any scroll area.
  for (QScrollArea* area : window->findChildren<QScrollArea*>()) {
    if (auto* page = dynamic_cast<ScrollPage*>(area)) pages.push_back(page);
  }
  return pages;
}

void TakeInContents(const QWidget* window) {
  for (ScrollPage* page : PagesOf(window)) page->TakeIn();
}

void Reveal(QWidget* widget) {
  constexpr int kMargin = 8;
  const QSize half = widget->size() / 2 + QSize(kMargin, kMargin);
  for (QWidget* at = widget->parentWidget(); at != nullptr; at = at->parentWidget()) {
    auto* area = qobject_cast<QScrollArea*>(at);
    if (area == nullptr || area->widget() == nullptr) continue;
    const QPoint centre = widget->mapTo(area->widget(), widget->rect().center());
    area->ensureVisible(centre.x(), centre.y(), half.width(), half.height());
  }
}

}  // namespace lignara
