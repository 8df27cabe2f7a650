#include "plywood/panel.h"

#include <utility>

namespace lignara {

PlyKeyKind ListKey(std::string caption, Texts entries) {
  return {PlyKeyForm::List, std::move(caption), std::move(entries), -1};
}

PlyKeyKind OptionKey(std::string caption, Texts entries, int chosenAtOpening) {
  return {PlyKeyForm::Options, std::move(caption), std::move(entries), chosenAtOpening};
}

void SetEntries(PlyKey& key, const Texts& entries) {
  if (key.choice.rows == entries) return;
  key.choice.rows = entries;
  if (key.form == PlyKeyForm::List) key.choice.row = -1;
}

PlyReportLine SayText(std::string text) {
  return [text = std::move(text)](const PlyPanelState&, Texts& lines) { lines.push_back(text); };
}

PlyReportLine SayKey(std::size_t key, std::string before, std::string after) {
  return [=](const PlyPanelState& panel, Texts& lines) {
    if (panel.keys[key].shown) lines.push_back(before + panel.keys[key].choice.Chosen() + after);
  };
}

PlyReportLine SayKeyField(std::size_t key) {
  return [=](const PlyPanelState& panel, Texts& lines) {
    SayKey(key, panel.keys[key].caption + " is ")(panel, lines);
  };
}

PlyReportLine SayInWords(std::size_t key, Texts words) {
  return [key, words = std::move(words)](const PlyPanelState& panel, Texts& lines) {
    const ListRows worded{words, panel.keys[key].choice.row};
    if (panel.keys[key].shown) lines.push_back(worded.Chosen());
  };
}

PlyReportLine SayResult(std::size_t result, std::string before, std::string after) {
  return [=](const PlyPanelState& panel, Texts& lines) {
    lines.push_back(before + panel.results[result].value + after);
  };
}

PlyReportLine SayResultFields() {
  return [](const PlyPanelState& panel, Texts& lines) {
    for (const PlyResult& result : panel.results) {
      lines.push_back(result.caption + " is " + result.value);
    }
  };
}

PlyReportLine SayLines() {
  return [](const PlyPanelState& panel, Texts& lines) {
    lines.insert(lines.end(), panel.lines.begin(), panel.lines.end());
  };
}

}  // namespace lignara
