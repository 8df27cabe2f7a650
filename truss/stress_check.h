#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "truss/members.h"

namespace lignara {

/// The words around a member's actual stress.
struct StressWording {
  Family family = Family::TL;
  std::string before = "Actual Stress = ";
  std::string after = " psi";
};

// The lines of a type that are worded a little differently; whoever compares lists by machine
// counts on that.
std::vector<StressWording> SpacedTop();
std::vector<StressWording> KingPostWordings();

/// The axial stress of a member after a run, without sign, and what it is held against, psi.
struct MemberStress {
  Member member;
  Float32 actual;
  Float32 allowable;
};

/// The lines of a member in the list of stresses.
inline constexpr std::size_t kStressLines = 4;

/// Euler value of a column, psi: 0.3 E / (l / d)^2, d being the smaller side. `length` in ft, `E`
/// in psi, `B` and `D` in inches. 0 where the length or a side is not above 0: a member that is not
/// there has no Euler value.
void TRUSS_ALL_COMP(const Float32& length, const Float32& E, const Float32& B, const Float32& D,
                    Float32& result);

/// True where all four member groups have an area. The test is for 0: a negative one passes.
bool HasAreas(const MemberSelection& selection);

/// Rebuilds `rows`, the list "Actual and Allowable Axial Stresses": a blank line, then four lines a
/// member. The allowable stress is the lesser of the group's tension and compression value for any
/// member, with full lateral bracing; the list says at which distance that is given (a slenderness
/// of 50). Returns the stresses that it shows, in the order of the list.
std::vector<MemberStress> CheckStresses(TrussJob& job, std::vector<std::string>& rows);

}  // namespace lignara
