#include "beam/diagrams.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "app/number_pattern.h"

namespace lignara {
namespace {

/// Which way a positive value is drawn.
enum class Upright { Up, Down };

/// The first station of the value of largest magnitude.
int PeakStation(const Float32Array& values, int last) {
  int peak = 0;
  for (int i = 1; i <= last; ++i) {
    if (Abs(values[i]) > Abs(values[peak])) peak = i;
  }
  return peak;
}

/// One diagram over the stations of the last run.
class DiagramPainter {
 public:
  DiagramPainter(const StationGrid& grid, const Float32Array& values, const Float32& peak,
                 Upright upright)
      : last_(grid.last), values_(values), down_(upright == Upright::Down ? 1 : -1) {
    // A margin of a fifth of the doubled peak.
    const double doubled = 2 * std::fabs(static_cast<double>(peak.value()));
    drawing_.width = grid.steps;
    // Without any peak a line across the middle is left.
    drawing_.height = doubled > 0 ? doubled + 0.2 * doubled : 1;
    drawing_.textHeight = drawing_.height / 12;
    drawing_.stretched = true;
    DrawCurve();
  }

  /// A line from the base to the peak, with the value beside it: between both, where no curve runs.
  void MarkPeak(const std::string& value) {
    const int station = PeakStation(values_, last_);
    const double tip = YAt(station);
    drawing_.shapes.emplace_back(LineShape{1.0 * station, Base(), 1.0 * station, tip, Colour::Red});
    const double y = (Base() + tip - drawing_.textHeight) / 2;
    drawing_.shapes.emplace_back(TextShape{station + drawing_.width / 100, y, value, Colour::Red});
  }
  /// The last shape of all: it is moved without the curve being drawn again.
  void MarkStation(int station) {
    drawing_.shapes.emplace_back(
        LineShape{1.0 * station, 0, 1.0 * station, drawing_.height, Colour::DarkOrange});
  }

  Drawing Take() { return std::move(drawing_); }

 private:
  double Base() const { return drawing_.height / 2; }
  double YAt(int station) const { return Base() + down_ * values_[station].value(); }

  void DrawCurve() {
    drawing_.shapes.reserve(static_cast<std::size_t>(last_) + 4);
    drawing_.shapes.emplace_back(LineShape{0, Base(), drawing_.width, Base(), Colour::Blue});
    for (int i = 0; i < last_; ++i) {
      drawing_.shapes.emplace_back(
          LineShape{1.0 * i, YAt(i), 1.0 * i + 1, YAt(i + 1), Colour::Black});
    }
  }

