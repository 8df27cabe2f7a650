#include "truss/window_marks.h"

#include "app/fault.h"
#include "truss/changed_since_run.h"
#include "truss/force_and_length_lists.h"
#include "truss/force_sense.h"
#include "truss/overstress.h"
#include "truss/truss_picture.h"

namespace lignara {
namespace {

constexpr const char* kNeedsRun = "needs a run";
constexpr const char* kNeedsMembers = "needs wood type and size";

std::string StatusLine(const TrussWindow& window, bool outOfDate) {
  if (!window.view.resultsShown) return "";
  if (outOfDate) return "Results are out of date: loads or members have changed. Run again.";
  if (window.stresses.empty()) return std::string("No stresses: ") + kNeedsMembers;
  return StressRatioLine(window.stresses);
}

std::string HitSense(const TrussWindow& window) {
  return window.hitMember.empty() ? "" : SenseOf(window.heldLoad).letter;
}

}  // namespace

MemberSet DepartingMembers(const TrussWindow& window) {
  MemberSet members;
  for (const Member& member : window.departing) members.insert({member.family, member.index});
  return members;
}

void ShowMarks(TrussWindow& window, const SessionState& session) {
  const SilentFaults faults;
  const bool outOfDate = IsOutOfDate(window, session);
  const std::string missing = window.view.resultsShown ? kNeedsMembers : kNeedsRun;
  window.axialNotes = AxialNotes(window, session);
  window.stressNotes = StressNotes(window.stresses);
  window.outOfDate = outOfDate;
  window.status = StatusLine(window, outOfDate);
  window.hitSense = HitSense(window);
  window.whyNoForces = kNeedsRun;
  window.whyNoDeflections = missing;
  window.whyNoStresses = missing;
  window.view.drawing.scene = WindowScene(window, session);
}

}  // namespace lignara
