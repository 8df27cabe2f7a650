#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "app/platform.h"
#include "plywood/panel_kinds.h"

namespace lignara {

/// The window `ply`, "Ply Wood": panels of reference tables, of which at most one is shown.
struct PlyPanelWindow {
  std::optional<PlyPanel> open;  ///< the panel that is shown
  std::array<PlyPanelState, kPlyPanels> panels;

  PlyPanelState& Panel(PlyPanel panel) { return panels[static_cast<std::size_t>(panel)]; }
  const PlyPanelState& Panel(PlyPanel panel) const {
    return panels[static_cast<std::size_t>(panel)];
  }
};

/// The window as it opens: no panel is shown. Keys and results keep their places from now on.
void OpenPlyWindow(PlyPanelWindow& window);
/// A button of the strip or an item of "Options": shows a panel alone, with its keys as they are at
/// first and without results.
void ShowPanel(PlyPanelWindow& window, PlyPanel panel);
/// "Close" of the panel that is shown.
void ClosePanel(PlyPanelWindow& window);
/// A click on a row of a list, or on an option: the panel shows at once what follows from it. A row
/// outside the list changes nothing.
void ChoosePlyRow(PlyPanelWindow& window, PlyPanel panel, std::size_t key, int row);

}  // namespace lignara
