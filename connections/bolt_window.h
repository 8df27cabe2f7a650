#pragma once

#include <optional>
#include <string>

#include "app/drawing.h"
#include "app/list_rows.h"
#include "app/platform.h"
#include "app/session_state.h"
#include "connections/bolt_value_file.h"
#include "connections/joint_options.h"

namespace lignara {

/// What the shear results were worked out from, as it stood on the screen.
struct ShearInput {
  std::string L1, L2, L3, A;
  int bolt = -1;
  JointOptions options;

  bool operator==(const ShearInput&) const = default;
};

/// What the tension results were worked out from.
struct TensionInput {
  std::string boltStress, woodStress;
  int rod = -1;

  bool operator==(const TensionInput&) const = default;
};

/// The window `bolts`, "Bolt and Rod Connectors". All lengths are typed as decimal inches.
struct BoltWindow {
  BoltValueTable table;

  // "Allowable Shear".
  JointOptions options;
  std::string L1;             ///< "L1"
  std::string L2;             ///< "L2"
  std::string L3;             ///< "L3", hidden in single shear
  std::string A;              ///< "A(deg)"
  ListRows bolts;             ///< "Bolt Dia."
  std::string parallel;       ///< "Allow. Load Parall to Grain"
  std::string perpendicular;  ///< "Allow. Load Perp. to Grain"
  std::string atAngle;        ///< "Allow. Load at Ang. (A)"

  // "Allowable Tension".
  ListRows rods;               ///< "Bolt Dia."
  std::string boltStress;      ///< "Allow Bolt Stress (ksi)"
  std::string woodStress;      ///< "Allow Wood Bearing Stress (psi)"
  std::string load;            ///< "Max. Load (lbs)"
  std::string plateSide;       ///< "Min. Plate Side Dim (in)"
  std::string plateThickness;  ///< "Min. Plate Thk. (in)"

  std::optional<ShearInput> shearComputedFrom;  ///< nothing before the first results
  std::optional<TensionInput> tensionComputedFrom;

  Drawing jointSketch;
  Drawing angleSketch;
  Drawing rodSketch;
};

/// The window as it opens: the table read, all options at their first choice, the first bolt and
/// the first rod chosen, nothing computed.
void OpenBoltWindow(BoltWindow& window, const SessionState& session, Platform& platform);

/// A click on a choice of a group. A position outside of the group changes nothing.
void ChooseJointOption(BoltWindow& window, const JointOptionGroup& group, int choice);
/// A click on a row of the list of shear bolts. A row outside changes nothing.
void ChooseBolt(BoltWindow& window, int row);
/// The command of "Allowable Shear". A refused joint leaves the results as they were.
void ComputeShear(BoltWindow& window, Platform& platform);

/// True where the input has changed since the shear results were computed.
bool ShearIsOutOfDate(const BoltWindow& window);

/// A click on a row of the list of rods, also on the one chosen already: computes. A row outside
/// changes nothing.
void ChooseRod(BoltWindow& window, Platform& platform, int row);
/// Computes the rod; runs after each change of one of the two stresses. Refused stresses leave the
/// results as they were.
void ComputeTension(BoltWindow& window, Platform& platform);

/// True where the input has changed since the tension results were computed, that is: was refused.
bool TensionIsOutOfDate(const BoltWindow& window);

/// Menu "Files", "Print", its three items.
void PrintTensionResults(const BoltWindow& window, Platform& platform);
void PrintShearResults(const BoltWindow& window, Platform& platform);
void PrintBoltResults(const BoltWindow& window, Platform& platform);
/// Menu "Files", "Save Text Output to File...".
void SaveBoltResults(const BoltWindow& window, Platform& platform);

}  // namespace lignara
