#include "truss/active_model.h"

#include "app/platform.h"
#include "truss/truss_types.h"

namespace lignara {

int HalfSpans(const SessionState& session) {
  const Int16 half = Number(session.TrussSpans) / 2;
  return half.value();
}

TrussJob::TrussJob(ActiveModel& m, const SessionState& s, Platform& p)
    : model(m),
      session(s),
      platform(p),
      type(TrussTypeOf(s.TrussType)),
      halfSpans_(lignara::HalfSpans(s)) {}

void TRUSS_ALLOC(TrussJob& job) {
  // NS itself need not fit 16 bits where its half does.
  const int panels = 2 * job.HalfSpans();
  using M = ActiveModel;
  static constexpr Float32Array M::*kPanelArrays[] = {
      &M::LEN_TL, &M::LEN_TR, &M::LEN_CL,    &M::LEN_CR,    &M::LEN_VL,    &M::LEN_VR,   &M::LEN_DL,
      &M::LEN_DR, &M::AX_TL,  &M::AX_TR,     &M::AX_CL,     &M::AX_CR,     &M::AX_VL,    &M::AX_VR,
      &M::AX_DL,  &M::AX_DR,  &M::TLH,       &M::TRH,       &M::TLV,       &M::TRV,      &M::DLH,
      &M::DRH,    &M::DLV,    &M::DRV,       &M::ARM_L,     &M::ARM_R,     &M::ARM_D,    &M::ANG_D,
      &M::ANG_T,  &M::ANG_V,  &M::FinkWebVL, &M::FinkWebVR, &M::FinkWebHL, &M::FinkWebHR};
  static constexpr Int16Array M::*kSignArrays[] = {&M::SGN_TL, &M::SGN_TR, &M::SGN_CL, &M::SGN_CR,
                                                   &M::SGN_VL, &M::SGN_VR, &M::SGN_DL, &M::SGN_DR};
  for (const auto array : kPanelArrays) (job.model.*array).Allocate(panels);
  for (const auto array : kSignArrays) (job.model.*array).Allocate(panels);
  job.model.LEN_CV.Allocate(2);
  job.model.AX_CV.Allocate(2);
  job.model.SGN_CV.Allocate(2);
}

void FailRun(TrussJob& job, const std::string& text, const std::string& title) {
  Message message;
  message.text = text;
  if (!title.empty()) message.title = title;
  job.platform.ShowMessage(message);
  job.model.ErrorFlag = 1;
}

}  // namespace lignara
