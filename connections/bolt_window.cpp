#include "connections/bolt_window.h"

#include "app/fault.h"
#include "app/number_pattern.h"
#include "app/number_reader.h"
#include "app/number_that_fits.h"
#include "connections/bolt_shear.h"
#include "connections/bolt_sketches.h"
#include "connections/rod_table.h"
#include "connections/rod_tension.h"

namespace lignara {
namespace {

/// Reads the fields. Single shear has no third member, so its field is emptied first.
ShearJoint ReadJoint(BoltWindow& window) {
  ShearJoint joint;
  joint.options = window.options;
  if (joint.options.IsSingleShear()) window.L3.clear();
  joint.BoltIndex = window.bolts.row;
  joint.L1 = ReadNumber(window.L1);
  joint.L2 = ReadNumber(window.L2);
  joint.L3 = ReadNumber(window.L3);
  const Float32 angle = ReadNumber(window.A);
  joint.theta = Radians(angle);
  return joint;
}

ShearInput ShearInputOf(const BoltWindow& w) {
  return {w.L1, w.L2, w.L3, w.A, w.bolts.row, w.options};
}

TensionInput TensionInputOf(const BoltWindow& w) {
  return {w.boltStress, w.woodStress, w.rods.row};
}

}  // namespace

void OpenBoltWindow(BoltWindow& window, const SessionState& session, Platform& platform) {
  window = BoltWindow();
  window.table = ReadBoltValues(session.DataDirectory, platform);
  window.bolts = {{std::begin(kShearBolts), std::end(kShearBolts)}, 0};
  for (const RodSize& rod : RodTable) window.rods.rows.emplace_back(rod.size);
  window.rods.row = 0;
  window.jointSketch = JointSketch(window.options.IsSingleShear());
  window.angleSketch = LoadAngleSketch();
  window.rodSketch = TensionRodSketch();
}

void ChooseJointOption(BoltWindow& window, const JointOptionGroup& group, int choice) {
  if (choice < 0 || choice >= static_cast<int>(group.choices.size())) return;
  window.options.*group.chosen = static_cast<std::int16_t>(choice);
  window.jointSketch = JointSketch(window.options.IsSingleShear());
}

void ChooseBolt(BoltWindow& window, int row) {
  if (window.bolts.Has(row)) window.bolts.row = row;
}

void ComputeShear(BoltWindow& window, Platform& platform) {
  FaultScope faults(platform);
  const ShearJoint joint = ReadJoint(window);
  if (const char* refusal = ShearRefusal(joint)) {
    platform.ShowMessage({refusal});
    return;
  }
  const GrainLoads loads = ShearLoads(joint, window.table);
  const Float32 atAngle = LoadAtAngle(loads, joint.theta);
  window.parallel = FormatNumber(loads.parallel, kTwoDecimals);
  window.perpendicular = FormatNumber(loads.perpendicular, kTwoDecimals);
  window.atAngle = FormatNumber(atAngle, kTwoDecimals);
  window.shearComputedFrom = ShearInputOf(window);
}

bool ShearIsOutOfDate(const BoltWindow& window) {
  return window.shearComputedFrom && *window.shearComputedFrom != ShearInputOf(window);
}

void ChooseRod(BoltWindow& window, Platform& platform, int row) {
  if (!window.rods.Has(row)) return;
  window.rods.row = row;
  ComputeTension(window, platform);
}

void ComputeTension(BoltWindow& window, Platform& platform) {
  FaultScope faults(platform);
  const Number boltStress = ReadNumber(window.boltStress);
  const Number woodStress = ReadNumber(window.woodStress);
  // One that is too large has shown its box, and the results stay.
  if (!NumberThatFits(boltStress) || !NumberThatFits(woodStress)) return;
  if (const char* refusal = TensionRefusal(boltStress, woodStress)) {
    platform.ShowMessage({refusal});
    return;
  }
  const RodSize& rod = RodTable[static_cast<std::size_t>(window.rods.row)];
  const RodTension tension = TensionOf(rod, boltStress, woodStress);
  window.load = FormatNumber(tension.load, kTwoDecimals);
  window.plateSide = FormatNumber(tension.plateSide, kTwoDecimals);
  window.plateThickness = rod.plateThickness;
  window.tensionComputedFrom = TensionInputOf(window);
}

bool TensionIsOutOfDate(const BoltWindow& window) {
  return window.tensionComputedFrom && *window.tensionComputedFrom != TensionInputOf(window);
}

}  // namespace lignara
