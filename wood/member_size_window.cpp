#include "wood/member_size_window.h"

#include "app/fault.h"
#include "app/number_pattern.h"
#include "app/number_reader.h"
#include "app/window_names.h"
#include "wood/custom_size.h"
#include "wood/stresses_for_ticked_groups.h"

namespace lignara {
namespace {

constexpr const char* kThreeDigits = "0.00E+00";

/// A number of a member group and the text of its field.
struct GroupValue {
  Float32 TrussMemberGroup::*value;
  std::string GroupPanel::*text;
  const char* pattern;
  bool endsSize = false;  ///< the last field of the size: filling it counts as a change of the size
};

constexpr GroupValue kGroupFields[] = {
    {&TrussMemberGroup::GroupFa, &GroupPanel::fa, kTwoDecimals},
    {&TrussMemberGroup::GroupFt, &GroupPanel::ft, kTwoDecimals},
    {&TrussMemberGroup::GroupE, &GroupPanel::e, kThreeDigits},
    {&TrussMemberGroup::GroupB, &GroupPanel::b, kTwoDecimals},
    {&TrussMemberGroup::GroupD, &GroupPanel::d, kTwoDecimals, true},
    {&TrussMemberGroup::GroupArea, &GroupPanel::area, kTwoDecimals},
};

/// A number of the beam member and the text of its field.
struct BeamValue {
  Float32 MemberSelection::*value;
  std::string BeamPanel::*text;
  const char* pattern;
  bool readBack = true;  ///< "OK" reads the field; the stresses are those of the data base
};

constexpr BeamValue kBeamFields[] = {
    {&MemberSelection::AllowFb, &BeamPanel::fb, kTwoDecimals, false},
    {&MemberSelection::AllowFc, &BeamPanel::fa, kTwoDecimals, false},
    {&MemberSelection::AllowFv, &BeamPanel::fv, kTwoDecimals, false},
    {&MemberSelection::AllowFt, &BeamPanel::ft, kTwoDecimals, false},
    {&MemberSelection::ModulusE, &BeamPanel::e, kThreeDigits},
    {&MemberSelection::DressedB, &BeamPanel::b, kTwoDecimals},
    {&MemberSelection::DressedD, &BeamPanel::d, kTwoDecimals},
    {&MemberSelection::SectionArea, &BeamPanel::area, kTwoDecimals},
    {&MemberSelection::SectionIx, &BeamPanel::ix, kTwoDecimals},
    {&MemberSelection::SectionIy, &BeamPanel::iy, kTwoDecimals},
    {&MemberSelection::SectionSx, &BeamPanel::sx, kTwoDecimals},
    {&MemberSelection::SectionSy, &BeamPanel::sy, kTwoDecimals},
};

void ShowBeam(BeamPanel& panel, const MemberSelection& member) {
  for (const BeamValue& field : kBeamFields) {
    panel.*field.text = FormatNumber(member.*field.value, field.pattern);
  }
  panel.size = member.SizeName;
  panel.gradeLabel = GradeLabel(member);
}

void ReadBeam(const MemberSizeWindow& window, MemberSelection& member) {
  for (const BeamValue& field : kBeamFields) {
    if (field.readBack) member.*field.value = ReadNumber(window.beam.*field.text);
  }
  member.SizeName = window.selection.size;
  member.BeamGradeLabel = window.beam.gradeLabel;
}

void ShowGroup(MemberSizeWindow& window, SessionState& session, MemberGroup group) {
  const TrussMemberGroup& member = session.Member.Group(group);
  GroupPanel& panel = window.Group(group);
  for (const GroupValue& field : kGroupFields) {
    panel.*field.text = FormatNumber(member.*field.value, field.pattern);
    if (field.endsSize) FollowGroupSize(window, session, group);
  }
  panel.size = member.GroupSizeName;
  panel.gradeLabel = member.GroupGradeLabel;
}

void ReadGroups(const MemberSizeWindow& window, MemberSelection& member) {
  for (std::size_t i = 0; i < member.Groups.size(); ++i) {
    const GroupPanel& panel = window.groups[i];
    TrussMemberGroup& group = member.Groups[i];
    for (const GroupValue& field : kGroupFields) {
      group.*field.value = ReadNumber(panel.*field.text);
    }
    group.GroupGradeLabel = panel.gradeLabel;
  }
}

/// Fills all fields from the current member.
void ShowMember(MemberSizeWindow& window, SessionState& session) {
  if (session.DesignMode == "BEAM") ShowBeam(window.beam, session.Member);
  if (session.DesignMode != "TRUSS") return;
  if (session.Member.DataBaseReturn == -1) TakeDataBaseStresses(window, session.Member);
  for (const MemberGroup group :
       {MemberGroup::Top, MemberGroup::Bottom, MemberGroup::Diagonal, MemberGroup::Vertical}) {
    ShowGroup(window, session, group);
  }
}

}  // namespace

std::string GradeLabel(const MemberSelection& member) {
  return member.GradeText + ", " + member.WoodTypeText;
}

void OpenMemberSize(MemberSizeWindow& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  window = MemberSizeWindow();
  window.groupsShown = session.DesignMode == "TRUSS";
  window.beamShown = session.DesignMode == "BEAM";
  // "OK" without "Accept" keeps the beam's size, so it has to stand there.
  if (window.beamShown) window.selection.size = session.Member.SizeName;
  ShowMember(window, session);
}

void ReturnFromWoodDataBase(MemberSizeWindow& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  ShowMember(window, session);
}

void AcceptMemberSize(MemberSizeWindow& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  MemberSelection& member = session.Member;
  member.MemberSource = 1;
  member.DataBaseE = ReadNumber(window.Group(MemberGroup::Bottom).fa);
  if (session.DesignMode == "BEAM") ReadBeam(window, member);
  if (session.DesignMode == "TRUSS") ReadGroups(window, member);
  member.DataBaseReturn = 0;
  platform.CloseWindow(window_name::kMemberSize);
}

void CancelMemberSize(SessionState& session, Platform& platform) {
  session.Member.DataBaseReturn = 0;
  platform.CloseWindow(window_name::kMemberSize);
}

void ExitMemberSize(Platform& platform) { platform.CloseWindow(window_name::kMemberSize); }

}  // namespace lignara
