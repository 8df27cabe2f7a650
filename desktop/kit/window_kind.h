#pragma once

#include <string_view>

#include "desktop/kit/tool_window.h"

namespace lignara {

/// How a window comes to be.
struct WindowKind {
  std::string_view name;
  bool modal;
  ToolWindow* (*make)(WindowContext context);
  /// What is done in it is no action of the session, and coming back from it is no coming back.
  bool aside = false;
};

/// The kind of window of a name; null for a window that this version does not have. The table
/// itself stands above the kit, in `desktop/window_table.cpp`: it alone knows all windows.
const WindowKind* FindWindowKind(std::string_view name);

}  // namespace lignara
