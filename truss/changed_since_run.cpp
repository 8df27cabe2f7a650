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

}  // namespace lignara
