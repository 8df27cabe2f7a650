#include "statics/plane_truss.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <tuple>

#include "statics/banded_equations.h"

namespace lignara {
namespace {

/// The most flexible bar beside the bars' directions in the equations. So small, the balance of
/// joints is eliminated first, and forces that statics alone determines take nothing from stretch.
constexpr double kFlexibility = 1e-3;
/// What may stay unbalanced, as a part of the largest load, where there is equilibrium.
constexpr double kUnbalance = 1e-6;

struct Entry {
  std::size_t row, column;
  double value;
};

/// The equations of a truss. Each joint has two, its balance to the right and upward, and its two
/// moves as unknowns (the reaction where it is held); each bar has one, its stretch, and its force.
class TrussEquations {
 public:
  explicit TrussEquations(const PinTruss& truss) : truss_(truss) {
    NumberUnknowns();
    AddBars();
    AddSupports();
  }

  PinSolution Solve() const;

 private:
  std::vector<std::size_t> JointsAlong() const;
  void NumberUnknowns();
  void AddBars();
  void AddBar(std::size_t bar);
  void AddSupports();
  BandedEquations Assembled() const;
  std::vector<double> Loads() const;
  std::vector<double> Unmet(const std::vector<double>& unknowns) const;
  PinSolution Told(const std::vector<double>& unknowns) const;

  const PinTruss& truss_;
  std::vector<std::size_t> jointRow_, barRow_;  ///< first equation and unknown of each
  std::size_t size_ = 0;
  double scale_ = 1;  ///< moves are counted in this
  std::vector<Entry> entries_;
};

double Length(const PinTruss& truss, const PinBar& bar) {
  const PinJoint& a = truss.joints[static_cast<std::size_t>(bar.from)];
  const PinJoint& b = truss.joints[static_cast<std::size_t>(bar.to)];
  return std::hypot(b.x - a.x, b.y - a.y);
}

/// The joints in their order along the longer side of the truss: neighbours stand close together.
std::vector<std::size_t> TrussEquations::JointsAlong() const {
  const auto& joints = truss_.joints;
  const auto [left, right] = std::minmax_element(
      joints.begin(), joints.end(), [](const auto& a, const auto& b) { return a.x < b.x; });
  const auto [low, high] = std::minmax_element(
      joints.begin(), joints.end(), [](const auto& a, const auto& b) { return a.y < b.y; });
  const bool level = right->x - left->x >= high->y - low->y;
  std::vector<std::size_t> order(joints.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    return level ? joints[a].x < joints[b].x : joints[a].y < joints[b].y;
  });
  return order;
}

/// Joint by joint; a bar stands before the joint at which it ends.
void TrussEquations::NumberUnknowns() {
  const std::vector<std::size_t> order = JointsAlong();
  std::vector<std::size_t> place(order.size());
  for (std::size_t at = 0; at < order.size(); ++at) place[order[at]] = at;
  std::vector<std::size_t> barsTo(order.size() + 1);
  const auto end = [&](const PinBar& bar) {
    return std::max(place[static_cast<std::size_t>(bar.from)],
                    place[static_cast<std::size_t>(bar.to)]);
  };
  for (const PinBar& bar : truss_.bars) ++barsTo[end(bar)];
  std::vector<std::size_t> next(order.size());
  jointRow_.resize(order.size());
  for (std::size_t at = 0; at < order.size(); ++at) {
    next[at] = size_;
    jointRow_[order[at]] = size_ + barsTo[at];
    size_ += barsTo[at] + 2;
  }
  for (const PinBar& bar : truss_.bars) barRow_.push_back(next[end(bar)]++);
}

void TrussEquations::AddBars() {
  double mostFlexible = 0;
  for (const PinBar& bar : truss_.bars) {
    mostFlexible = std::max(mostFlexible, Length(truss_, bar) / bar.stiffness);
  }
  if (mostFlexible > 0) scale_ = mostFlexible / kFlexibility;
  for (std::size_t bar = 0; bar < truss_.bars.size(); ++bar) AddBar(bar);
}

/// A bar pulls its joints towards each other, and its stretch is what they move apart.
void TrussEquations::AddBar(std::size_t at) {
  const PinBar& bar = truss_.bars[at];
  const auto from = static_cast<std::size_t>(bar.from), to = static_cast<std::size_t>(bar.to);
  const std::size_t row = barRow_[at];
  const double length = Length(truss_, bar);
  if (!(length > 0)) {
    entries_.push_back({row, row, 1});
    return;
  }
  entries_.push_back({row, row, length / bar.stiffness / scale_});
  const double right = (truss_.joints[to].x - truss_.joints[from].x) / length;
  const double up = (truss_.joints[to].y - truss_.joints[from].y) / length;
  const auto add = [&](std::size_t joint, double sign) {
    const PinJoint& pin = truss_.joints[joint];
    for (const auto& [held, place, part] : {std::tuple(pin.heldX, jointRow_[joint], right),
                                            std::tuple(pin.heldY, jointRow_[joint] + 1, up)}) {
      entries_.push_back({place, row, sign * part});
      if (!held) entries_.push_back({row, place, sign * part});
    }
  };
  add(from, 1);
  add(to, -1);
}

void TrussEquations::AddSupports() {
  for (std::size_t joint = 0; joint < truss_.joints.size(); ++joint) {
    const std::size_t row = jointRow_[joint];
    if (truss_.joints[joint].heldX) entries_.push_back({row, row, 1});
    if (truss_.joints[joint].heldY) entries_.push_back({row + 1, row + 1, 1});
  }
}

BandedEquations TrussEquations::Assembled() const {
  std::size_t below = 0, above = 0;
  for (const Entry& entry : entries_) {
    if (entry.row > entry.column) below = std::max(below, entry.row - entry.column);
    if (entry.column > entry.row) above = std::max(above, entry.column - entry.row);
  }
  BandedEquations equations(size_, below, above);
  for (const Entry& entry : entries_) equations(entry.row, entry.column) += entry.value;
  return equations;
}

/// The right sides: what bars and reactions have to balance.
std::vector<double> TrussEquations::Loads() const {
  std::vector<double> loads(size_);
  for (std::size_t joint = 0; joint < truss_.joints.size(); ++joint) {
    loads[jointRow_[joint]] = -truss_.joints[joint].loadRight;
    loads[jointRow_[joint] + 1] = truss_.joints[joint].loadDown;
  }
  return loads;
}

std::vector<double> TrussEquations::Unmet(const std::vector<double>& unknowns) const {
  std::vector<double> unmet = Loads();
  for (const Entry& entry : entries_) unmet[entry.row] -= entry.value * unknowns[entry.column];
  return unmet;
}

PinSolution TrussEquations::Told(const std::vector<double>& unknowns) const {
  PinSolution solution;
  for (const std::size_t row : barRow_) solution.forces.push_back(unknowns[row]);
  for (std::size_t joint = 0; joint < truss_.joints.size(); ++joint) {
    const PinJoint& pin = truss_.joints[joint];
    const double right = unknowns[jointRow_[joint]], up = unknowns[jointRow_[joint] + 1];
    solution.moves.push_back({pin.heldX ? 0 : right * scale_, pin.heldY ? 0 : up * scale_});
    solution.reactions.push_back({pin.heldX ? right : 0, pin.heldY ? up : 0});
  }
  return solution;
}

PinSolution TrussEquations::Solve() const {
  BandedEquations equations = Assembled();
  equations.Factor();
  std::vector<double> unknowns = Loads();
  equations.Solve(unknowns);
  std::vector<double> correction = Unmet(unknowns);
  equations.Solve(correction);
  for (std::size_t i = 0; i < size_; ++i) unknowns[i] += correction[i];
  return Told(unknowns);
}

double LargestLoad(const PinTruss& truss) {
  double largest = 0;
  for (const PinJoint& joint : truss.joints) {
    largest = std::max({largest, std::abs(joint.loadRight), std::abs(joint.loadDown)});
  }
  return largest;
}

}  // namespace

