#pragma once

#include <string>
#include <vector>

#include "app/member_selection.h"
#include "truss/active_model.h"

namespace lignara {

/// The families of truss members in the names of lists and labels.
enum class Family { TL, TR, CL, CR, VL, VR, DL, DR, CV };
inline constexpr int kFamilies = 9;

/// The name of a family, such as "TL".
const char* FamilyName(Family family);

/// The group of the member size calculator that serves a family; the centre vertical belongs to the
/// verticals.
MemberGroup GroupOf(Family family);

Float32Array& LengthOf(ActiveModel& model, Family family);
const Float32Array& LengthOf(const ActiveModel& model, Family family);
Float32Array& AxialOf(ActiveModel& model, Family family);
const Float32Array& AxialOf(const ActiveModel& model, Family family);
Int16Array& SignOf(ActiveModel& model, Family family);
const Int16Array& SignOf(const ActiveModel& model, Family family);

/// One member: element `index` of its family's arrays.
struct Member {
  Family family;
  int index;
  /// Lists that name a few members one by one write "TL1"; lists that count through a family write
  /// the number with its blank, "TL 1".
  bool plainLabel = false;
};

/// "TL 1", and "CV" alone: the name of a member on the canvas, beside a hit and in the report.
std::string MemberLabel(const Member& member);
/// The name at the head of a row of the axial and length lists: "TL1" or "TL 1".
std::string RowLabel(const Member& member);
/// The line over a member's stresses: "TL1" or "(TL 1)".
std::string StressLabel(const Member& member);

/// Where a range of members ends: at element 1, 2, N or N-1, N being half the panels.
enum class Upper { One, Two, Half, BeforeHalf };

/// Members that a list counts through: the elements from `first` to `last`, and of each element the
/// families by turns.
struct MemberRange {
  std::vector<Family> families;
  int first;
  Upper last;
  bool plainLabel = false;
};

/// The vertical at midspan alone.
MemberRange CentreVertical();

/// The last element of a range. `halfSpans` is the number of panels in a half.
int LastElement(Upper upper, int halfSpans);

/// The members of the ranges, one after the other.
std::vector<Member> MembersOf(const std::vector<MemberRange>& ranges, int halfSpans);

}  // namespace lignara
