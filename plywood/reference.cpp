#include "plywood/reference.h"

#include "plywood/ply_report.h"

namespace lignara {

PlyPanelKind ReferencePanel(const std::string& keyCaption,
                            const std::vector<ReferenceEntry>& entries) {
  Texts keys;
  for (const ReferenceEntry& entry : entries) keys.push_back(entry.key);
  PlyPanelKind kind;
  kind.keys = {ListKey(keyCaption, keys)};
  kind.linesCaption = "Description";
  kind.lines = [entries](const PlyChoices& at, const Texts& /*results*/) {
    return at[0] < 0 ? Texts() : entries[static_cast<std::size_t>(at[0])].lines;
  };
  kind.fontName = "TIMES NEW ROMAN";
  kind.report = {SayKey(0), SayText(""), SayLines()};
  return kind;
}

}  // namespace lignara
