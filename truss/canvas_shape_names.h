#pragma once

#include <string>
#include <vector>

#include "truss/members.h"

namespace lignara {

/// A place on the canvas, in whole canvas units.
struct CanvasPoint {
  int x, y;
};

/// A member on the canvas.
struct CanvasLine {
  Member member;
  CanvasPoint from, to;

  /// The midpoint, to whole units with ties to the even one.
  CanvasPoint Middle() const;
};

/// The room of a name: its top left corner and its size, in canvas units.
struct NameBox {
  double x, y, width, height;
};

/// The room that a name takes at most.
struct NameSize {
  double width, height;
};

/// Finds the places of the names on a drawing: each beside the circle of its member, and clear of
/// lines, circles and the names before it where there is such a place.
class NamePlacer {
 public:
  explicit NamePlacer(const std::vector<CanvasLine>& lines);

  /// The place of a member's name. Names of the bottom chord stand 50 units below the midpoint,
  /// always.
  NameBox PlaceMember(const CanvasLine& line, const std::string& name);

  /// Height of the names: that of a line of text, but less where panels are narrow.
  double height() const { return height_; }

 private:
  /// The place with the fewest flaws, the first one if it has none.
  NameBox Best(NameBox first, const std::vector<NameBox>& places) const;
  int Flaws(const NameBox& room) const;

  const std::vector<CanvasLine>& lines_;
  double height_;
  std::vector<NameBox> taken_;
};

/// The room of a name at a height of its letters.
NameSize SizeOf(const std::string& name, double height);

}  // namespace lignara
