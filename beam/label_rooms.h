#pragma once

#include <vector>

namespace lignara {

/// A rectangle of a picture that a label takes.
struct LabelRoom {
  double x, y, width, height;

  bool Overlaps(const LabelRoom& other) const {
    return x < other.x + other.width && other.x < x + width && y < other.y + other.height &&
           other.y < y + height;
  }
};

/// The rooms that the labels of a picture have taken, so that none is written over another.
class LabelRooms {
 public:
  /// Labels stand between the top of the picture and `bottom`.
  explicit LabelRooms(double bottom) : bottom_(bottom) {}

  /// Takes the first free room from `room` on, `step` by `step` up or down; `room` is then where
  /// the label stands. False where a few steps find none.
  bool Take(LabelRoom& room, double step);

 private:
  bool IsFree(const LabelRoom& room) const;

  double bottom_;
  std::vector<LabelRoom> taken_;
};

}  // namespace lignara
