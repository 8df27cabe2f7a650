#include "plywood/ply_window.h"

#include <algorithm>

namespace lignara {
namespace {

/// The keys as they are when the panel opens, before what follows from them.
void ResetKeys(PlyPanelState& state, const PlyPanelKind& kind) {
  state.keys.resize(kind.keys.size());
  for (std::size_t i = 0; i < kind.keys.size(); ++i) {
    const PlyKeyKind& key = kind.keys[i];
    state.keys[i] = {key.form, key.caption, {key.entries, key.chosenAtOpening}};
  }
  state.results.resize(kind.results.size());
  for (std::size_t i = 0; i < kind.results.size(); ++i) state.results[i].caption = kind.results[i];
}

PlyChoices ChoicesOf(const PlyPanelState& state) {
  PlyChoices at;
  for (const PlyKey& key : state.keys) at.push_back(key.choice.row);
  return at;
}

/// Shows what follows from the keys.
void Follow(PlyPanelState& state, const PlyPanelKind& kind) {
  if (kind.arrange) kind.arrange(state);
  const PlyChoices at = ChoicesOf(state);
  const bool complete = std::all_of(at.begin(), at.end(), [](int row) { return row >= 0; });
  Texts values(kind.results.size());
  if (complete && kind.lookUp) values = kind.lookUp(at);
  for (std::size_t i = 0; i < values.size(); ++i) state.results[i].value = values[i];
  if (kind.lines) state.lines = kind.lines(at, values);
  if (kind.picture) state.picture = kind.picture(at);
}

void Reset(PlyPanelWindow& window, PlyPanel panel) {
  ResetKeys(window.Panel(panel), PlyPanelKindOf(panel));
  Follow(window.Panel(panel), PlyPanelKindOf(panel));
}

}  // namespace

void OpenPlyWindow(PlyPanelWindow& window) {
  window.open.reset();
  for (std::size_t i = 0; i < kPlyPanels; ++i) Reset(window, static_cast<PlyPanel>(i));
}

void ShowPanel(PlyPanelWindow& window, PlyPanel panel) {
  Reset(window, panel);
  window.open = panel;
}

void ClosePanel(PlyPanelWindow& window) { window.open.reset(); }

void ChoosePlyRow(PlyPanelWindow& window, PlyPanel panel, std::size_t key, int row) {
  PlyPanelState& state = window.Panel(panel);
  ListRows& choice = state.keys[key].choice;
  if (!choice.Has(row)) return;
  choice.row = row;
  Follow(state, PlyPanelKindOf(panel));
}

}  // namespace lignara
