#include "tests/support/plane_truss.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "app/number_reader.h"
#include "tests/support/linear_equations.h"

namespace lignara {
namespace {

constexpr double kSamePlace = 1e-6;

}  // namespace

PlaneTruss::PlaneTruss(TestTruss& truss)
    : type_(truss.session.TrussType),
      n_(HalfSpans(truss.session)),
      panel_(truss.session.PanelLength.value()),
      length_(truss.session.TrussLength.value()),
      height_(truss.session.TrussHeight.value()),
      inner_(truss.session.TrussInnerHeight.value()),
      leftReaction_(ReadNumber(truss.window.leftReaction).value()),
      rightReaction_(ReadNumber(truss.window.rightReaction).value()) {
  if (type_ == "PRATT1") BuildVerticalWebs(false);
  if (type_ == "ENGLISH") BuildVerticalWebs(true);
  if (type_ == "FINK") BuildFink();
  if (type_ == "KINGPOST") BuildKingPost();
  if (type_ == "SCI") BuildScissors();
  if (type_ == "PRATT2") BuildFlat(true);
  if (type_ == "HOWE") BuildFlat(false);
  if (type_ == "WARREN") BuildWarren();
  TakeLoads(truss);
  TakeForces(truss);
}

int PlaneTruss::JointAt(double x, double y) {
  for (std::size_t i = 0; i < joints.size(); ++i) {
    if (std::hypot(joints[i].x - x, joints[i].y - y) < kSamePlace) return static_cast<int>(i);
  }
  joints.push_back({x, y});
  return static_cast<int>(joints.size()) - 1;
}

void PlaneTruss::AddBar(Family family, int index, double x1, double y1, double x2, double y2) {
  const int from = JointAt(x1, y1);
  bars.push_back({{family, index}, from, JointAt(x2, y2)});
}

void PlaneTruss::AddBoth(Family left, Family right, int index, double x1, double y1, double x2,
                         double y2) {
  AddBar(left, index, x1, y1, x2, y2);
  AddBar(right, index, length_ - x1, y1, length_ - x2, y2);
}

void PlaneTruss::BuildPeaked(bool chordsMeetAtMidspan) {
  // Where no web meets the bottom chord at midspan, its two middle members are one bar.
  for (int i = 1; i < n_; ++i) {
    AddBoth(Family::CL, Family::CR, i, (i - 1) * panel_, 0, i * panel_, 0);
  }
  const double last = (n_ - 1) * panel_;
  if (chordsMeetAtMidspan) {
    AddBoth(Family::CL, Family::CR, n_, last, 0, length_ / 2, 0);
  } else {
    AddBar(Family::CL, n_, last, 0, length_ - last, 0);
  }
}

void PlaneTruss::BuildVerticalWebs(bool diagonalsFall) {
  const double rise = height_ / n_;
  BuildPeaked(true);
  for (int i = 1; i <= n_; ++i) {
    const double before = (i - 1) * panel_;
    const double x = i * panel_;
    AddBoth(Family::TL, Family::TR, i, before, (i - 1) * rise, x, i * rise);
    if (i < n_) AddBoth(Family::VL, Family::VR, i, x, 0, x, i * rise);
    if (i == 1) continue;
    AddBoth(Family::DL, Family::DR, i, before, diagonalsFall ? (i - 1) * rise : 0, x,
            diagonalsFall ? 0 : i * rise);
  }
  AddBar(Family::CV, 1, length_ / 2, 0, length_ / 2, height_);
}

void PlaneTruss::BuildFink() {
  const double rafter = std::hypot(height_, length_ / 2);
  const double sine = height_ / rafter;
  const double cosine = length_ / 2 / rafter;
  // The web on bottom node i is square to the rafter; node N is the peak.
  const auto along = [&](int i) { return i == n_ ? rafter : i * panel_ * cosine; };
  BuildPeaked(false);
  for (int i = 1; i <= n_; ++i) {
    const double x = along(i) * cosine;
    const double y = along(i) * sine;
    AddBoth(Family::TL, Family::TR, i, along(i - 1) * cosine, along(i - 1) * sine, x, y);
    if (i < n_) AddBoth(Family::VL, Family::VR, i, i * panel_, 0, x, y);
    if (i > 1) AddBoth(Family::DL, Family::DR, i, (i - 1) * panel_, 0, x, y);
  }
}

void PlaneTruss::BuildKingPost() {
  AddBoth(Family::CL, Family::CR, 1, 0, 0, length_ / 2, 0);
  AddBoth(Family::TL, Family::TR, 1, 0, 0, length_ / 2, height_);
  AddBar(Family::CV, 1, length_ / 2, 0, length_ / 2, height_);
}

void PlaneTruss::BuildScissors() {
  // The rafter y = h/s x meets the line of the other bottom chord, y = h1/s (length - x).
  const double half = length_ / 2;
  const double x = inner_ * length_ / (height_ + inner_);
  const double y = height_ / half * x;
  AddBoth(Family::CL, Family::CR, 1, 0, 0, half, inner_);
  AddBoth(Family::TL, Family::TR, 1, 0, 0, x, y);
  AddBoth(Family::TL, Family::TR, 2, x, y, half, height_);
  AddBoth(Family::VL, Family::VR, 1, x, y, half, inner_);
  AddBar(Family::CV, 1, half, inner_, half, height_);
}

void PlaneTruss::BuildFlat(bool diagonalsFall) {
  for (int i = 1; i <= n_; ++i) {
    const double from = (i - 1) * panel_;
    const double to = i * panel_;
    AddBoth(Family::CL, Family::CR, i, from, 0, to, 0);
    AddBoth(Family::TL, Family::TR, i, from, height_, to, height_);
    AddBoth(Family::VL, Family::VR, i, from, 0, from, height_);
    AddBoth(Family::DL, Family::DR, i, diagonalsFall ? from : to, height_,
            diagonalsFall ? to : from, 0);
  }
  AddBar(Family::CV, 1, length_ / 2, 0, length_ / 2, height_);
}

void PlaneTruss::BuildWarren() {
  // Top joints at even, bottom joints at odd panel points of the whole truss; a chord member spans
  // two panels and has the forces of both. Panel p counts from the left support.
  const int panels = 2 * n_;
  const auto name = [&](Family left, Family right, int p) {
    return p <= n_ ? Member{left, p} : Member{right, panels + 1 - p};
  };
  const auto add = [&](Member member, int from, double y1, int to, double y2) {
    AddBar(member.family, member.index, from * panel_, y1, to * panel_, y2);
  };
  for (int p = 1; p <= panels; ++p) {
    add(name(Family::DL, Family::DR, p), p - 1, p % 2 == 1 ? height_ : 0, p,
        p % 2 == 1 ? 0 : height_);
    if (p % 2 == 1) add(name(Family::TL, Family::TR, p), p - 1, height_, p + 1, height_);
    if (p % 2 == 0 && p < panels) add(name(Family::CL, Family::CR, p), p - 1, 0, p + 1, 0);
  }
  AddBoth(Family::CL, Family::CR, 1, 0, 0, panel_, 0);
  AddBoth(Family::VL, Family::VR, 1, 0, 0, 0, height_);
}

int PlaneTruss::TopJoint(char side, int index) const {
  const bool flat = type_ == "PRATT2" || type_ == "HOWE";
  double x = length_ / 2;
  if (side != 'T') {
    x = index * panel_;
    if (flat) x = (index - 1) * panel_;
    if (type_ == "WARREN") x = 2 * index * panel_;
    if (type_ == "SCI") x = inner_ * length_ / (height_ + inner_);
    if (type_ == "FINK") x /= 1 + std::pow(2 * height_ / length_, 2);  // i L cos^2 A
    if (side == 'R') x = length_ - x;
  }
  int best = -1;
  for (std::size_t i = 0; i < joints.size(); ++i) {
    if (std::fabs(joints[i].x - x) > kSamePlace) continue;
    if (best < 0 || joints[i].y > joints[static_cast<std::size_t>(best)].y) {
      best = static_cast<int>(i);
    }
  }
  if (best < 0) throw std::logic_error("no joint at this node");
  return best;
}

void PlaneTruss::TakeLoads(TestTruss& truss) {
  const ActiveModel& m = truss.model();
  const bool warren = type_ == "WARREN";
  const bool flat = type_ == "PRATT2" || type_ == "HOWE";
  int first = 1;
  int last = n_ - 1;
  if (flat) last = n_;
  if (warren) {
    first = 0;
    last = (n_ - 1) / 2;
  }
  if (type_ == "KINGPOST") last = 0;
  for (int i = first; i <= last; ++i) {
    joints[static_cast<std::size_t>(TopJoint('L', i))].load = m.PL[i].value();
    joints[static_cast<std::size_t>(TopJoint('R', i))].load = m.PR[i].value();
  }
  const bool midspanIsBottom = warren && n_ % 2 == 1;
  if (!midspanIsBottom) joints[static_cast<std::size_t>(TopJoint('T'))].load = m.PT.value();
}

void PlaneTruss::TakeForces(TestTruss& truss) {
  // Two types give their centre vertical the sign of a post, though it hangs in tension.
  const bool hanger = type_ == "ENGLISH" || type_ == "SCI";
  for (Bar& bar : bars) {
    const Family family = bar.member.family;
    bar.force = AxialOf(truss.model(), family)[bar.member.index].value();
    if (family == Family::CV && hanger) bar.force = -bar.force;
    const TrussMemberGroup& group = truss.session.Member.Group(GroupOf(family));
    bar.stiffness = static_cast<double>(group.GroupArea.value()) * group.GroupE.value();
  }
}

double PlaneTruss::Length(const Bar& bar) const {
  const Joint& a = joints[static_cast<std::size_t>(bar.from)];
  const Joint& b = joints[static_cast<std::size_t>(bar.to)];
  return std::hypot(b.x - a.x, b.y - a.y);
}

double PlaneTruss::WorstUnbalance() const {
  std::vector<double> h(joints.size());
  std::vector<double> v(joints.size());
  for (std::size_t i = 0; i < joints.size(); ++i) {
    v[i] = -joints[i].load;
    if (joints[i].y > kSamePlace) continue;
    if (joints[i].x < kSamePlace) v[i] += leftReaction_;
    if (std::fabs(joints[i].x - length_) < kSamePlace) v[i] += rightReaction_;
  }
  for (const Bar& bar : bars) {
    const auto a = static_cast<std::size_t>(bar.from);
    const auto b = static_cast<std::size_t>(bar.to);
    const double x = bar.force * (joints[b].x - joints[a].x) / Length(bar);
    const double y = bar.force * (joints[b].y - joints[a].y) / Length(bar);
    h[a] += x;
    v[a] += y;
    h[b] -= x;
    v[b] -= y;
  }
  double worst = 0;
  for (std::size_t i = 0; i < joints.size(); ++i) {
    worst = std::max({worst, std::fabs(h[i]), std::fabs(v[i])});
  }
  return worst;
}

std::vector<double> PlaneTruss::Sinking() const {
  const std::size_t size = 2 * joints.size();
  LinearEquations equations(size);
  for (const Bar& bar : bars) {
    const auto a = static_cast<std::size_t>(bar.from);
    const auto b = static_cast<std::size_t>(bar.to);
    const double length = Length(bar);
    const double direction[] = {
        (joints[a].x - joints[b].x) / length, (joints[a].y - joints[b].y) / length,
        (joints[b].x - joints[a].x) / length, (joints[b].y - joints[a].y) / length};
    const std::size_t freedom[] = {2 * a, 2 * a + 1, 2 * b, 2 * b + 1};
    for (int r = 0; r < 4; ++r) {
      for (int c = 0; c < 4; ++c) {
        equations.matrix(freedom[r], freedom[c]) +=
            bar.stiffness / length * direction[r] * direction[c];
      }
    }
  }
  for (std::size_t i = 0; i < joints.size(); ++i) {
    equations.right(2 * i + 1) = -joints[i].load;
    if (joints[i].y > kSamePlace) continue;
    if (joints[i].x < kSamePlace) equations.Hold(2 * i);
    if (joints[i].x < kSamePlace || std::fabs(joints[i].x - length_) < kSamePlace) {
      equations.Hold(2 * i + 1);
    }
  }
  const std::vector<double> moved = equations.Solve();
  std::vector<double> sinking;
  for (std::size_t i = 0; i < joints.size(); ++i) sinking.push_back(-moved[2 * i + 1]);
  return sinking;
}

}  // namespace lignara
