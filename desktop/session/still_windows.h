#pragma once

#include <QObject>
#include <QPointer>
#include <vector>

namespace lignara {

class DesktopPlatform;
class ToolWindow;

/// While this stands the program's windows paint nothing, those that open meanwhile included; then
/// each is painted once, as it stands. Most of the time of a play would go into pictures that
/// nobody's eye could follow.
class StillWindows : public QObject {
 public:
  explicit StillWindows(const DesktopPlatform& platform);
  ~StillWindows() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Hold(ToolWindow* window);

  std::vector<QPointer<ToolWindow>> held_;
};

}  // namespace lignara
