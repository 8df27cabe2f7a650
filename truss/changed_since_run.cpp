#include "truss/changed_since_run.h"

#include "truss/top_nodes.h"

namespace lignara {

std::vector<double> InputsOf(const ActiveModel& model, const SessionState& session) {
  std::vector<double> inputs;
  const auto add = [&inputs](const Float32& number) {
    inputs.push_back(static_cast<double>(number.value()));
  };
  for (const TopNode& node : TopNodesInRows(TopNodesOf(model, session))) add(NodeLoad(model, node));
  for (const TrussMemberGroup& group : session.Member.Groups) {
    for (const Float32 TrussMemberGroup::*number :
         {&TrussMemberGroup::GroupArea, &TrussMemberGroup::GroupB, &TrussMemberGroup::GroupD,
          &TrussMemberGroup::GroupFt, &TrussMemberGroup::GroupFa, &TrussMemberGroup::GroupE}) {
      add(group.*number);
    }
  }
  return inputs;
}

bool IsOutOfDate(const TrussWindow& window, const SessionState& session) {
  return window.view.resultsShown && window.ranWith != InputsOf(window.model, session);
}

bool AreStressesOlder(const TrussWindow& window) {
  return window.outOfDate || window.stresses.empty();
}

bool AreDeflectionsOlder(const TrussWindow& window) {
  return window.outOfDate || window.model.RunState.value() != 1;
}

}  // namespace lignara
