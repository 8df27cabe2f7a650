#pragma once

namespace lignara {

class DesktopPlatform;
struct SessionState;

/// Brings the program to where it stands after its start: the launcher alone, nothing entered.
void StartProgramAgain(SessionState& session, DesktopPlatform& platform);

}  // namespace lignara
