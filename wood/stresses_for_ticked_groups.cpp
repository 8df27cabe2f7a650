#include "wood/stresses_for_ticked_groups.h"

#include <algorithm>

#include "app/window_names.h"

namespace lignara {

void TakeDataBaseStresses(const MemberSizeWindow& window, MemberSelection& member) {
  for (std::size_t i = 0; i < member.Groups.size(); ++i) {
    if (!window.groups[i].ticked) continue;
    TrussMemberGroup& group = member.Groups[i];
    group.GroupFt = member.AllowFt;
    group.GroupFa = member.AllowFc;
    group.GroupE = member.ModulusE;
    group.GroupGradeLabel = GradeLabel(member);
  }
}

std::string TicksNote(const MemberSizeWindow& window) {
  const bool ticked = std::any_of(window.groups.begin(), window.groups.end(),
                                  [](const GroupPanel& group) { return group.ticked; });
  if (!window.groupsShown || ticked) return "";
  return "No members are ticked: stresses from the data base will go to none. Tick first.";
}

void VisitWoodDataBase(SessionState& session, Platform& platform) {
  session.Member.DataBaseReturn = -1;
  platform.OpenWindow(window_name::kWoodDataBase);
}

}  // namespace lignara
