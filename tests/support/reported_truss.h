#pragma once

#include <string>
#include <vector>

#include "tests/support/opened_truss.h"
#include "truss/report.h"

namespace lignara {

/// A truss with members in all groups, loaded with 1200 lbs at the peak, after a run.
inline OpenedTruss AfterRun(const std::string& type, double spans, double length, double height,
                            double innerHeight = 0) {
  OpenedTruss truss(type, spans, length, height, innerHeight);
  for (TrussMemberGroup& group : truss.session.Member.Groups) {
    group.GroupSizeName = "2X6";
    group.GroupArea = 10;
    group.GroupE = 1000000;
    group.GroupB = 1.5;
    group.GroupD = 5.5;
    group.GroupFt = 1200;
    group.GroupFa = 1400;
  }
  truss.model().PT = 1200;
  truss.Run();
  truss.platform.calls.clear();
  return truss;
}

/// 30 ft by 7.5 ft, six panels where the type has panels.
inline OpenedTruss Example(const std::string& type) {
  const bool fixed = type == "KINGPOST" || type == "SCI";
  return AfterRun(type, fixed ? 4 : 6, 30, 7.5, 3);
}

/// The lines of the text report.
inline std::vector<std::string> FileLines(OpenedTruss& truss) {
  std::vector<std::string> lines;
  const Report report = TRUSS_FILE(truss.window, truss.session);
  for (const Report::Item& item : report.items()) {
    lines.push_back(std::get<ReportLine>(item).Text());
  }
  return lines;
}

/// The names of a type's nodes.
struct NodeLabels {
  const char* type;
  double spans;
  std::vector<std::string> labels;
};

}  // namespace lignara
