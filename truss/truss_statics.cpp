#include "truss/truss_statics.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

#include "app/fault.h"
#include "app/number_pattern.h"
#include "truss/member_layout.h"
#include "truss/top_nodes.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

/// Ends of members that are nearer to each other than this part of the span are one joint: formulas
/// of neighbouring members reach the same place by different roundings.
constexpr double kSamePlace = 1e-7;
constexpr double kInchesPerFoot = 12;

struct Place {
  double x, y;
};

Place PlaceOf(const FootPoint& point) { return {point.x.value(), point.y.value()}; }

/// Gives each of many places the number of its joint; places close together share one.
class JointFinder {
 public:
  explicit JointFinder(std::vector<Place> places, double near)
      : places_(std::move(places)), near_(near), joints_(places_.size()) {
    std::vector<std::size_t> order(places_.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    Sort(order.begin(), order.end(), &Place::x);
    ForEachGroup(order.begin(), order.end(), &Place::x, [this](auto first, auto last) {
      Sort(first, last, &Place::y);
      ForEachGroup(first, last, &Place::y, [this](auto from, auto to) { AddJoint(from, to); });
    });
  }

  int JointOf(std::size_t place) const { return joints_[place]; }
  std::vector<PinJoint> TakeJoints() { return std::move(found_); }

 private:
  using At = std::vector<std::size_t>::iterator;

  void Sort(At first, At last, double Place::*along) {
    std::sort(first, last,
              [&](std::size_t a, std::size_t b) { return places_[a].*along < places_[b].*along; });
  }

  /// Groups of places with gaps between them.
  template <typename Use>
  void ForEachGroup(At first, At last, double Place::*along, const Use& use) {
    while (first != last) {
      At end = first + 1;
      while (end != last && places_[*end].*along - places_[*(end - 1)].*along < near_) ++end;
      use(first, end);
      first = end;
    }
  }

  void AddJoint(At first, At last) {
    const int joint = static_cast<int>(found_.size());
    found_.push_back({places_[*first].x, places_[*first].y});
    for (At at = first; at != last; ++at) joints_[*at] = joint;
  }

  const std::vector<Place> places_;
  const double near_;
  std::vector<int> joints_;
  std::vector<PinJoint> found_;
};

bool HasSizes(const MemberSelection& selection) {
  return std::all_of(selection.Groups.begin(), selection.Groups.end(),
                     [](const auto& group) { return group.GroupArea > 0 && group.GroupE > 0; });
}

/// Area x modulus of a member, lbs.
double StiffnessOf(const Member& member, const SessionState& session) {
  const TrussMemberGroup& group = session.Member.Group(GroupOf(member.family));
  return static_cast<double>(group.GroupArea.value()) * static_cast<double>(group.GroupE.value());
}

/// The ends of the members, the top nodes, and the two supports.
std::vector<Place> PlacesOf(const TrussLayout& layout, const TrussShape& shape,
                            const std::vector<TopNode>& topNodes) {
  std::vector<Place> places;
  for (const MemberLine& line : layout) {
    places.push_back(PlaceOf(line.from));
    places.push_back(PlaceOf(line.to));
  }
  for (const TopNode& node : topNodes) places.push_back(PlaceOf(TopNodePoint(shape, node)));
  places.push_back({0, 0});
  places.push_back({shape.length.value(), 0});
  return places;
}

void AddBars(DescribedTruss& described, const TrussLayout& layout, const JointFinder& joints,
             const SessionState& session) {
  for (std::size_t i = 0; i < layout.size(); ++i) {
    const Member& member = layout[i].member;
    described.members.push_back(member);
    described.truss.bars.push_back({joints.JointOf(2 * i), joints.JointOf(2 * i + 1),
                                    described.sized ? StiffnessOf(member, session) : 1.0});
  }
}

PinJoint& JointAt(DescribedTruss& described, int joint) {
  return described.truss.joints[static_cast<std::size_t>(joint)];
}

void AddSupports(DescribedTruss& described) {
  PinJoint& left = JointAt(described, described.leftSupport);
  left.heldX = left.heldY = true;
  JointAt(described, described.rightSupport).heldY = true;
}

/// The places of bars by family and element; -1 where there is none.
class BarFinder {
 public:
  explicit BarFinder(const std::vector<Member>& members) {
    for (std::size_t bar = 0; bar < members.size(); ++bar) {
      std::vector<int>& bars = OfFamily(members[bar].family);
      const auto element = static_cast<std::size_t>(members[bar].index);
      if (bars.size() <= element) bars.resize(element + 1, -1);
      bars[element] = static_cast<int>(bar);
    }
  }

  int operator()(const Member& member) {
    const std::vector<int>& bars = OfFamily(member.family);
    const auto element = static_cast<std::size_t>(member.index);
    return element < bars.size() ? bars[element] : -1;
  }

 private:
  std::vector<int>& OfFamily(Family family) { return bars_[static_cast<std::size_t>(family)]; }

  std::array<std::vector<int>, kFamilies> bars_;
};

/// Collects what is compared, beside the members whose forces are compared.
class Comparison {
 public:
  Comparison(const TrussWindow& window, const SessionState& session,
             const DescribedTruss& described, const PinSolution& solution)
      : window_(window), session_(session), described_(described), solution_(solution) {}

  void AddReactions(const TrussReactions& reactions) {
    AddReaction("Left Side", reactions.left, described_.leftSupport);
    AddReaction("Right Side", reactions.right, described_.rightSupport);
  }

