#include "beam/stress_check.h"

#include "app/number_reader.h"

namespace lignara {
namespace {

struct CheckField {
  StressField field;
  Float32 MemberSelection::*value;
};

constexpr CheckField kCheckFields[] = {
    {StressField::Fb, &MemberSelection::AllowFb}, {StressField::Fv, &MemberSelection::AllowFv},
    {StressField::Fc, &MemberSelection::AllowFc}, {StressField::Ft, &MemberSelection::AllowFt},
    {StressField::B, &MemberSelection::DressedB}, {StressField::D, &MemberSelection::DressedD}};

}  // namespace

void TakeCheckFields(BeamWindow& window, SessionState& session) {
  for (const CheckField& field : kCheckFields) {
    session.Member.*field.value = ReadNumber(window.Field(field.field).text);
  }
  window.beam.unbracedLength = UnbracedLength(window);
}

bool MayCheck(const BeamWindow& window, const SessionState& session, Platform& platform,
              int memberSource) {
  if (!(session.Member.MemberSource == memberSource)) {
    platform.ShowMessage({memberSource == MemberSelection::kSawnSource
                              ? "YOUR MEMBER IS GLU-LAM, NOT NORMAL WOOD!"
                              : "YOUR MEMBER IS NORMAL WOOD, NOT GLU-LAM!"});
    return false;
  }
  if (window.beam.hasRun == 0) {
    platform.ShowMessage({"YOU NEED TO HIT THE RUN BUTTON FIRST!"});
    return false;
  }
  return true;
}

void EndCheck(BeamWindow& window, Platform& platform, const char* problem) {
  window.beam.abortRun = problem == nullptr ? 0 : -1;
  if (problem == nullptr) {
    window.check.open = true;
  } else {
    platform.ShowMessage({problem});
  }
}

}  // namespace lignara
