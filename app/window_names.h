#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace lignara {

/// The names by which commands and scripts know the windows.
namespace window_name {
inline constexpr const char* kLauncher = "main";
inline constexpr const char* kQuestion = "QUESTION";
inline constexpr const char* kAbout = "ABOUT";
inline constexpr const char* kHelp = "HELP";
inline constexpr const char* kTrussInput = "TR_INPUT";
inline constexpr const char* kTruss = "TRUSS";
inline constexpr const char* kMemberSize = "WTYPETR";
inline constexpr const char* kWoodDataBase = "wdb";
inline constexpr const char* kBeam = "MLSP";
inline constexpr const char* kMultiSpan = "MS";
inline constexpr const char* kMultiSpanResults = "MDOUTPUT";
inline constexpr const char* kIntegrations = "INTGR";
inline constexpr const char* kGlulam = "GL";
inline constexpr const char* kBolts = "bolts";
inline constexpr const char* kFasteners = "FASTENER";
inline constexpr const char* kPlywood = "ply";
inline constexpr const char* kRepeat = "REPEAT";
}  // namespace window_name

inline constexpr std::array kWindowNames = {window_name::kLauncher,
                                            window_name::kQuestion,
                                            window_name::kAbout,
                                            window_name::kHelp,
                                            window_name::kTrussInput,
                                            window_name::kTruss,
                                            window_name::kMemberSize,
                                            window_name::kWoodDataBase,
                                            window_name::kBeam,
                                            window_name::kMultiSpan,
                                            window_name::kMultiSpanResults,
                                            window_name::kIntegrations,
                                            window_name::kGlulam,
                                            window_name::kBolts,
                                            window_name::kFasteners,
                                            window_name::kPlywood,
                                            window_name::kRepeat};

/// False for a name that no window of the program bears: a slip of the pen, not a window to come.
constexpr bool IsWindowName(std::string_view name) {
  return std::find(kWindowNames.begin(), kWindowNames.end(), name) != kWindowNames.end();
}

/// The order in which the windows close at exit. Windows missing here are closed by their parents.
inline constexpr std::array kExitOrder = {
    window_name::kQuestion,   window_name::kTrussInput, window_name::kWoodDataBase,
    window_name::kMemberSize, window_name::kBeam,       window_name::kAbout,
    window_name::kTruss,      window_name::kMultiSpan,  window_name::kMultiSpanResults,
    window_name::kPlywood,    window_name::kGlulam,     window_name::kFasteners};

}  // namespace lignara
