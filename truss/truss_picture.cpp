#include "truss/truss_picture.h"

#include <algorithm>

#include "app/fault.h"
#include "app/number_pattern.h"
#include "truss/canvas.h"
#include "truss/canvas_shapes.h"
#include "truss/changed_since_run.h"
#include "truss/force_and_length_lists.h"
#include "truss/force_sense.h"
#include "truss/top_nodes.h"
#include "truss/truss_types.h"
#include "truss/window_marks.h"

namespace lignara {
namespace {

/// Room around a truss for names, for loads and for the arrow at a node, in canvas units.
constexpr double kBeside = 150;
constexpr double kAbove = 560;
constexpr double kAboveOnPaper = 330;
constexpr double kBelow = 200;

/// A member before a run.
constexpr ForceSense kNotRun = {"", "", "", Colour::Black, Stroke::Plain};

/// Series of names beside those of the member families.
constexpr int kNodeSeries = 100;

const ForceSense& ShownSense(const TrussWindow& window, const Member& member) {
  if (!window.view.resultsShown) return kNotRun;
  return SenseOf(AxialOf(window.model, member.family)[member.index]);
}

/// Outside of the chords, and of the webs on the side of midspan.
NameSide SideOf(Family family) {
  if (family == Family::TL || family == Family::TR) return NameSide::Above;
  if (family == Family::CL || family == Family::CR) return NameSide::Below;
  return family == Family::VR || family == Family::DR ? NameSide::Left : NameSide::Right;
}

/// A load with no more than two decimals, and none where it has none.
std::string LoadText(const Float32& load) {
  std::string text = FormatNumber(Float32(Abs(load)), "0.##");
  if (text.back() == '.') text.pop_back();
  return text;
}

/// Builds a scene part by part, for the window or for a page.
class SceneMaker {
 public:
  SceneMaker(const TrussWindow& window, const SessionState& session, bool paper)
      : window_(window),
        session_(session),
        paper_(paper),
        shape_(ShapeOf(window.model, session)),
        painter_(window.view) {}

  Scene Make() {
    for (const CanvasLine& line : painter_.Placed(LayoutOf(shape_))) AddMember(line);
    if (scene_.lines.empty()) return scene_;
    SetRoom();
    nodes_ = TopNodesInRows(TopNodesOf(window_.model, session_));
    for (const TopNode& node : nodes_) AddNode(node);
    if (!paper_) AddPointer();
    if (window_.view.resultsShown) AddResults();
    return std::move(scene_);
  }

 private:
  void AddMember(const CanvasLine& line) {
    const Member& member = line.member;
    const ForceSense& sense = ShownSense(window_, member);
    const CanvasPoint mark = line.Middle();
    NamedLine named;
    named.x1 = line.from.x, named.y1 = line.from.y;
    named.x2 = line.to.x, named.y2 = line.to.y;
    named.markX = mark.x, named.markY = mark.y;
    named.colour = paper_ ? Colour::Black : sense.colour;
    named.stroke = sense.stroke;
    named.warned = above_.count({member.family, member.index}) > 0;
    named.doubted = !paper_ && departing_.count({member.family, member.index}) > 0;
    named.lit = IsLit(member);
    named.name = NameOf(member);
    named.side = SideOf(member.family);
    named.series = static_cast<int>(member.family);
    named.place = member.index;
    named.between = member.family == Family::VL || member.family == Family::VR;
    scene_.lines.push_back(named);
  }

  std::string NameOf(const Member& member) const {
    const bool post = paper_ && member.family == Family::CV;
    return post ? TrussTypeOf(shape_.type).centreNameOnPaper : MemberLabel(member);
  }

  bool IsLit(const Member& member) const {
    return !paper_ && lit_ && lit_->family == member.family && lit_->index == member.index;
  }

  void SetRoom() {
    const auto [left, right] = std::minmax_element(
        scene_.lines.begin(), scene_.lines.end(),
        [](const NamedLine& a, const NamedLine& b) { return a.x1 + a.x2 < b.x1 + b.x2; });
    scene_.left = std::min(left->x1, left->x2) - kBeside;
    scene_.right = std::max(right->x1, right->x2) + kBeside;
    scene_.top = scene_.lines.front().y1;
    scene_.bottom = scene_.top;
    for (const NamedLine& line : scene_.lines) {
      scene_.top = std::min({scene_.top, line.y1, line.y2});
      scene_.bottom = std::max({scene_.bottom, line.y1, line.y2});
    }
    scene_.top -= paper_ ? kAboveOnPaper : kAbove;
    scene_.bottom += kBelow;
  }

  void AddNode(const TopNode& node) {
    const auto place = painter_.Place(TopNodePoint(shape_, node));
    if (!place) return;
    const double x = place->x, y = place->y;
    const int series = kNodeSeries + static_cast<int>(node.side);
    if (paper_) {
      scene_.points.push_back({x, y, NodeLabel(node, shape_.type), series, node.index});
    }
    const Float32& load = NodeLoad(window_.model, node);
    if (load == 0) return;
    scene_.loads.push_back({x, y, load < 0, LoadText(load), series, node.index});
  }

  void AddPointer() {
    const int row = window_.view.markedRow;
    if (row < 1 || row > static_cast<int>(nodes_.size())) return;
    const auto place =
        painter_.Place(TopNodePoint(shape_, nodes_[static_cast<std::size_t>(row) - 1]));
    if (!place) return;
    const double x = place->x, y = place->y;
    scene_.pointers.push_back({x, y - kArrowTop, y - kArrowTip, y});
  }

  void AddResults() {
    scene_.legend = TrussLegend(paper_);
    std::erase_if(scene_.legend, [this](const LegendEntry& entry) {
      return (entry.warned && !Any(&NamedLine::warned)) ||
             (entry.doubted && !Any(&NamedLine::doubted));
    });
    if (IsOutOfDate(window_, session_)) scene_.note = "Forces are out of date: run again";
  }

  bool Any(bool NamedLine::*mark) const {
    return std::any_of(scene_.lines.begin(), scene_.lines.end(),
                       [mark](const NamedLine& line) { return line.*mark; });
  }

  const TrussWindow& window_;
  const SessionState& session_;
  const bool paper_;
  const TrussShape shape_;
  const MemberSet above_ = OverstressedMembers(window_.stresses);
  const MemberSet departing_ = DepartingMembers(window_);
  const std::optional<Member> lit_ = LitMember(window_, session_);
  CanvasPainter painter_;
  std::vector<TopNode> nodes_;
  Scene scene_;
};

Scene MakeScene(const TrussWindow& window, const SessionState& session, bool paper) {
  // What cannot be placed was told when it was drawn.
  const SilentFaults faults;
  return SceneMaker(window, session, paper).Make();
}

}  // namespace

std::vector<LegendEntry> TrussLegend(bool paper) {
  std::vector<LegendEntry> legend;
  for (const ForceSense& sense : {kTension, kCompression, kNoForce}) {
    legend.push_back({paper ? Colour::Black : sense.colour, sense.stroke, false, sense.meaning});
  }
  legend.push_back({Colour::Black, Stroke::Plain, true, "Above allowable stress"});
  if (!paper) {
    legend.push_back({Colour::Black, Stroke::Plain, false, "Differs from statics", true});
  }
  return legend;
}

Scene WindowScene(const TrussWindow& window, const SessionState& session) {
  return MakeScene(window, session, false);
}

Scene PageScene(const TrussWindow& window, const SessionState& session) {
  return MakeScene(window, session, true);
}

}  // namespace lignara
