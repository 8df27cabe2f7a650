#include "tests/support/truss_fixture.h"

#include "truss/axial_loads.h"
#include "truss/geometry_drawn.h"

namespace lignara {

TestTruss::TestTruss(const std::string& type, double spans, double length, double height,
                     double innerHeight) {
  session.TrussType = type;
  session.TrussSpans = spans;
  session.TrussLength = length;
  session.TrussHeight = height;
  session.TrussInnerHeight = innerHeight;
  session.PanelLength = length / (type == "KINGPOST" ? 2 : spans);
  window.model.PL.Allocate(HalfSpans(session));
  window.model.PR.Allocate(HalfSpans(session));
  TrussJob job = Job();
  SetDrawnGeometry(job);
}

void TestTruss::LoadAllNodes(double load) {
  for (int i = 0; i <= model().PL.upper(); ++i) {
    model().PL[i] = load;
    model().PR[i] = load;
  }
  model().PT = load;
}

void TestTruss::ChooseMembers(double area, double modulus) {
  for (TrussMemberGroup& group : session.Member.Groups) {
    group.GroupArea = area;
    group.GroupE = modulus;
  }
}

void TestTruss::Analyse() {
  TrussJob job = Job();
  AnalyseTruss(job);
}

TestTruss StandardTruss(const std::string& type, int spans) {
  if (type == "KINGPOST") return {type, 4, 32, 12};
  if (type == "SCI") return {type, 4, 40, 15, 5};
  const bool flat = type == "PRATT2" || type == "HOWE" || type == "WARREN";
  return {type, static_cast<double>(spans), 8.0 * spans, flat ? 6.0 : 3.0 * spans};
}

}  // namespace lignara
