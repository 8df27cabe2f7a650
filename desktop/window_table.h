#pragma once

#include <string_view>

#include "desktop/tool_window.h"

namespace lignara {

/// How a window comes to be.
struct WindowKind {
  std::string_view name;
  bool modal;
  ToolWindow* (*make)(WindowContext context);
};

/// The kind of window of a name; null for a window that this version does not have.
const WindowKind* FindWindowKind(std::string_view name);

}  // namespace lignara
