#include "truss/deflection.h"

#include <array>

#include "app/number_pattern.h"
#include "app/row_number.h"
#include "truss/axial_loads.h"
#include "truss/members.h"
#include "truss/top_nodes.h"

namespace lignara {
namespace {

using M = ActiveModel;

/// A live array and the field that keeps it through the unit loads.
struct SavedArray {
  Float32Array M::*live;
  Float32Array M::*saved;
};

constexpr SavedArray kSavedArrays[] = {{&M::PL, &M::SavePL},    {&M::PR, &M::SavePR},
                                       {&M::AX_VL, &M::SaveVL}, {&M::AX_VR, &M::SaveVR},
                                       {&M::AX_TL, &M::SaveTL}, {&M::AX_TR, &M::SaveTR},
                                       {&M::AX_CL, &M::SaveCL}, {&M::AX_CR, &M::SaveCR},
                                       {&M::AX_DL, &M::SaveDL}, {&M::AX_DR, &M::SaveDR}};

/// The members of a unit case, in the order in which their parts are added.
struct MemberPart {
  Family family;
  Float32Array M::*saved;
};

constexpr MemberPart kMemberParts[] = {{Family::VL, &M::SaveVL}, {Family::VR, &M::SaveVR},
                                       {Family::TL, &M::SaveTL}, {Family::TR, &M::SaveTR},
                                       {Family::CL, &M::SaveCL}, {Family::CR, &M::SaveCR},
                                       {Family::DL, &M::SaveDL}, {Family::DR, &M::SaveDR}};

constexpr double kInchesPerFoot = 12;

/// What differs between the three routines; elements are those of DeflL and DeflR.
struct DeflectionPlan {
  int firstNode, lastNode;      ///< nodes under a unit load
  int firstMember;              ///< members summed, from here to N
  int firstListed, lastListed;  ///< rows of the list
  int listStep = 1;
  bool peakListed = true;
};

void CreateFields(TrussJob& job) {
  ActiveModel& m = job.model;
  const int n = job.HalfSpans();
  for (const SavedArray& pair : kSavedArrays) (m.*pair.saved).Allocate(2 * n);
  m.SaveCV.Allocate(2);
  m.DeflL.Allocate(n);
  m.DeflR.Allocate(n);
  m.DeflT.Allocate(1);
}

/// Moves element `i` and leaves zero.
void Move(Float32Array& from, Float32Array& to, int i) {
  to[i] = from[i];
  from[i] = 0;
}

bool HasSections(const MemberSelection& selection) {
  for (const TrussMemberGroup& group : selection.Groups) {
    if (!(group.GroupArea > 0) || !(group.GroupE > 0)) return false;
  }
  return true;
}

/// Area x modulus of a family's group, lbs.
Number Stiffness(const TrussJob& job, Family family) {
  const TrussMemberGroup& group = job.session.Member.Group(GroupOf(family));
  return group.GroupArea * group.GroupE;
}

/// The truss under the unit load that stands on it now; adds the deflection to `target`.
void UnitCase(TrussJob& job, const DeflectionPlan& plan, Float32& target) {
  AnalyseTruss(job);
  const ActiveModel& m = job.model;
  for (int j = plan.firstMember; j <= job.HalfSpans(); ++j) {
    for (const auto& [family, saved] : kMemberParts) {
      target += AxialOf(m, family)[j] * (m.*saved)[j] * LengthOf(m, family)[j] * kInchesPerFoot /
                Stiffness(job, family);
    }
  }
  target += m.AX_CV[1] * m.SaveCV[1] * job.session.TrussHeight * kInchesPerFoot /
            Stiffness(job, Family::CV);
}

void UnitCases(TrussJob& job, const DeflectionPlan& plan) {
  ActiveModel& m = job.model;
  const std::array<std::pair<Float32Array*, Float32Array*>, 2> sides = {
      {{&m.PL, &m.DeflL}, {&m.PR, &m.DeflR}}};
  for (const auto& [loads, deflections] : sides) {
    for (int k = plan.firstNode; k <= plan.lastNode; ++k) {
      (*loads)[k] = 1.0;
      UnitCase(job, plan, (*deflections)[k]);
      (*loads)[k] = 0;
    }
  }
  m.PT = 1.0;
  UnitCase(job, plan, m.DeflT[1]);
  m.PT = 0;
}

std::string Value(const Float32& deflection) { return " = " + FormatNumber(deflection, "0.000"); }

std::vector<std::string> DeflectionRows(const ActiveModel& m, const DeflectionPlan& plan) {
  std::vector<std::string> rows;
  for (int k = plan.firstListed; k <= plan.lastListed; k += plan.listStep) {
    rows.push_back("LN" + NumberText(k) + Value(m.DeflL[k]));
    rows.push_back("RN" + NumberText(k) + Value(m.DeflR[k]));
  }
  if (plan.peakListed) rows.push_back("TN" + Value(m.DeflT[1]));
  return rows;
}

void FindDeflections(TrussJob& job, const DeflectionPlan& plan, std::vector<std::string>& rows) {
  CreateFields(job);
  SAVE_RESULTS(job);
  if (!HasSections(job.session.Member)) {
    FailRun(job, "AREA OR MOD. PROP. NOT SELECTED, NO DEF. WILL BE CALCULATED");
    RESTORE_RESULTS(job);
    return;
  }
  UnitCases(job, plan);
  rows = DeflectionRows(job.model, plan);
  RESTORE_RESULTS(job);
}

}  // namespace

void SAVE_RESULTS(TrussJob& job) {
  ActiveModel& m = job.model;
  for (const auto& [live, saved] : kSavedArrays) {
    for (int i = 0; i <= job.HalfSpans(); ++i) Move(m.*live, m.*saved, i);
  }
  Move(m.AX_CV, m.SaveCV, 1);
  m.SavePT = m.PT;
  m.PT = 0;
}

void RESTORE_RESULTS(TrussJob& job) {
  ActiveModel& m = job.model;
  for (const auto& [live, saved] : kSavedArrays) {
    for (int i = 0; i <= job.HalfSpans(); ++i) Move(m.*saved, m.*live, i);
  }
  Move(m.SaveCV, m.AX_CV, 1);
  m.PT = m.SavePT;
  m.SavePT = 0;
}

void DEFLECTIONS_PEAKED(TrussJob& job, std::vector<std::string>& rows) {
  const int n = job.HalfSpans();
  const TopNodeRange listed = TopNodesOf(job.model, job.session);
  FindDeflections(job,
                  {.firstNode = 1,
                   .lastNode = n - 1,
                   .firstMember = 1,
                   .firstListed = listed.first,
                   .lastListed = listed.last},
                  rows);
}

void DEFLECTIONS_FLAT(TrussJob& job, std::vector<std::string>& rows) {
  const int n = job.HalfSpans();
  FindDeflections(
      job, {.firstNode = 1, .lastNode = n, .firstMember = 1, .firstListed = 0, .lastListed = n - 1},
      rows);
}

void DEFLECTIONS_WARREN(TrussJob& job, std::vector<std::string>& rows) {
  const int n = job.HalfSpans();
  const bool top = job.model.WarrenChord == "TOP";
  const int last = top ? n - 1 : n;
  FindDeflections(job,
                  {.firstNode = 0,
                   .lastNode = last,
                   .firstMember = 0,
                   .firstListed = 0,
                   .lastListed = last,
                   .listStep = 2,
                   .peakListed = top},
                  rows);
}

}  // namespace lignara
