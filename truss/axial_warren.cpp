#include "truss/axial_loads.h"
#include "truss/half.h"

namespace lignara {
namespace {

/// How two neighbouring diagonals change a chord's force at the joint between them, by their signs:
/// factors on the horizontal components of the diagonal at hand and of its neighbour. All pairs of
/// signs stand here, those too that the walk from the end does not meet.
struct ChordStep {
  int sign, neighbourSign;
  int factor, neighbourFactor;
};

/// Bottom joint; the neighbour is the diagonal before.
constexpr ChordStep kBottomSteps[] = {
    {.sign = -1, .neighbourSign = -1, .factor = +1, .neighbourFactor = -1},
    {.sign = -1, .neighbourSign = +1, .factor = +1, .neighbourFactor = +1},
    {.sign = +1, .neighbourSign = -1, .factor = -1, .neighbourFactor = +1},
    {.sign = +1, .neighbourSign = +1, .factor = -1, .neighbourFactor = -1}};
/// Top joint; the neighbour is the diagonal behind it.
constexpr ChordStep kTopSteps[] = {
    {.sign = -1, .neighbourSign = -1, .factor = +1, .neighbourFactor = -1},
    {.sign = -1, .neighbourSign = +1, .factor = +1, .neighbourFactor = +1},
    {.sign = +1, .neighbourSign = -1, .factor = -1, .neighbourFactor = -1},
    {.sign = +1, .neighbourSign = +1, .factor = -1, .neighbourFactor = +1}};

/// The change of the chord's force at the joint between diagonal `i` and `neighbour`.
template <std::size_t Count>
Number ChordChange(const ChordStep (&steps)[Count], const TrussHalf& half, int i, int neighbour,
                   Number cosine) {
  for (const ChordStep& step : steps) {
    if (half.SGN_D[i] == step.sign && half.SGN_D[neighbour] == step.neighbourSign) {
      return step.factor * half.AX_D[i] * cosine +
             step.neighbourFactor * half.AX_D[neighbour] * cosine;
    }
  }
  return 0;
}

void FixedSigns(TrussJob& job, TrussHalf& half) {
  half.SGN_V[1] = -1;
  half.SGN_D[1] = 1;
  for (int i = 1; i <= job.HalfSpans(); ++i) {
    half.SGN_T[i] = -1;
    half.SGN_C[i] = 1;
  }
}

/// The diagonal that falls from top node `i` (a panel point), under the node's load.
void DiagonalBehindNode(TrussHalf& half, int i, Number load, Number sine) {
  const Number lift = half.AX_D[i - 1] * sine;
  if (half.SGN_D[i] == -1) {
    half.AX_D[i + 1] = Abs(load - lift) / sine;
    half.SGN_D[i + 1] = lift < load ? -1 : 1;
  } else {
    half.AX_D[i + 1] = (load + half.AX_D[i] * sine) / sine;
    half.SGN_D[i + 1] = -1;
  }
}

void WarrenHalf(TrussJob& job, TrussHalf& half) {
  const Number sine = Sin(job.model.ANG_A);
  const Number cosine = Cos(job.model.ANG_A);
  const int n = job.HalfSpans();
  half.AX_V[1] = half.NODE_R;
  half.AX_C[1] = 0;
  const Float32 v = half.AX_V[1] - half.P[0];
  half.AX_D[1] = v / sine;
  half.AX_T[1] = half.AX_D[1] * cosine;
  for (int i = 2; i <= n; i += 2) {
    half.AX_T[i] = half.AX_T[i - 1];
    half.SGN_D[i] = -half.SGN_D[i - 1];
    half.AX_D[i] = half.AX_D[i - 1];
    DiagonalBehindNode(half, i, i == n ? job.model.PT : half.P[i / 2], sine);
    half.AX_C[i] = half.AX_C[i - 1] + ChordChange(kBottomSteps, half, i, i - 1, cosine);
    half.AX_C[i + 1] = half.AX_C[i];
    half.AX_T[i + 1] = half.AX_T[i] + ChordChange(kTopSteps, half, i, i + 1, cosine);
  }
}

}  // namespace

void WARREN_LOADS(TrussJob& job) {
  for (TrussHalf& half : HalvesOf(job.model)) {
    FixedSigns(job, half);
    WarrenHalf(job, half);
  }
}

}  // namespace lignara
