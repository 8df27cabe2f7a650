#pragma once

#include <string>
#include <vector>

#include "truss/members.h"
#include "truss/top_nodes.h"

namespace lignara {

/// A place on a truss, ft: x from the left support, y up from the supports.
struct FootPoint {
  Number x, y;
};

/// What the places of a truss's nodes follow from.
struct TrussShape {
  std::string type;    ///< keyword
  int halfSpans = 0;   ///< panels in a half
  Number panel;        ///< ft
  Number length;       ///< between the supports, ft
  Number height;       ///< at midspan, ft
  Number innerHeight;  ///< of the bottom chord at midspan, ft; 0 but for scissors
  Number sciRun;       ///< scissors: distance of the top node from the heel, ft
  Number sciRise;      ///< scissors: height of the top node, ft
};

/// The shape of the session's truss. `model` holds the drawn geometry of a scissors truss.
TrussShape ShapeOf(const ActiveModel& model, const SessionState& session);

/// A member as a straight line between its two nodes.
struct MemberLine {
  Member member;
  FootPoint from, to;
};

/// All members of a truss, family by family.
using TrussLayout = std::vector<MemberLine>;

// One routine a type, with N for the panels in a half and L for the panel length. Right halves
// mirror the left ones.

/// Webs from the bottom nodes I x L: verticals, and diagonals from the bottom node before one.
TrussLayout PRATT1_IN(const TrussShape& shape);
/// Verticals, and diagonals from the top of the vertical before to each bottom node.
TrussLayout ENGLISH_IN(const TrussShape& shape);
/// Webs square to the rafter on each bottom node, and diagonals from the bottom node before.
TrussLayout FINK_IN(const TrussShape& shape);
/// A rafter and a tie each half, and the post.
TrussLayout KINGPOST_IN(const TrussShape& shape);
/// Each web goes on in line with the bottom chord of the other half.
TrussLayout SCI_IN(const TrussShape& shape);
/// Verticals at all nodes, diagonals falling towards midspan.
TrussLayout PRATT2_IN(const TrussShape& shape);
/// Verticals at all nodes, diagonals rising towards midspan.
TrussLayout HOWE_IN(const TrussShape& shape);
/// End verticals, top nodes at even and bottom nodes at odd panel points.
TrussLayout WARREN_IN(const TrussShape& shape);

/// The layout by the shape's type; no members for a keyword that is no type.
TrussLayout LayoutOf(const TrussShape& shape);

/// Where a top node lies; at the peak for a keyword that is no type.
FootPoint TopNodePoint(const TrussShape& shape, const TopNode& node);

}  // namespace lignara
