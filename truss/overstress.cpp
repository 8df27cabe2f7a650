#include "truss/overstress.h"

#include <algorithm>

#include "app/number_pattern.h"
#include "truss/members.h"

namespace lignara {

bool IsOverstressed(const MemberStress& stress) { return stress.actual > stress.allowable; }

std::optional<Float32> StressRatio(const MemberStress& stress) {
  if (!(stress.allowable > 0)) return std::nullopt;
  return Float32(stress.actual / stress.allowable);
}

namespace {

/// The member with the highest ratio; one without an allowable stress is above all others.
const MemberStress* WorstOf(const std::vector<MemberStress>& stresses) {
  const auto less = [](const MemberStress& a, const MemberStress& b) {
    const auto left = StressRatio(a), right = StressRatio(b);
    if (!left) return !right && a.actual < b.actual;
    return !right ? b.actual > 0 : *left < *right;
  };
  const auto worst = std::max_element(stresses.begin(), stresses.end(), less);
  return worst == stresses.end() ? nullptr : &*worst;
}

std::string CountAbove(const std::vector<MemberStress>& stresses) {
  const auto count = std::count_if(stresses.begin(), stresses.end(), IsOverstressed);
  if (count == 0) return "";
  return count == 1 ? "; 1 member above its allowable stress"
                    : "; " + std::to_string(count) + " members above their allowable stress";
}

}  // namespace

std::string StressRatioLine(const std::vector<MemberStress>& stresses) {
  const MemberStress* worst = WorstOf(stresses);
  if (worst == nullptr) return "";
  const std::string name = MemberLabel(worst->member);
  const auto ratio = StressRatio(*worst);
  if (!ratio) return "No allowable stress to compare with: " + name + CountAbove(stresses);
  return "Highest stress ratio " + FormatNumber(*ratio, kTwoDecimals) + ": " + name + ", " +
         FormatNumber(worst->actual, kTwoDecimals) + " of " +
         FormatNumber(worst->allowable, kTwoDecimals) + " psi" + CountAbove(stresses);
}

MemberSet OverstressedMembers(const std::vector<MemberStress>& stresses) {
  MemberSet members;
  for (const MemberStress& stress : stresses) {
    if (IsOverstressed(stress)) members.insert({stress.member.family, stress.member.index});
  }
  return members;
}

std::vector<RowNote> StressNotes(const std::vector<MemberStress>& stresses) {
  std::vector<RowNote> notes(1);
  for (const MemberStress& stress : stresses) {
    RowNote head;
    head.warned = IsOverstressed(stress);
    RowNote line = head;
    if (const auto ratio = StressRatio(stress)) {
      head.note = FormatNumber(*ratio, kTwoDecimals);
      head.spoken = "actual over allowable stress: " + head.note;
    }
    notes.push_back(head);
    notes.insert(notes.end(), kStressLines - 1, line);
  }
  return notes;
}

}  // namespace lignara
