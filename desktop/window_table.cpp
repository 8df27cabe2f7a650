#include <algorithm>
#include <array>

#include "app/window_names.h"
#include "desktop/kit/window_kind.h"
#include "desktop/windows.h"

namespace lignara {
namespace {

constexpr std::array kWindows = {
    WindowKind{window_name::kLauncher, false, MakeLauncherWindow},
    WindowKind{window_name::kQuestion, false, MakeDesignModeWindow},
    WindowKind{window_name::kAbout, true, MakeAboutWindow},
    WindowKind{window_name::kHelp, false, MakeHelpWindow},
    WindowKind{window_name::kTrussInput, false, MakeTrussInputWindow},
    WindowKind{window_name::kTruss, false, MakeTrussWindow},
    WindowKind{window_name::kMemberSize, true, MakeMemberSizeWindow},
    WindowKind{window_name::kWoodDataBase, true, MakeWoodDataBaseWindow},
    WindowKind{window_name::kBeam, false, MakeBeamWindow},
    WindowKind{window_name::kFasteners, false, MakeFastenerWindow},
    WindowKind{window_name::kBolts, false, MakeBoltWindow},
    WindowKind{window_name::kPlywood, false, MakePlyWindow},
    WindowKind{window_name::kGlulam, false, MakeGlulamWindow},
    WindowKind{window_name::kMultiSpan, false, MakeMultiSpanWindow},
    WindowKind{window_name::kMultiSpanResults, false, MakeMultiSpanResultsWindow},
    WindowKind{window_name::kIntegrations, false, MakeIntegrationsWindow},
    WindowKind{window_name::kRepeat, false, MakeRepeatWindow, true},
};

}  // namespace

const WindowKind* FindWindowKind(std::string_view name) {
  const auto kind = std::find_if(kWindows.begin(), kWindows.end(),
                                 [&](const WindowKind& k) { return k.name == name; });
  return kind == kWindows.end() ? nullptr : &*kind;
}

}  // namespace lignara
