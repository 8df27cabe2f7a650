#pragma once

#include <map>
#include <string>
#include <vector>

#include "app/drawing.h"

namespace lignara {

/// A member as a drawing shows it: line, circle and name, one behind the other.
struct DrawnMember {
  LineShape line;
  CircleShape circle;
  TextShape name;
};

/// The members at the start of a drawing, in drawing order. Stops at the first shapes that are no
/// member.
inline std::vector<DrawnMember> DrawnMembers(const Drawing& drawing) {
  std::vector<DrawnMember> members;
  const auto& shapes = drawing.shapes;
  for (std::size_t i = 0; i + 2 < shapes.size(); i += 3) {
    const auto* line = std::get_if<LineShape>(&shapes[i]);
    const auto* circle = std::get_if<CircleShape>(&shapes[i + 1]);
    const auto* name = std::get_if<TextShape>(&shapes[i + 2]);
    if (line == nullptr || circle == nullptr || name == nullptr) break;
    members.push_back({*line, *circle, *name});
  }
  return members;
}

/// The names of the members, in drawing order.
inline std::vector<std::string> DrawnNames(const Drawing& drawing) {
  std::vector<std::string> names;
  for (const DrawnMember& member : DrawnMembers(drawing)) names.push_back(member.name.text);
  return names;
}

/// The members by name.
inline std::map<std::string, DrawnMember> DrawnByName(const Drawing& drawing) {
  std::map<std::string, DrawnMember> byName;
  for (const DrawnMember& member : DrawnMembers(drawing)) byName[member.name.text] = member;
  return byName;
}

}  // namespace lignara
