#include "wood/custom_size.h"

#include "app/fault.h"
#include "app/number_pattern.h"
#include "app/number_reader.h"
#include "app/section.h"

namespace lignara {

void FollowGroupSize(MemberSizeWindow& window, SessionState& session, MemberGroup group) {
  if (window.sizeInProgress) return;
  GroupPanel& panel = window.Group(group);
  TrussMemberGroup& member = session.Member.Group(group);
  panel.size = kCustomSize;
  member.GroupArea = ReadNumber(panel.b) * ReadNumber(panel.d);
  panel.area = FormatNumber(member.GroupArea, kTwoDecimals);
}

void TakeBeamSection(MemberSizeWindow& window, MemberSelection& member, const Float64& width,
                     const Float64& depth) {
  TakeRectangle(member, width, depth);
  member.NominalWidth = width;
  member.NominalDepth = depth;
  BeamPanel& beam = window.beam;
  beam.area = FormatNumber(member.SectionArea, kTwoDecimals);
  beam.ix = FormatNumber(member.SectionIx, kTwoDecimals);
  beam.iy = FormatNumber(member.SectionIy, kTwoDecimals);
  beam.sx = FormatNumber(member.SectionSx, kTwoDecimals);
  beam.sy = FormatNumber(member.SectionSy, kTwoDecimals);
}

void EditGroupField(MemberSizeWindow& window, SessionState& session, Platform& platform,
                    MemberGroup group, GroupField field) {
  FaultScope faults(platform);
  switch (field) {
    case GroupField::B:
    case GroupField::D:
      FollowGroupSize(window, session, group);
      break;
    case GroupField::Area:
      session.Member.Group(group).GroupArea = ReadNumber(window.Group(group).area);
      break;
    case GroupField::Fa:
    case GroupField::Ft:
    case GroupField::E:
      break;  // "OK" reads them
  }
}

void EditBeamSize(MemberSizeWindow& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  if (window.sizeInProgress) return;
  const Float64 width = ReadNumber(window.beam.b);
  const Float64 depth = ReadNumber(window.beam.d);
  if (width == 0 || depth == 0) return;
  TakeBeamSection(window, session.Member, width, depth);
  window.beam.size = kCustomSize;
}

}  // namespace lignara
