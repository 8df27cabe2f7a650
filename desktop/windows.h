#pragma once

#include "desktop/kit/tool_window.h"

namespace lignara {

// One maker a window; each stands in the file of its window.
ToolWindow* MakeLauncherWindow(WindowContext context);
ToolWindow* MakeDesignModeWindow(WindowContext context);
ToolWindow* MakeAboutWindow(WindowContext context);
ToolWindow* MakeHelpWindow(WindowContext context);
ToolWindow* MakeTrussInputWindow(WindowContext context);
ToolWindow* MakeTrussWindow(WindowContext context);
ToolWindow* MakeMemberSizeWindow(WindowContext context);
ToolWindow* MakeWoodDataBaseWindow(WindowContext context);
ToolWindow* MakeBeamWindow(WindowContext context);
ToolWindow* MakeFastenerWindow(WindowContext context);
ToolWindow* MakeBoltWindow(WindowContext context);
ToolWindow* MakePlyWindow(WindowContext context);
ToolWindow* MakeGlulamWindow(WindowContext context);
ToolWindow* MakeMultiSpanWindow(WindowContext context);
ToolWindow* MakeMultiSpanResultsWindow(WindowContext context);
ToolWindow* MakeIntegrationsWindow(WindowContext context);
ToolWindow* MakeRepeatWindow(WindowContext context);

}  // namespace lignara
