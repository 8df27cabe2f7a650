#pragma once

#include <QGroupBox>
#include <vector>

#include "desktop/kit/binding.h"
#include "desktop/kit/desktop_platform.h"
#include "plywood/ply_window.h"

class QBoxLayout;
class QLabel;
class QPushButton;

namespace lignara {

/// One panel of reference tables, laid out as its description tells: the keys, the results below
/// them, then the note and the commands.
class PlyPanelForm : public QGroupBox {
 public:
  PlyPanelForm(PlyPanelWindow& window, PlyPanel panel, Binding& binding, DesktopPlatform& platform);

  /// The first key: where the work in the panel starts.
  void FocusFirst();
  QPushButton* close() const { return close_; }

 private:
  QLayout* Keys();
  QWidget* List(std::size_t key);
  QWidget* Options(std::size_t key);
  QWidget* Stamp();
  QLayout* Results();
  QWidget* Lines();
  QLayout* Commands();
  void FollowCaption(QLabel* label, QWidget* named, const std::string* caption);

  PlyPanelWindow& window_;
  const PlyPanel panel_;
  const PlyPanelKind& kind_;
  PlyPanelState& state_;
  Binding& binding_;
  DesktopPlatform& platform_;
  QPushButton* close_ = nullptr;
};

}  // namespace lignara
