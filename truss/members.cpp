#include "truss/members.h"

#include <array>
#include <cstddef>

#include "app/row_number.h"

namespace lignara {
namespace {

/// What belongs to a family: one row each, in the order of the enumeration.
struct FamilyRow {
  const char* name;
  MemberGroup group;
  Float32Array ActiveModel::*length;
  Float32Array ActiveModel::*axial;
  Int16Array ActiveModel::*sign;
};

using M = ActiveModel;
constexpr std::array<FamilyRow, kFamilies> kFamilyRows = {{
    {"TL", MemberGroup::Top, &M::LEN_TL, &M::AX_TL, &M::SGN_TL},
    {"TR", MemberGroup::Top, &M::LEN_TR, &M::AX_TR, &M::SGN_TR},
    {"CL", MemberGroup::Bottom, &M::LEN_CL, &M::AX_CL, &M::SGN_CL},
    {"CR", MemberGroup::Bottom, &M::LEN_CR, &M::AX_CR, &M::SGN_CR},
    {"VL", MemberGroup::Vertical, &M::LEN_VL, &M::AX_VL, &M::SGN_VL},
    {"VR", MemberGroup::Vertical, &M::LEN_VR, &M::AX_VR, &M::SGN_VR},
    {"DL", MemberGroup::Diagonal, &M::LEN_DL, &M::AX_DL, &M::SGN_DL},
    {"DR", MemberGroup::Diagonal, &M::LEN_DR, &M::AX_DR, &M::SGN_DR},
    {"CV", MemberGroup::Vertical, &M::LEN_CV, &M::AX_CV, &M::SGN_CV},
}};

const FamilyRow& RowOf(Family family) { return kFamilyRows[static_cast<std::size_t>(family)]; }

}  // namespace

const char* FamilyName(Family family) { return RowOf(family).name; }
MemberGroup GroupOf(Family family) { return RowOf(family).group; }

Float32Array& LengthOf(ActiveModel& model, Family family) { return model.*RowOf(family).length; }
const Float32Array& LengthOf(const ActiveModel& model, Family family) {
  return model.*RowOf(family).length;
}
Float32Array& AxialOf(ActiveModel& model, Family family) { return model.*RowOf(family).axial; }
const Float32Array& AxialOf(const ActiveModel& model, Family family) {
  return model.*RowOf(family).axial;
}
Int16Array& SignOf(ActiveModel& model, Family family) { return model.*RowOf(family).sign; }
const Int16Array& SignOf(const ActiveModel& model, Family family) {
  return model.*RowOf(family).sign;
}

std::string MemberLabel(const Member& member) {
  const std::string family = FamilyName(member.family);
  return member.family == Family::CV ? family : family + NumberText(member.index);
}

std::string RowLabel(const Member& member) {
  if (!member.plainLabel || member.family == Family::CV) return MemberLabel(member);
  return FamilyName(member.family) + std::to_string(member.index);
}

std::string StressLabel(const Member& member) {
  const bool plain = member.plainLabel || member.family == Family::CV;
  return plain ? RowLabel(member) : "(" + MemberLabel(member) + ")";
}

MemberRange CentreVertical() { return {{Family::CV}, 1, Upper::One}; }

int LastElement(Upper upper, int halfSpans) {
  switch (upper) {
    case Upper::One:
      return 1;
    case Upper::Two:
      return 2;
    case Upper::Half:
      return halfSpans;
    case Upper::BeforeHalf:
      return halfSpans - 1;
  }
  return 0;
}

std::vector<Member> MembersOf(const std::vector<MemberRange>& ranges, int halfSpans) {
  std::vector<Member> members;
  for (const MemberRange& range : ranges) {
    for (int i = range.first; i <= LastElement(range.last, halfSpans); ++i) {
      for (const Family family : range.families) members.push_back({family, i, range.plainLabel});
    }
  }
  return members;
}

}  // namespace lignara
