#include "desktop/window_table.h"

#include <algorithm>
#include <array>

#include "desktop/windows.h"

namespace lignara {
namespace {

constexpr std::array kWindows = {
    WindowKind{"main", false, MakeLauncherWindow},
    WindowKind{"QUESTION", false, MakeQuestionWindow},
    WindowKind{"ABOUT", true, MakeAboutWindow},
    WindowKind{"HELP", false, MakeHelpWindow},
    WindowKind{"TR_INPUT", false, MakeTrussInputWindow},
    WindowKind{"TRUSS", false, MakeTrussWindow},
    WindowKind{"WTYPETR", true, MakeMemberSizeWindow},
    WindowKind{"wdb", true, MakeWoodDataBaseWindow},
};

}  // namespace

const WindowKind* FindWindowKind(std::string_view name) {
  const auto kind = std::find_if(kWindows.begin(), kWindows.end(),
                                 [&](const WindowKind& k) { return k.name == name; });
  return kind == kWindows.end() ? nullptr : &*kind;
}

}  // namespace lignara
