#pragma once

#include <QFontMetricsF>
#include <QRectF>
#include <QString>
#include <vector>

#include "app/scene.h"
#include "desktop/kit/visible_part.h"

namespace lignara {

/// A text of a scene and its room in pixels.
struct SceneText {
  std::size_t of;  ///< the line, load or point that it belongs to
  QString text;
  QRectF rect;
};

/// What of a scene is shown at a view, and where its texts stand.
struct SceneLayout {
  double unit = 1;                 ///< a sixteenth of the height of a letter, pixels
  std::vector<SceneText> names;    ///< of the lines that show their circle and name
  std::vector<SceneText> points;   ///< of nodes
  std::vector<std::size_t> loads;  ///< the loads whose arrows are shown
  std::vector<SceneText> values;   ///< of loads
  int step = 1;                    ///< of each series every line of so many shows its name
  double thinness = 1;             ///< of strokes, where lines are dense
  bool dense = false;              ///< lines of a kind fall on each other

  double radius() const { return 6 * unit; }
};

/// The length of a load's arrow and its distance from the node, in units of the layout.
inline constexpr double kLoadLength = 20;
inline constexpr double kLoadGap = 5;

SceneLayout LayOut(const Scene& scene, const VisiblePart& view, const QRectF& room,
                   const QFontMetricsF& metrics);

}  // namespace lignara