  const int last_;
  const Float32Array& values_;
  const double down_;
  Drawing drawing_;
};

/// Where a diagram's values and read-outs stand; in the order of Diagram.
struct DiagramRow {
  Drawing BeamDiagrams::*drawing;
  Float32Array BeamResults::*values;
  Float32 BeamResults::*peak;
  std::string BeamWindow::*peakText;
  Upright upright;
  std::string BeamDiagrams::*readOut;
  const char* pattern;
};

constexpr DiagramRow kDiagramRows[] = {
    {&BeamDiagrams::shear, &BeamResults::shearTotal, &BeamResults::maxShear, &BeamWindow::maxShear,
     Upright::Up, &BeamDiagrams::shearAt, "0.00"},
    {&BeamDiagrams::moment, &BeamResults::momentTotal, &BeamResults::maxMoment,
     &BeamWindow::maxMoment, Upright::Up, &BeamDiagrams::momentAt, "0.00"},
    {&BeamDiagrams::deflection, &BeamResults::deflTotal, &BeamResults::maxDeflection,
     &BeamWindow::maxDeflection, Upright::Down, &BeamDiagrams::deflAt, "0.0000"},
};

/// A curve with its peak and, unless it is for paper, the mark of a station.
Drawing Painted(const BeamWindow& window, const DiagramRow& row, std::optional<int> station) {
  const BeamResults& results = window.results;
  if ((results.*row.values).upper() < 0) return {};
  DiagramPainter painter(results.grid, results.*row.values, results.*row.peak, row.upright);
  painter.MarkPeak(window.*row.peakText);
  if (station) painter.MarkStation(std::min(*station, results.grid.last));
  return painter.Take();
}

void Draw(BeamWindow& window) {
  for (const DiagramRow& row : kDiagramRows) {
    window.diagrams.*row.drawing = Painted(window, row, window.diagrams.station);
  }
}

/// The curves stay as they are, so that dragging is quick however many stations there are.
void MoveMarks(BeamWindow& window) {
  const int station = std::min(window.diagrams.station, window.results.grid.last);
  for (const DiagramRow& row : kDiagramRows) {
    std::vector<Shape>& shapes = (window.diagrams.*row.drawing).shapes;
    if (shapes.empty()) continue;
    auto& mark = std::get<LineShape>(shapes.back());
    mark.x1 = mark.x2 = station;
  }
}

std::string LocationText(const StationGrid& grid, int station) {
  return FormatNumber(Float32(station / grid.steps * grid.span), "0.000");
}

void ShowReadOuts(BeamWindow& window) {
  BeamDiagrams& diagrams = window.diagrams;
  const StationGrid& grid = window.results.grid;
  const int s = diagrams.station;
  const bool known = s <= grid.last;
  const auto show = [&](const Float32& value, const char* pattern) {
    return known ? FormatNumber(value, pattern) : std::string();
  };
  for (const DiagramRow& row : kDiagramRows) {
    diagrams.*row.readOut = show((window.results.*row.values)[s], row.pattern);
  }
  diagrams.rotationAt = show(window.results.rotationTotal[s], "0.000000");
  diagrams.location = known ? LocationText(grid, s) : std::string();
}

}  // namespace

Drawing DiagramOnPaper(const BeamWindow& window, Diagram diagram) {
  return Painted(window, kDiagramRows[static_cast<std::size_t>(diagram)], std::nullopt);
}

std::optional<DiagramPeak> PeakOfDiagram(const BeamWindow& window, Diagram diagram) {
  const DiagramRow& row = kDiagramRows[static_cast<std::size_t>(diagram)];
  const BeamResults& results = window.results;
  const Float32Array& values = results.*row.values;
  if (values.upper() < 0) return std::nullopt;
  const int peak = PeakStation(values, results.grid.last);
  return DiagramPeak{window.*row.peakText, LocationText(results.grid, peak)};
}

void ShowDiagrams(BeamWindow& window, const SessionState& session) {
  const FaultsOnce once;
  FillRotations(window.results, session);
  window.diagrams.enabled = true;
  Draw(window);
  MoveToStation(window, window.diagrams.station);
}

void OpenDiagrams(BeamWindow& window, const SessionState& session) {
  window.diagrams.station = 0;
  ShowDiagrams(window, session);
  window.diagrams.open = true;
}

void CloseDiagrams(BeamWindow& window) { window.diagrams.open = false; }

void MoveToStation(BeamWindow& window, int station) {
  window.diagrams.station = std::clamp(station, 0, window.diagrams.lastStation);
  MoveMarks(window);
  ShowReadOuts(window);
}

void PressDiagram(BeamWindow& window, double x) {
  const double last = window.results.grid.last;
  MoveToStation(window, static_cast<int>(std::lround(std::clamp(x, 0.0, last))));
}

void FollowAccuracy(BeamWindow& window) {
  const double stations = RoundHalfEven(window.beam.accuracySteps).value();
  constexpr double kMost = std::numeric_limits<std::int16_t>::max();
  window.diagrams.lastStation = static_cast<int>(std::min(stations, kMost));
  // A bar that becomes shorter takes its station along.
  if (window.diagrams.enabled) MoveToStation(window, window.diagrams.station);
}

}  // namespace lignara
