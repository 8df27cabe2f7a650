#include "statics/span_walk.h"

#include <algorithm>

namespace lignara {
namespace {

/// A place at which something acts, begins or ends.
struct LoadEvent {
  double x = 0;
  double force = 0;
  double moment = 0;
  double intensity = 0;  ///< that spread loads gain there
  double growth = 0;
};

void AddSpread(const SpreadLoad& load, double length, std::vector<LoadEvent>& events) {
  const double start = std::max(load.start, 0.0);
  const double end = std::min(load.end, length);
  if (!(start < end)) return;
  const double growth = (load.atEnd - load.atStart) / (load.end - load.start);
  const auto at = [&](double x) { return load.atStart + growth * (x - load.start); };
  events.push_back({start, 0, 0, at(start), growth});
  events.push_back({end, 0, 0, -at(end), -growth});
}

std::vector<LoadEvent> EventsOf(const LoadedSpan& span) {
  const auto isOnSpan = [&](double x) { return x >= 0 && x <= span.length; };
  std::vector<LoadEvent> events;
  for (const PointForce& load : span.forces) {
    if (isOnSpan(load.x)) events.push_back({load.x, load.force});
  }
  for (const PointMoment& load : span.moments) {
    if (isOnSpan(load.x)) events.push_back({load.x, 0, load.moment});
  }
  for (const SpreadLoad& load : span.spreads) AddSpread(load, span.length, events);
  std::stable_sort(events.begin(), events.end(),
                   [](const LoadEvent& a, const LoadEvent& b) { return a.x < b.x; });
  return events;
}

/// A walk along a span.
class Walk {
 public:
  Walk(const LoadedSpan& span, const SectionState& first) : first_(first) {
    here_.stiffness = span.stiffness;
    here_.first = first;
  }

  void GoTo(double x) {
    if (!(x > here_.start)) return;
    here_.length = x - here_.start;
    stretches_.push_back(here_);
    here_.first = here_.At(here_.length);
    here_.intensity += here_.growth * here_.length;
    here_.start = x;
  }

  void TakeUp(const LoadEvent& event) {
    here_.first.shear -= event.force;
    here_.first.moment += event.moment;
    here_.intensity += event.intensity;
    here_.growth += event.growth;
  }

  SpanCurves Curves() && { return {first_, std::move(stretches_), here_.first}; }

 private:
  SectionState first_;
  BeamStretch here_;
  std::vector<BeamStretch> stretches_;
};

}  // namespace

Polynomial BeamStretch::Shear() const { return {{first.shear, -intensity, -growth / 2}}; }

Polynomial BeamStretch::Moment() const {
  return {{first.moment, first.shear, -intensity / 2, -growth / 6}};
}

Polynomial BeamStretch::Slope() const {
  const double f = 1 / stiffness;
  return {
      {first.slope, -first.moment * f, -first.shear * f / 2, intensity * f / 6, growth * f / 24}};
}

Polynomial BeamStretch::Deflection() const {
  const double f = 1 / stiffness;
  return {{first.deflection, first.slope, -first.moment * f / 2, -first.shear * f / 6,
           intensity * f / 24, growth * f / 120}};
}

SectionState BeamStretch::At(double u) const {
  return {Shear().At(u), Moment().At(u), Slope().At(u), Deflection().At(u)};
}

SpanCurves WalkSpan(const LoadedSpan& span, const SectionState& first) {
  Walk walk(span, first);
  for (const LoadEvent& event : EventsOf(span)) {
    walk.GoTo(event.x);
    walk.TakeUp(event);
  }
  walk.GoTo(span.length);
  return std::move(walk).Curves();
}

}  // namespace lignara
