#pragma once

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "app/drawing.h"

namespace lignara {

/// Width of a print zone, in characters.
inline constexpr std::size_t kPrintZone = 14;

/// The items of one line, each in a print zone of its own: an item starts at the next multiple of
/// 14 columns behind the end of the one before, so one of exactly 14 characters pushes the next to
/// the zone after. Nothing stands behind the last item.
std::string PrintZones(const std::vector<std::string>& items);

/// The same with `empty` zones ahead of the first item. No items give an empty line.
std::string PrintZones(std::size_t empty, const std::vector<std::string>& items);

/// One line of a report: its items, each in a print zone of its own, behind `emptyZones` zones.
/// Paper needs the items apart, since its letters differ in width.
struct ReportLine {
  std::size_t emptyZones = 0;
  std::vector<std::string> items;
  bool heads = false;  ///< heads of the columns below, until the next blank line

  /// The line as columns of characters.
  std::string Text() const { return PrintZones(emptyZones, items); }
};

struct NewPage {};

/// A report as data: lines of text, page breaks and drawings in order. It stands once; a file and a
/// printer are two ways to read it.
class Report {
 public:
  using Item = std::variant<ReportLine, NewPage, Drawing>;

  /// A blank line.
  void Line() { items_.emplace_back(ReportLine{}); }
  /// A line of one item behind `emptyZones` empty zones.
  void Line(std::string text, std::size_t emptyZones = 0) {
    items_.emplace_back(ReportLine{emptyZones, {std::move(text)}});
  }
  /// A line of items in print zones.
  void Columns(std::vector<std::string> items, std::size_t emptyZones = 0) {
    items_.emplace_back(ReportLine{emptyZones, std::move(items)});
  }
  /// The heads of columns, which paper repeats where they go on on a further page.
  void Heads(std::vector<std::string> items, std::size_t emptyZones = 0) {
    items_.emplace_back(ReportLine{emptyZones, std::move(items), true});
  }
  void StartPage() { items_.emplace_back(NewPage{}); }
  void Draw(Drawing drawing) { items_.emplace_back(std::move(drawing)); }

  const std::vector<Item>& items() const { return items_; }

  std::string fontName = "Times New Roman";
  int fontSize = 10;  ///< points

 private:
  std::vector<Item> items_;
};

/// The lines of a report as the bytes of a text file, each ended by a line feed. Page breaks and
/// drawings have no place in a file.
std::string ReportText(const Report& report);

}  // namespace lignara
