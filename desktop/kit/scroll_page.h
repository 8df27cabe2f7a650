#pragma once

#include <QScrollArea>
#include <vector>

class QBoxLayout;

namespace lignara {

/// Holds what stands in a window, or in a part of it, and lets the user scroll where the room is
/// too small for it. It wants the room that its content wants and is content with `most()`. Columns
/// for which it is too narrow stand below each other, so that one has to scroll one way only.
class ScrollPage : public QScrollArea {
 public:
  explicit ScrollPage(QWidget* parent = nullptr);

  /// Holds a widget. It is laid out when it is taken in, which a window that is seen does before it
  /// is shown.
  void Hold(QWidget* content);
  void TakeIn();

  /// The room that it insists on at most.
  void SetMost(const QSize& most);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  bool focusNextPrevChild(bool next) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Arrange();
  QSize WithBars(const QSize& size) const;

  QSize most_;
  QWidget* content_ = nullptr;
  QBoxLayout* columns_ = nullptr;  ///< of the content, where it has any
};

/// The pages in a window, outer ones first.
std::vector<ScrollPage*> PagesOf(const QWidget* window);

/// Takes in what the pages of a window hold.
void TakeInContents(const QWidget* window);

/// Scrolls all areas around a widget so that it can be seen.
void Reveal(QWidget* widget);

}  // namespace lignara
