#include "app/fault.h"
#include "app/number_pattern.h"
#include "beam/actual_stresses.h"
#include "beam/stress_check.h"
#include "glulam/load_durations.h"
#include "glulam/moisture_and_load_types.h"
#include "glulam/values_and_wet_factors.h"

namespace lignara {
namespace {

using Rows = std::vector<std::string>;

void ListAllowables(Rows& rows, const GlulamTransfer& glulam) {
  for (std::size_t i = 0; i < kGlulamColumns.size(); ++i) {
    rows.push_back(kGlulamColumns[i].beamLabel + FormatNumber(glulam.Values[i], "0"));
  }
}

/// The row of a condition; none where it was never chosen.
void ListCondition(Rows& rows, const GlulamUseCondition* condition) {
  if (condition != nullptr) rows.push_back(condition->beamLine);
}

void ListUseConditions(Rows& rows, const GlulamTransfer& glulam) {
  rows.push_back("");
  rows.push_back("USE CONDITIONS");
  ListCondition(rows, FindUseCondition(kGlulamMoistures, glulam.MoistureCode.value()));
  ListCondition(rows, FindUseCondition(kGlulamLoadTypes, glulam.LoadCode.value()));
  ListCondition(rows, FindGlulamDuration(glulam.DurationCode.value()));
  rows.push_back("");
  rows.push_back(glulam.UseNote);
}

/// The check up to its list. What stopped it, or nullptr.
const char* ListGlulam(BeamWindow& window, SessionState& session) {
  const SilentFaults faults;
  StressCheck& check = window.check;
  TakeCheckFields(window, session);
  const CheckInput input(window);
  if (!input.HasAreas()) return kAreaMissing;
  FindBendingAndShear(check, input);
  FindAxialStress(check, input, session.Member.SectionArea);
  if (faults.Met()) return kAreaMissing;
  // The glulam data base names its members in full, so no description follows the name.
  check.rows = {session.Member.SizeName, ""};
  ListActualStresses(check);
  ListAllowables(check.rows, session.Glulam);
  ListUseConditions(check.rows, session.Glulam);
  return nullptr;
}

}  // namespace

void CheckGlulamMember(BeamWindow& window, SessionState& session, Platform& platform) {
  if (!MayCheck(window, session, platform, MemberSelection::kGlulamSource)) return;
  EndCheck(window, platform, ListGlulam(window, session));
}

}  // namespace lignara