double WorstUnbalance(const PinTruss& truss, const PinSolution& solution) {
  std::vector<PinVector> sums = solution.reactions;
  for (std::size_t joint = 0; joint < sums.size(); ++joint) {
    sums[joint].right += truss.joints[joint].loadRight;
    sums[joint].up -= truss.joints[joint].loadDown;
  }
  for (std::size_t bar = 0; bar < truss.bars.size(); ++bar) {
    const double length = Length(truss, truss.bars[bar]);
    if (!(length > 0)) continue;
    const auto from = static_cast<std::size_t>(truss.bars[bar].from);
    const auto to = static_cast<std::size_t>(truss.bars[bar].to);
    const double pull = solution.forces[bar] / length;
    const double right = pull * (truss.joints[to].x - truss.joints[from].x);
    const double up = pull * (truss.joints[to].y - truss.joints[from].y);
    sums[from].right += right, sums[from].up += up;
    sums[to].right -= right, sums[to].up -= up;
  }
  double worst = 0;
  for (const PinVector& sum : sums) {
    if (!std::isfinite(sum.right) || !std::isfinite(sum.up)) return HUGE_VAL;
    worst = std::max({worst, std::abs(sum.right), std::abs(sum.up)});
  }
  return worst;
}

PinSolution SolvePinTruss(const PinTruss& truss) {
  if (truss.joints.empty()) return {};
  PinSolution solution = TrussEquations(truss).Solve();
  const double worst = WorstUnbalance(truss, solution);
  if (std::isfinite(worst) && worst <= kUnbalance * LargestLoad(truss)) return solution;
  PinSolution mechanism;
  mechanism.mechanism = true;
  return mechanism;
}

}  // namespace lignara
