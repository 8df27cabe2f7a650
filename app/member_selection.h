#pragma once

#include <array>
#include <string>

#include "app/stored_number.h"

namespace lignara {

/// The member groups of a truss, in the order of `MemberSelection::Groups`.
enum class MemberGroup { Top, Bottom, Vertical, Diagonal };
inline constexpr int kMemberGroups = 4;

/// What the member size calculator hands to a truss for one group of members.
struct TrussMemberGroup {
  std::string GroupSizeName;    ///< such as 2X4, or CUSTOM
  Float32 GroupArea;            ///< in^2
  Float32 GroupDepthOverB2;     ///< D / B^2, 1/in
  Float32 GroupB;               ///< dressed width, in
  Float32 GroupD;               ///< dressed depth, in
  Float32 GroupFt;              ///< allowable tension, psi
  Float32 GroupFa;              ///< allowable compression along the grain, psi
  Float32 GroupE;               ///< modulus of elasticity, psi
  std::string GroupGradeLabel;  ///< grade and wood types
};

/// The chosen member: the one record through which the member size calculator, the sawn lumber data
/// base and the glulam data base talk to trusses and beams. It lives as long as the program.
///
/// Its first content is neutral, so that the calculator always opens on something that can be
/// divided by.
struct MemberSelection {
  // The codes of `MemberSource`.
  static constexpr int kNoSource = 0;  ///< nothing was chosen yet
  static constexpr int kSawnSource = 1;
  static constexpr int kGlulamSource = 2;

  Float32 NominalWidth;       ///< in
  Float32 NominalDepth;       ///< in
  Float32 DressedB;           ///< in
  Float32 DressedD;           ///< in
  Float32 ScratchArea;        ///< last B x D worked out, in^2
  Float32 SectionArea = 1.0;  ///< in^2
  Float32 SectionIx = 1.0;    ///< in^4
  Float32 SectionIy = 1.0;    ///< in^4
  Float32 SectionSx = 1.0;    ///< in^3
  Float32 SectionSy = 1.0;    ///< in^3
  Float32 BeamDepthOverB2;    ///< D / B^2, 1/in
  Float32 UnbracedLength;     ///< as the glulam data base or a beam window left it, ft
  std::string SizeName = "CUSTOM";
  Float32 AllowFb = 1.0;         ///< bending, psi
  Float32 AllowFc = 1.0;         ///< compression along the grain, psi
  Float32 AllowFcPerp = 1.0;     ///< compression across the grain, psi; no analysis reads it
  Float32 AllowFt = 1.0;         ///< tension, psi
  Float32 AllowFv = 1.0;         ///< horizontal shear, psi
  Float32 ModulusE = 1000000.0;  ///< psi
  Float32 DataBaseE;             ///< modulus as last read from a data base panel, psi
  std::string GradeText;
  std::string WoodTypeText = "CUSTOM";
  std::string BeamGradeLabel;  ///< the text under the beam's size: grade, ", ", wood types; no
                               ///< analysis reads it
  Int16 DataBaseReturn;        ///< -1 from a visit to the data base until the calculator closes
  Int16 MemberSource;          ///< kNoSource, kSawnSource or kGlulamSource
  std::array<TrussMemberGroup, kMemberGroups> Groups;

  TrussMemberGroup& Group(MemberGroup group) { return Groups[static_cast<std::size_t>(group)]; }
  const TrussMemberGroup& Group(MemberGroup group) const {
    return Groups[static_cast<std::size_t>(group)];
  }
};

}  // namespace lignara
