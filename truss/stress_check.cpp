#include "truss/stress_check.h"

#include <algorithm>

#include "app/list_rows.h"
#include "app/number_pattern.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

constexpr double kBracedSlenderness = 50;
constexpr double kInchesPerFoot = 12;

const Float32& SmallerSide(const Float32& b, const Float32& d) { return b <= d ? b : d; }

/// The bracing distance and the two Euler values of a member, into the working fields.
void SetWorkingValues(ActiveModel& m, const TrussMemberGroup& group, const Float32& length) {
  m.MemberFt = group.GroupFt;
  m.MinBracingLength =
      SmallerSide(group.GroupB, group.GroupD) * kBracedSlenderness / kInchesPerFoot;
  TRUSS_ALL_COMP(m.MinBracingLength, group.GroupE, group.GroupB, group.GroupD, m.FceAtBracing);
  TRUSS_ALL_COMP(length, group.GroupE, group.GroupB, group.GroupD, m.FceAtLength);
  m.MemberFa = group.GroupFa;
}

/// "Actual Stress" in the words that the type has for the member.
std::string ActualLine(const TrussTypeInfo& type, const Member& member, const Float32& stress) {
  StressWording words;
  for (const StressWording& wording : type.stressWordings) {
    if (wording.family == member.family) words = wording;
  }
  return words.before + FormatNumber(stress, kTwoDecimals) + words.after;
}

/// The lesser of the group's tension and compression value, for any member.
const Float32& AllowableOf(const ActiveModel& m) {
  return m.MemberFt <= m.MemberFa ? m.MemberFt : m.MemberFa;
}

std::string AllowableLine(const ActiveModel& m) {
  const bool tension = m.MemberFt <= m.MemberFa;
  return "Allowable axial stress = " + FormatNumber(AllowableOf(m), kTwoDecimals) +
         " psi with full lateral bracing" + (tension ? "." : "");
}

MemberStress CheckMember(TrussJob& job, const Member& member, std::vector<std::string>& rows) {
  ActiveModel& m = job.model;
  const TrussMemberGroup& group = job.session.Member.Group(GroupOf(member.family));
  SetWorkingValues(m, group, LengthOf(m, member.family)[member.index]);
  const Float32 actual = Abs(AxialOf(m, member.family)[member.index] / group.GroupArea);
  rows.push_back(StressLabel(member));
  rows.push_back(ActualLine(job.type, member, actual));
  rows.push_back(AllowableLine(m));
  rows.push_back("Assumes min. lateral bracing of " +
                 FormatNumber(m.MinBracingLength, kTwoDecimals) + " ft");
  return {member, actual, AllowableOf(m)};
}

}  // namespace

std::vector<StressWording> SpacedTop() { return {{Family::TL, "Actual Stress  = ", " psi"}}; }

std::vector<StressWording> KingPostWordings() {
  return {{Family::TL, "Actual Stress =  ", " psi"}, {Family::CR, "Actual Stress = ", " psi)"}};
}

void TRUSS_ALL_COMP(const Float32& length, const Float32& E, const Float32& B, const Float32& D,
                    Float32& result) {
  result = 0;
  if (!(length > 0) || !(B > 0) || !(D > 0)) return;
  const Number slenderness = kInchesPerFoot * length / SmallerSide(B, D);
  result = 0.3 * E / Square(slenderness);
}

bool HasAreas(const MemberSelection& selection) {
  return std::none_of(selection.Groups.begin(), selection.Groups.end(),
                      [](const TrussMemberGroup& group) { return group.GroupArea == 0; });
}

std::vector<MemberStress> CheckStresses(TrussJob& job, std::vector<std::string>& rows) {
  rows = RowsBelowBlank();
  std::vector<MemberStress> stresses;
  for (const Member& member : MembersOf(job.type.checkedMembers, job.HalfSpans())) {
    stresses.push_back(CheckMember(job, member, rows));
  }
  return stresses;
}

}  // namespace lignara