  /// Members that a list names but the drawing lacks have no force by either.
  void AddForces() {
    BarFinder barOf(described_.members);
    const auto& rows = TrussTypeOf(session_.TrussType).axialRows;
    for (const Member& member : MembersOf(rows, HalfSpans(session_))) {
      const int bar = barOf(member);
      if (bar < 0) continue;
      const Float32& axial = AxialOf(window_.model, member.family)[member.index];
      members.push_back(member);
      values.push_back({RowLabel(member), ComparedKind::MemberForce,
                        static_cast<double>(axial.value()),
                        solution_.forces[static_cast<std::size_t>(bar)]});
    }
  }

  void AddDeflections() {
    if (!described_.sized) return;
    for (std::size_t i = 0; i < described_.topNodes.size(); ++i) {
      const TopNode& node = described_.topNodes[i];
      const auto joint = static_cast<std::size_t>(described_.topJoints[i]);
      values.push_back({NodeLabel(node, session_.TrussType), ComparedKind::Deflection,
                        static_cast<double>(NodeDeflection(window_.model, node).value()),
                        -kInchesPerFoot * solution_.moves[joint].up});
    }
  }

  std::vector<ComparedValue> values;
  std::vector<Member> members;  ///< of the forces among them

 private:
  void AddReaction(const char* item, double found, int support) {
    const PinVector& reaction = solution_.reactions[static_cast<std::size_t>(support)];
    values.push_back({item, ComparedKind::Reaction, found, reaction.up});
  }

  const TrussWindow& window_;
  const SessionState& session_;
  const DescribedTruss& described_;
  const PinSolution& solution_;
};

/// `members` are those of the forces among the differences.
std::vector<Member> MembersApart(const StaticsCheck& check, const std::vector<Member>& members) {
  std::vector<Member> departing;
  auto member = members.begin();
  for (const StaticsDifference& difference : check.differences) {
    if (difference.value.kind != ComparedKind::MemberForce) continue;
    if (difference.share > kMarkedShare) departing.push_back(*member);
    ++member;
  }
  return departing;
}

std::string Feet(const Float32& length) { return FormatNumber(length, kTwoDecimals) + " ft"; }

std::string GroupLine(const char* name, const TrussMemberGroup& group) {
  return std::string(name) + ": A " + FormatNumber(group.GroupArea, kTwoDecimals) + " in^2, E " +
         FormatNumber(group.GroupE, "0") + " psi";
}

/// The truss in words, for the saved table.
std::vector<std::string> StructureLines(const SessionState& session, bool sized) {
  const TrussTypeInfo& type = TrussTypeOf(session.TrussType);
  const Float32 panels = session.TrussLength / session.PanelLength;
  std::vector<std::string> lines = {type.title, "Panels: " + FormatNumber(panels, "0"),
                                    "Total length: " + Feet(session.TrussLength),
                                    "H: " + Feet(session.TrussHeight)};
  if (type.HasInnerHeight()) lines.push_back("H1: " + Feet(session.TrussInnerHeight));
  if (!sized) return lines;
  const MemberSelection& sizes = session.Member;
  lines.push_back(GroupLine("Top Members", sizes.Group(MemberGroup::Top)));
  lines.push_back(GroupLine("Bottom Members", sizes.Group(MemberGroup::Bottom)));
  lines.push_back(GroupLine("Vertical Members", sizes.Group(MemberGroup::Vertical)));
  lines.push_back(GroupLine("Diagonal Members", sizes.Group(MemberGroup::Diagonal)));
  return lines;
}

/// The rows of the node list behind its blank one.
std::vector<std::string> LoadLines(const TrussWindow& window) {
  const auto& rows = window.nodeRows;
  if (rows.empty()) return {};
  std::vector<std::string> lines(rows.begin() + 1, rows.end());
  for (std::string& line : lines) line += " lbs";
  return lines;
}

}  // namespace

DescribedTruss DescribeForStatics(const TrussWindow& window, const SessionState& session) {
  DescribedTruss described;
  const TrussShape shape = ShapeOf(window.model, session);
  const TrussLayout layout = LayoutOf(shape);
  if (layout.empty()) return described;
  described.sized = HasSizes(session.Member);
  described.topNodes = TopNodesInRows(TopNodesOf(window.model, session));
  const double near = kSamePlace * shape.length.value();
  JointFinder joints(PlacesOf(layout, shape, described.topNodes), near);
  described.truss.joints = joints.TakeJoints();
  AddBars(described, layout, joints, session);
  std::size_t place = 2 * layout.size();
  for (const TopNode& node : described.topNodes) {
    described.topJoints.push_back(joints.JointOf(place++));
    JointAt(described, described.topJoints.back()).loadDown +=
        static_cast<double>(NodeLoad(window.model, node).value());
  }
  described.leftSupport = joints.JointOf(place++);
  described.rightSupport = joints.JointOf(place);
  AddSupports(described);
  return described;
}

void CheckTrussStatics(TrussWindow& window, const SessionState& session,
                       const TrussReactions& reactions) {
  const SilentFaults faults;
  ClearStatics(window.statics);
  window.departing.clear();
  const DescribedTruss described = DescribeForStatics(window, session);
  if (described.truss.joints.empty()) return;
  const PinSolution solution = SolvePinTruss(described.truss);
  if (solution.mechanism) {
    ShowMechanism(window.statics);
  } else {
    Comparison comparison(window, session, described, solution);
    comparison.AddReactions(reactions);
    comparison.AddForces();
    comparison.AddDeflections();
    ShowStatics(window.statics, comparison.values);
    window.departing = MembersApart(window.statics, comparison.members);
  }
  window.statics.structure = StructureLines(session, described.sized);
  window.statics.loads = LoadLines(window);
}

}  // namespace lignara
