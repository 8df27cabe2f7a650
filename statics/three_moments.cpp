#include "statics/three_moments.h"

#include <algorithm>
#include <cstddef>

namespace lignara {
namespace {

/// What the loads of a span do by themselves: at its right end, when nothing acts at its left one.
SectionState LoadsAlone(const LoadedSpan& span) { return WalkSpan(span, {}).last; }

/// A row of the equations: what the moment at a support and those beside it are to sum up to.
struct MomentRow {
  double before = 0, own = 0, behind = 0, sum = 0;
};

/// A span between two supports.
struct SupportedSpan {
  double length, stiffness;
  SectionState loads;
  double fall;  ///< of the right support against the left one, a slope

  /// How much a moment of 1 at an end turns the other end; its own end turns twice as far.
  double Flexibility() const { return length / (6 * stiffness); }
  /// The shear at the left end with the end moments at hand.
  double LeftShear(double left, double right) const {
    return (right - left - loads.moment) / length;
  }
  /// The slopes at the ends without end moments.
  double LeftSlope() const {
    return fall - loads.deflection / length - loads.moment * Flexibility();
  }
  double RightSlope() const {
    return LeftSlope() + loads.moment * length / (2 * stiffness) + loads.slope;
  }
};

/// A row a support, from which it has its moment.
std::vector<double> Eliminate(std::vector<MomentRow> rows) {
  std::vector<double> moments(rows.size());
  for (std::size_t i = 1; i < rows.size(); ++i) {
    const double part = rows[i].before / rows[i - 1].own;
    rows[i].own -= part * rows[i - 1].behind;
    rows[i].sum -= part * rows[i - 1].sum;
  }
  double behind = 0;
  for (std::size_t i = rows.size(); i-- > 0;) {
    behind = moments[i] = (rows[i].sum - rows[i].behind * behind) / rows[i].own;
  }
  return moments;
}

class ThreeMoments {
 public:
  explicit ThreeMoments(const ContinuousBeam& beam)
      : beam_(beam),
        first_(beam.left == BeamHold::Free ? 1 : 0),
        last_(beam.spans.size() - (beam.right == BeamHold::Free ? 1 : 0)) {
    for (std::size_t i = first_; i < last_; ++i) spans_.push_back(SpanAt(i));
    moments_ = Moments();
  }

  std::vector<SpanCurves> Curves() const {
    std::vector<SpanCurves> curves;
    for (std::size_t i = 0; i < beam_.spans.size(); ++i) {
      curves.push_back(WalkSpan(beam_.spans[i], LeftEndOf(i)));
    }
    return curves;
  }

 private:
  double RiseOf(std::size_t support) const {
    return support < beam_.rises.size() ? beam_.rises[support] : 0;
  }

  SupportedSpan SpanAt(std::size_t i) const {
    const LoadedSpan& span = beam_.spans[i];
    return {span.length, span.stiffness, LoadsAlone(span),
            (RiseOf(i) - RiseOf(i + 1)) / span.length};
  }

  /// The moments at all supports.
  std::vector<double> Moments() const {
    if (spans_.empty()) return {LonelyMoment()};
    std::vector<MomentRow> rows{LeftRow()};
    for (std::size_t i = 1; i < spans_.size(); ++i) {
      const SupportedSpan &a = spans_[i - 1], &b = spans_[i];
      rows.push_back({a.Flexibility(), 2 * (a.Flexibility() + b.Flexibility()), b.Flexibility(),
                      a.RightSlope() - b.LeftSlope()});
    }
    rows.push_back(RightRow());
    return Eliminate(std::move(rows));
  }

  MomentRow LeftRow() const {
    if (beam_.left != BeamHold::Fixed) return {0, 1, 0, LeftOverhangMoment()};
    const SupportedSpan& span = spans_.front();
    return {0, 2 * span.Flexibility(), span.Flexibility(), beam_.leftTurn - span.LeftSlope()};
  }

  MomentRow RightRow() const {
    if (beam_.right != BeamHold::Fixed) return {0, 1, 0, RightOverhangMoment()};
    const SupportedSpan& span = spans_.back();
    return {span.Flexibility(), 2 * span.Flexibility(), 0, span.RightSlope() - beam_.rightTurn};
  }

  /// The moment at the only support, which holds a cantilever.
  double LonelyMoment() const {
    return beam_.left == BeamHold::Fixed ? RightOverhangMoment() : LeftOverhangMoment();
  }

  double LeftOverhangMoment() const {
    return first_ == 0 ? 0 : LoadsAlone(beam_.spans.front()).moment;
  }

  /// 0 without an overhang.
  double RightOverhangMoment() const {
    if (last_ == beam_.spans.size()) return 0;
    const LoadedSpan& span = beam_.spans.back();
    const SectionState loads = LoadsAlone(span);
    return loads.shear * span.length - loads.moment;
  }

  /// The slope at a support, counted from the first one.
  double SlopeAt(std::size_t support) const {
    if (spans_.empty()) return beam_.left == BeamHold::Fixed ? beam_.leftTurn : beam_.rightTurn;
    const bool isLast = support == spans_.size();
    const SupportedSpan& span = spans_[isLast ? support - 1 : support];
    const std::size_t left = isLast ? support - 1 : support;
    const double a = moments_[left], b = moments_[left + 1];
    return isLast ? span.RightSlope() - span.Flexibility() * (a + 2 * b)
                  : span.LeftSlope() + span.Flexibility() * (2 * a + b);
  }

  SectionState LeftEndOf(std::size_t i) const {
    if (i < first_) return LeftOverhang();
    const std::size_t support = i - first_;
    SectionState end{0, moments_[support], SlopeAt(support), -RiseOf(i)};
    end.shear = i < last_ ? spans_[support].LeftShear(moments_[support], moments_[support + 1])
                          : -LoadsAlone(beam_.spans[i]).shear;
    return end;
  }

  /// The free end of an overhang lies where its loads and the slope at its support bring it.
  SectionState LeftOverhang() const {
    const LoadedSpan& span = beam_.spans.front();
    const SectionState loads = LoadsAlone(span);
    const double slope = SlopeAt(0) - loads.slope;
    return {0, 0, slope, -RiseOf(1) - loads.deflection - slope * span.length};
  }

  const ContinuousBeam& beam_;
  std::size_t first_, last_;  // supports
  std::vector<SupportedSpan> spans_;
  std::vector<double> moments_;
};

}  // namespace

std::vector<SpanCurves> SolveThreeMoments(const ContinuousBeam& beam) {
  return ThreeMoments(beam).Curves();
}

}  // namespace lignara
