#include <array>

#include "truss/axial_loads.h"
#include "truss/axial_peaked.h"

namespace lignara {
namespace {

/// ANG_D, from the height of the top node and the length of the diagonal.
void DiagonalSlopes(TrussJob& job) {
  ActiveModel& m = job.model;
  Float32 rise;
  Float32 run;
  for (int i = 2; i <= job.HalfSpans(); ++i) {
    rise = m.ARM_L[i] * Sin(m.ANG_A);
    run = Sqrt(Square(m.LEN_DL[i]) - Square(rise));
    m.ANG_D[i] = Atan(rise / run);
  }
}

/// True where the top nodes from the second on have an arm about the heel.
bool HasNodeArms(TrussJob& job) {
  for (int i = 2; i <= job.HalfSpans(); ++i) {
    if (job.model.ARM_L[i] > 0) continue;
    FailRun(job, "MOMENT ARM (ML) IS 0", "ERROR!");
    return false;
  }
  return true;
}

/// Axial loads of the webs; false at a node without an arm.
bool WebLoads(TrussJob& job) {
  ActiveModel& m = job.model;
  const Number lean = Sin(m.ANG_W);
  std::array<TrussHalf, 2> halves = HalvesOf(m);
  std::array<Float32, 2> moment;  // of the loads up to the node, about the heel
  for (int i = 1; i < job.HalfSpans(); ++i) {
    for (std::size_t side = 0; side < 2; ++side) {
      moment[side] += halves[side].P[i] * (job.session.PanelLength * i - m.LEN_VL[i] * lean);
    }
    if (!(m.ARM_L[i] > 0)) {
      FailRun(job, "ML(N)=0,ERROR");
      return false;
    }
    for (std::size_t side = 0; side < 2; ++side) {
      halves[side].AX_V[i] = moment[side] / m.ARM_L[i];
    }
  }
  return true;
}

}  // namespace

void DIAG_LOADS_FINK(TrussJob& job) {
  ActiveModel& m = job.model;
  if (!HasDiagonalArms(job)) return;
  const Number cosine = Cos(m.ANG_A);
  for (TrussHalf& half : HalvesOf(m)) {
    Float32 moment;  // of the loads before the cut, about the heel
    for (int i = 2; i <= job.HalfSpans(); ++i) {
      moment += half.P[i - 1] * m.ARM_L[i - 1] * cosine;
      half.AX_D[i] = moment / m.ARM_D[i];
    }
  }
  DiagonalSlopes(job);
  SplitDiagonals(job);
}

void VERT_LOADS_FINK(TrussJob& job) {
  if (!HasNodeArms(job) || !WebLoads(job)) return;
  const Number cosine = Cos(job.model.ANG_W);
  const Number sine = Sin(job.model.ANG_W);
  for (TrussHalf& half : HalvesOf(job.model)) {
    for (int i = 1; i < job.HalfSpans(); ++i) {
      half.FinkWebV[i] = half.AX_V[i] * cosine;
      half.FinkWebH[i] = half.AX_V[i] * sine;
    }
  }
}

void TOP_LOADS_FINK(TrussJob& job) {
  // Panel 1 has no diagonal: there the web alone takes its part.
  WalkTopChord(job, [](TrussHalf& half, int i) {
    return half.TH[i - 1] - half.DH[i - 1] - half.FinkWebH[i - 1];
  });
}

void BOTTOM_LOADS_FINK(TrussJob& job) {
  WalkBottomChord(job, [](TrussHalf& half, int i) {
    return half.AX_C[i - 1] - half.DH[i] - half.FinkWebH[i - 1];
  });
}

}  // namespace lignara
