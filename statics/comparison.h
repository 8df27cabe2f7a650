#pragma once

#include <string>
#include <vector>

#include "app/platform.h"
#include "app/report.h"
#include "statics/beam.h"

namespace lignara {

/// What a compared value is. A difference is measured against the largest value of its kind.
enum class ComparedKind {
  MemberForce,
  Reaction,
  Deflection,
  Shear,
  Moment,
  EndMoment,
  BeamDeflection  ///< the windows of beams show one decimal more
};

/// A result of a run beside the same result by exact statics, signs included, in the unit of its
/// kind: lbs, ft-lbs or inches.
struct ComparedValue {
  std::string item;  ///< as the window calls it, such as "CL 4"
  ComparedKind kind = ComparedKind::MemberForce;
  double lignara = 0;
  double statics = 0;

  bool operator==(const ComparedValue&) const = default;
};

/// A compared value and how far the two are apart: a share of the largest value of its kind.
struct StaticsDifference {
  ComparedValue value;
  double share = 0;

  bool operator==(const StaticsDifference&) const = default;
};

/// Differences up to this share are agreement.
inline constexpr double kAgreementShare = 0.005;
/// Members whose forces are further apart are marked on a drawing.
inline constexpr double kMarkedShare = 0.05;

enum class StaticsVerdict { None, Agrees, Differs, Mechanism };

/// The second opinion on a run, as a window holds it: one line and a panel with all differences.
struct StaticsCheck {
  StaticsVerdict verdict = StaticsVerdict::None;
  std::string line;                            ///< "Result"; empty before a run
  bool open = false;                           ///< panel "Statics Check"
  std::vector<StaticsDifference> differences;  ///< in the order in which they were compared

  // What was compared, for the saved table; one line of text each.
  std::vector<std::string> structure;
  std::vector<std::string> loads;

  bool Differs() const { return verdict > StaticsVerdict::Agrees; }
};

/// The value of the largest magnitude, with its sign. Where there is one each side of 0 as large
/// as the other, but for what counts as agreement, the one on the side of `like`.
double PeakOf(const CurveRange& range, double like);
/// Tells how far the results of a run are from statics. The panel stays as it is.
void ShowStatics(StaticsCheck& check, const std::vector<ComparedValue>& values);
/// Tells that the structure of the run cannot be in equilibrium.
void ShowMechanism(StaticsCheck& check);
/// Tells nothing, as before a run. The panel stays as it is.
void ClearStatics(StaticsCheck& check);

/// The rows of the table "Differences", the worst first: item, both values, difference.
std::vector<std::vector<std::string>> DifferenceRows(const StaticsCheck& check);
/// The captions of its columns.
inline const std::vector<std::string> kDifferenceHeads = {"Item", "Lignara", "Statics",
                                                          "Difference"};
/// The units of the kinds that were compared, and how differences are measured; empty where nothing
/// was compared.
std::string UnitsNote(const StaticsCheck& check);

/// "Save Table...": writes title (none where it is empty), structure, loads and the table to the
/// file that the user chooses.
void SaveDifferences(const StaticsCheck& check, const std::string& title, Platform& platform);

}  // namespace lignara
