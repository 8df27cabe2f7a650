#pragma once

#include <array>
#include <string>

#include "app/member_selection.h"
#include "app/platform.h"
#include "app/session_state.h"
#include "wood/dressed_size.h"

namespace lignara {

/// "Size Selection": the size accepted last, as text.
struct SizeSelection {
  std::string size;      ///< such as 2X4
  std::string dressedB;  ///< in
  std::string dressedD;  ///< in
};

/// The fields of a member group.
enum class GroupField { Fa, Ft, E, B, D, Area };

/// What the window shows of one member group of a truss.
struct GroupPanel {
  std::string fa;          ///< "Fa (psi)"
  std::string ft;          ///< "Ft (psi)"
  std::string e;           ///< "E (psi)"
  std::string b;           ///< "B(in)"
  std::string d;           ///< "D(in)"
  std::string area;        ///< "Area (in^2)"
  std::string size;        ///< caption, shown only
  std::string gradeLabel;  ///< under the caption, shown only
  bool ticked = false;     ///< takes the stresses that come back from the data base
};

/// The caption of each group's panel and of its check box, in the order of MemberGroup.
struct GroupCaptions {
  const char* panel;
  const char* check;
};
inline constexpr std::array<GroupCaptions, kMemberGroups> kGroupCaptions = {
    {{"Top Members ", "Top Mem."},
     {"Bottom Members ", "Bottom Mem."},
     {"Vertical Members ", "Vert. Mem."},
     {"Diagnal Members ", "Diag. Mem."}}};

/// What the window shows of the beam member. The four stresses may be typed over, but only the
/// modulus and the section are read back.
struct BeamPanel {
  std::string fb;          ///< "Fb (psi)"
  std::string fa;          ///< "Fa (psi)"
  std::string fv;          ///< "Fv (psi)"
  std::string ft;          ///< "Ft (psi)"
  std::string e;           ///< "E (psi)"
  std::string b;           ///< "B(in)"
  std::string d;           ///< "D(in)"
  std::string area;        ///< "Area (in^2)"
  std::string ix;          ///< "Ix (in^4)"
  std::string iy;          ///< "Iy (in^4)"
  std::string sx;          ///< "Sx (in^3)"
  std::string sy;          ///< "Sy (in^3)"
  std::string size;        ///< caption, shown only
  std::string gradeLabel;  ///< under the caption, shown only
};

/// The window `WTYPETR`, "Member Size Data Calculator".
struct MemberSizeWindow {
  bool groupsShown = false;  ///< the four groups and their check boxes: "TRUSS" mode
  bool beamShown = false;    ///< "Beam Member": "BEAM" mode

  // Picked buttons, as index into kNominalSizes; -1 none. The picked one is red, the others blue.
  int widthPick = -1;
  int depthPick = -1;

  /// Set while "Accept" runs, and left set when it refuses a pair: until an "Accept" succeeds,
  /// typed widths and depths are ignored.
  bool sizeInProgress = false;

  SizeSelection selection;
  std::array<GroupPanel, kMemberGroups> groups;
  BeamPanel beam;

  GroupPanel& Group(MemberGroup group) { return groups[static_cast<std::size_t>(group)]; }
  const GroupPanel& Group(MemberGroup group) const {
    return groups[static_cast<std::size_t>(group)];
  }
};

// Life of the window (member_size_window.cpp).

/// The window as it opens, for the client that `DesignMode` names.
void OpenMemberSize(MemberSizeWindow& window, SessionState& session, Platform& platform);
/// The window `wdb` was closed: its stresses go to the ticked groups, and all fields are filled.
void ReturnFromWoodDataBase(MemberSizeWindow& window, SessionState& session, Platform& platform);
/// The grade of the data base as a member's caption tells it.
std::string GradeLabel(const MemberSelection& member);
/// "OK": reads all fields into the current member and closes the window.
void AcceptMemberSize(MemberSizeWindow& window, SessionState& session, Platform& platform);
/// "Cancel".
void CancelMemberSize(SessionState& session, Platform& platform);
/// Menu "Files", "Exit", and the window's close control.
void ExitMemberSize(Platform& platform);

// The visit to the data base (stresses_for_ticked_groups.cpp).

/// What is to be done before a visit to the data base: of the groups of a truss one at least has to
/// be ticked, or the stresses go nowhere. Empty where nothing is missing.
std::string TicksNote(const MemberSizeWindow& window);
/// "Wood Type Data Base".
void VisitWoodDataBase(SessionState& session, Platform& platform);

// Choosing a size (size_selection.cpp).

/// A button of "Width" or "Depth", as index into kNominalSizes.
void PickWidth(MemberSizeWindow& window, int pick);
void PickDepth(MemberSizeWindow& window, int pick);
/// "Accept": turns the picked pair into dressed dimensions and section properties.
void AcceptSize(MemberSizeWindow& window, SessionState& session, Platform& platform);
/// "Select" of a group: copies the accepted size into the group.
void SelectGroupSize(MemberSizeWindow& window, SessionState& session, Platform& platform,
                     MemberGroup group);

// Typed sizes (custom_size.cpp).

/// After the user changed the text of a group's field.
void EditGroupField(MemberSizeWindow& window, SessionState& session, Platform& platform,
                    MemberGroup group, GroupField field);
/// After the user changed "B(in)" or "D(in)" of "Beam Member". Its other fields need no command.
void EditBeamSize(MemberSizeWindow& window, SessionState& session, Platform& platform);

}  // namespace lignara
