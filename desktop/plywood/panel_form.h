#pragma once

#include <QGroupBox>
#include <vector>

#include "desktop/kit/binding.h"
#include "desktop/kit/desktop_platform.h"
#include "plywood/ply_window.h"

class QLabel;

namespace lignara {

/// One panel of reference tables, laid out as its description tells: the keys, the results below
/// them, then the note and the commands.
class PlyPanelForm : public QGroupBox {
 public:
  PlyPanelForm(PlyPanelWindow& window, PlyPanel panel, Binding& binding, DesktopPlatform& platform);

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
};

}  // namespace lignara
