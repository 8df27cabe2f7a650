#pragma once

#include <array>
#include <string>
#include <vector>

#include "app/drawing.h"
#include "app/list_rows.h"
#include "app/platform.h"
#include "app/project_header.h"
#include "app/session_state.h"
#include "beam/beam_solver.h"
#include "beam/load_kinds.h"
#include "beam/single_span_beam.h"
#include "statics/comparison.h"

namespace lignara {

/// A field that the chosen member fills and the user may type over.
struct MemberField {
  std::string text;
  std::string filled;  ///< what the member put there last
};

/// The fields of "Properties Required For Stress Check", in their order.
enum class StressField { Area, SectionModulus, B, D, ShearArea, Fb, Fv, Fc, Ft };
inline constexpr int kStressFields = 9;
inline constexpr std::array<const char*, kStressFields> kStressFieldCaptions = {
    "Area (in^2)",
    "Section Modulus (in^3)",
    "b (in)",
    "d (in)",
    "Shear Area (in^2)",
    "Base Allowable Bending Stress (psi)",
    "Base Allowable Shear Stress (psi)",
    "Base Allowable Axial Comp. Stress (psi)",
    "Base Allowable Axial Ten. Stress (psi)"};

/// The panel "Stress Check" and what the last check found.
struct StressCheck {
  bool open = false;
  std::vector<std::string> rows;
  Float32 actualBending;      ///< fb, psi
  Float32 actualShear;        ///< fv, psi
  Float32 actualCompression;  ///< fc, psi
  Float32 actualTension;      ///< ft, psi
};

/// The panel "Diagrams".
struct BeamDiagrams {
  bool enabled = false;  ///< "View Diag."
  bool open = false;
  int station = 0;         ///< of the scroll bar
  int lastStation = 500;   ///< its maximum
  std::string location;    ///< "(ft)"
  std::string shearAt;     ///< "Value at X:" of the shear
  std::string momentAt;    ///< "Value at X:" of the moment
  std::string deflAt;      ///< "Def.at X:"
  std::string rotationAt;  ///< "Rot. at X(rad)"
  Drawing shear, moment, deflection;
};

/// The window `MLSP`, "Multi-Load Single Span": all that it holds and shows.
struct BeamWindow {
  SingleSpanBeam beam;
  BeamResults results;
  std::vector<float> runInputs;  ///< what the last run that came to its end was given

  // Constants.
  std::string length;      ///< "L(ft)"
  MemberField modulus;     ///< "Young Mod. (E psi)"
  MemberField inertia;     ///< "Moment of Inertia, I (in^4)"
  std::string unbraced;    ///< "Unbraced Length (ft)"
  std::string memberName;  ///< label "Member"
  std::string memberNote;  ///< tells of a typed value that the member replaced

  // Loads.
  std::array<std::string, kLoadFields> loadFields;
  ListRows loads;            ///< "Applied Loads"
  bool addEnabled = true;    ///< "Add New"
  bool editEnabled = false;  ///< "Edit" and "Delete"
  Drawing loadPicture;

  // Output.
  std::string reaction1, reaction2;  ///< "R1 (lbs)", "R2 (lbs)"
  std::string maxMoment;             ///< "Max. Moment(ft-lbs)"
  std::string maxShear;              ///< "Max. Shear (lbs)"
  std::string maxDeflection;         ///< "Max. Def. (in)"
  std::string axial;                 ///< "Ax. Ld (lbs)"

  bool propertiesOpen = false;  ///< panel "Properties Required For Stress Check"
  std::array<MemberField, kStressFields> stressFields;
  StressCheck check;
  BeamDiagrams diagrams;
  HeaderPanel header;
  StaticsCheck statics;  ///< of the results shown

  std::string& Field(LoadField field) { return loadFields[static_cast<std::size_t>(field)]; }
  const std::string& Field(LoadField field) const {
    return loadFields[static_cast<std::size_t>(field)];
  }
  MemberField& Field(StressField field) { return stressFields[static_cast<std::size_t>(field)]; }
  const MemberField& Field(StressField field) const {
    return stressFields[static_cast<std::size_t>(field)];
  }
};

// Life of the window (beam_window.cpp).

/// The window as it opens: 10 ft, two pins, no loads, filled from the chosen member.
void OpenBeam(BeamWindow& window, SessionState& session, Platform& platform);
/// "Data Bases": "Member Data Base..." and "Glu-Lam Data Base...". The unbraced length goes along.
void VisitMemberDataBase(BeamWindow& window, SessionState& session, Platform& platform);
void VisitGlulamDataBase(BeamWindow& window, SessionState& session, Platform& platform);

/// An option of "Left Support" or "Right Support".
void SetSupport(BeamWindow& window, SessionState& session, BeamEnd side, SupportType type);

// "Options", "Accuracy" (accuracy.cpp).

/// "General..." asks for the stations, "Uniform Conversion..." for the point loads of a distributed
/// load. 0 or less, or a cancelled prompt, takes 500 or 100.
void AskAccuracy(BeamWindow& window, Platform& platform);
void AskUniformConversion(BeamWindow& window, Platform& platform);

// The lengths (length_entry.cpp).

/// The focus comes into "L(ft)". With loads in the list the user is asked first; true where the
/// field may be typed into.
bool EnterLength(BeamWindow& window, Platform& platform);
/// The text of "L(ft)" was changed.
void EditLength(BeamWindow& window);
/// The field "Unbraced Length (ft)", or L where it is blank, 0 or less.
Number UnbracedLength(const BeamWindow& window);

// Values of the chosen member (member_values.cpp).

/// The window becomes active after another window of the program: the member's values fill the
/// fields.
void FillFromMember(BeamWindow& window, const SessionState& session);
/// "Loads about St. Axis" (0) or "Loads about wk axis" (1).
void SetAxis(BeamWindow& window, const SessionState& session, int axis);
/// "More values reqd. for stress check", and the panel's own "Close".
void OpenProperties(BeamWindow& window);
void CloseProperties(BeamWindow& window);
/// The focus comes into a field of that panel, which empties it.
void EnterStressField(BeamWindow& window, StressField field);
/// The text of a field of that panel was changed.
void EditStressField(BeamWindow& window, StressField field);

// Loads (load_entry.cpp).

/// An option of the frame "Loads".
void SetKind(BeamWindow& window, LoadKind kind);
/// The focus comes into a load field, which empties it.
void EnterLoadField(BeamWindow& window, LoadField field);
/// "Add New".
void AddLoad(BeamWindow& window, Platform& platform);
/// "Edit" and "Delete": of the selected load.
void EditLoad(BeamWindow& window, Platform& platform);
void DeleteLoad(BeamWindow& window, Platform& platform);
/// "Clear".
void ClearInputs(BeamWindow& window);
/// A row of "Applied Loads".
void SelectLoad(BeamWindow& window, int row);
/// The rows of "Applied Loads".
std::vector<std::string> ListLines(const SingleSpanBeam& beam);
/// Takes all loads away.
void RemoveAllLoads(BeamWindow& window);

// The run (run.cpp).

/// Reads L, E, I and the unbraced length as a run needs them. The user is told where L, E or I is 0
/// or less.
void ReadConstants(BeamWindow& window, SessionState& session, Platform& platform);
/// The axial load of the list, lbs: the last one stands, 0 without any.
Float32 AxialLoadOf(const SingleSpanBeam& beam);
/// The results shown are older than an input.
bool IsOutOfDate(const BeamWindow& window);
/// "RUN".
void RunBeam(BeamWindow& window, SessionState& session, Platform& platform);

}  // namespace lignara
