#include "app/fault.h"
#include "app/number_pattern.h"
#include "app/number_reader.h"
#include "wood/custom_size.h"
#include "wood/dressed_size.h"
#include "wood/member_size_window.h"

namespace lignara {
namespace {

/// The nominal size of a picked button in inches, 0 for none.
int PickedSize(int pick) {
  const bool picked = pick >= 0 && pick < static_cast<int>(kNominalSizes.size());
  return picked ? kNominalSizes[static_cast<std::size_t>(pick)] : 0;
}

std::string SizeText(const MemberSelection& member) {
  return FormatNumber(member.NominalWidth, "0") + "X" + FormatNumber(member.NominalDepth, "0");
}

/// The dressed size of the picked pair. False where the pair is refused.
bool DressPickedPair(const MemberSizeWindow& window, MemberSelection& member, Platform& platform) {
  const int width = PickedSize(window.widthPick);
  const int depth = PickedSize(window.depthPick);
  if (width == 0 || depth == 0) {
    platform.ShowMessage({"YOU NEED TO CLICK A WIDTH & DEPTH BUTTON!"});
    return false;
  }
  const DressedWidth dressed = FindDressedWidth(width, depth);
  if (!dressed.refusal.empty()) {
    platform.ShowMessage({std::string(dressed.refusal)});
    return false;
  }
  member.DressedB = dressed.inches;
  member.DressedD = FindDressedDepth(depth, width);
  return true;
}

void ShowAcceptedSize(MemberSizeWindow& window, MemberSelection& member) {
  window.selection.size = SizeText(member);
  window.beam.size = window.selection.size;
  member.ScratchArea = member.DressedB * member.DressedD;
  window.selection.dressedB = FormatNumber(member.DressedB, kTwoDecimals);
  window.selection.dressedD = FormatNumber(member.DressedD, kTwoDecimals);
}

/// D / B^2 into `ratio`. False, with a message, where the width is 0.
bool TakeDepthOverB2(Number width, Number depth, Float32& ratio, Platform& platform) {
  if (width == 0) {
    platform.ShowMessage({"YOUR 'B' VALUE IS 0 !"});
    return false;
  }
  ratio = depth / Square(width);
  return true;
}

/// The accepted size as the beam's section. What counts are the two decimals shown.
bool TakeBeamSize(MemberSizeWindow& window, MemberSelection& member, Platform& platform) {
  window.beam.b = FormatNumber(member.DressedB, kTwoDecimals);
  window.beam.d = FormatNumber(member.DressedD, kTwoDecimals);
  const Float64 width = ReadNumber(window.beam.b);
  const Float64 depth = ReadNumber(window.beam.d);
  TakeBeamSection(window, member, width, depth);
  return TakeDepthOverB2(width, depth, member.BeamDepthOverB2, platform);
}

}  // namespace

void PickWidth(MemberSizeWindow& window, int pick) {
  window.widthPick = pick;
  window.selection = SizeSelection();
}

void PickDepth(MemberSizeWindow& window, int pick) {
  window.depthPick = pick;
  window.selection = SizeSelection();
}

void AcceptSize(MemberSizeWindow& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  MemberSelection& member = session.Member;
  member.NominalWidth = PickedSize(window.widthPick);
  member.NominalDepth = PickedSize(window.depthPick);
  window.sizeInProgress = true;
  if (!DressPickedPair(window, member, platform)) return;
  ShowAcceptedSize(window, member);
  if (session.DesignMode == "BEAM" && !TakeBeamSize(window, member, platform)) return;
  window.sizeInProgress = false;
}

void SelectGroupSize(MemberSizeWindow& window, SessionState& session, Platform& platform,
                     MemberGroup group) {
  FaultScope faults(platform);
  MemberSelection& member = session.Member;
  GroupPanel& panel = window.Group(group);
  panel.b = FormatNumber(member.DressedB, kTwoDecimals);
  panel.d = FormatNumber(member.DressedD, kTwoDecimals);
  // Web members go on with the two decimals shown, chords with the full values.
  if (group == MemberGroup::Vertical || group == MemberGroup::Diagonal) {
    member.DressedB = ReadNumber(panel.b);
    member.DressedD = ReadNumber(panel.d);
  }
  TrussMemberGroup& chosen = member.Group(group);
  member.ScratchArea = member.DressedB * member.DressedD;
  chosen.GroupB = member.DressedB;
  chosen.GroupD = member.DressedD;
  panel.size = SizeText(member);
  chosen.GroupSizeName = panel.size;
  chosen.GroupArea = member.ScratchArea;
  panel.area = FormatNumber(chosen.GroupArea, kTwoDecimals);
  TakeDepthOverB2(member.DressedB, member.DressedD, chosen.GroupDepthOverB2, platform);
}

}  // namespace lignara
