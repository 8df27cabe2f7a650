#pragma once

#include <string>
#include <vector>

#include "app/colour.h"

namespace lignara {

/// How a line is drawn, so that its kind is told without its colour, too.
enum class Stroke { Plain, Heavy, Fine, Dotted };

/// The side of its line on which a name stands best.
enum class NameSide { Above, Below, Left, Right };

/// A line with its name beside a circle at its middle.
///
/// Lines of one series thin out together where they are narrow: `place` counts them from 1. Those
/// of a series `between` others keep the names halfway between the others' names.
struct NamedLine {
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  double markX = 0, markY = 0;
  Colour colour = Colour::Black;
  Stroke stroke = Stroke::Plain;
  bool warned = false;   ///< beyond what is allowed
  bool doubted = false;  ///< its value departs from statics
  bool lit = false;      ///< the one that the user has chosen
  std::string name;
  NameSide side = NameSide::Above;
  int series = 0;
  int place = 1;
  bool between = false;

  bool operator==(const NamedLine&) const = default;
};

/// A text at a point: the name of a node.
struct PointName {
  double x = 0, y = 0;
  std::string name;
  int series = 0;
  int place = 1;

  bool operator==(const PointName&) const = default;
};

/// A load on a point, with its value at the tail of the arrow.
struct LoadArrow {
  double x = 0, y = 0;
  bool up = false;
  std::string value;
  int series = 0;
  int place = 1;

  bool operator==(const LoadArrow&) const = default;
};

/// An arrow that points down at a place.
struct PointerArrow {
  double x = 0, top = 0, tip = 0;
  double node = 0;  ///< the place itself

  bool operator==(const PointerArrow&) const = default;
};

/// What a kind of line means.
struct LegendEntry {
  Colour colour = Colour::Black;
  Stroke stroke = Stroke::Plain;
  bool warned = false;
  std::string meaning;
  bool doubted = false;

  bool operator==(const LegendEntry&) const = default;
};

/// What a window and a page show in the place of a drawing's bare shapes, in the same units. Sizes
/// of circles, letters and arrows are the screen's or the page's own: they stay as they are however
/// near one looks.
struct Scene {
  std::vector<NamedLine> lines;
  std::vector<PointName> points;
  std::vector<LoadArrow> loads;
  std::vector<PointerArrow> pointers;
  std::vector<LegendEntry> legend;
  std::string note;  ///< in a corner of the picture

  /// What holds all there is to see, with room for arrows that may come.
  double left = 0, top = 0, right = 0, bottom = 0;

  bool operator==(const Scene&) const = default;
};

}  // namespace lignara
