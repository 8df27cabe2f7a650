#include "beam/label_rooms.h"

#include <algorithm>

namespace lignara {

bool LabelRooms::IsFree(const LabelRoom& room) const {
  const bool inside = room.y >= 0 && room.y + room.height <= bottom_;
  return inside && std::none_of(taken_.begin(), taken_.end(),
                                [&](const LabelRoom& other) { return other.Overlaps(room); });
}

bool LabelRooms::Take(LabelRoom& room, double step) {
  constexpr int kTries = 6;
  LabelRoom at = room;
  for (int i = 0; i < kTries; ++i, at.y += step) {
    if (!IsFree(at)) continue;
    room = at;
    taken_.push_back(at);
    return true;
  }
  return false;
}

}  // namespace lignara
