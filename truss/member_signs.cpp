#include "truss/member_signs.h"

#include "truss/truss_types.h"

namespace lignara {

void MEMBER_SIGNS(TrussJob& job) {
  const int n = job.HalfSpans();
  for (const SignRule& rule : job.type.signs) {
    for (const Family family : rule.members.families) {
      Int16Array& signs = SignOf(job.model, family);
      for (int i = rule.members.first; i <= LastElement(rule.members.last, n); ++i) {
        signs[i] = rule.sign;
      }
    }
  }
}

void APPLY_SIGNS(TrussJob& job) {
  const int n = job.HalfSpans();
  for (int f = 0; f < kFamilies; ++f) {
    const Family family = static_cast<Family>(f);
    const bool centre = family == Family::CV;
    const Int16Array& signs = SignOf(job.model, family);
    Float32Array& loads = AxialOf(job.model, family);
    for (int i = centre ? 1 : 0; i <= (centre ? 1 : n); ++i) {
      if (signs[i] == -1) loads[i] = loads[i] * -1.0;
    }
  }
}

void AnalyseTruss(TrussJob& job) {
  const TrussStep chain = job.type.chain;
  if (chain != nullptr) chain(job);
  MEMBER_SIGNS(job);
  APPLY_SIGNS(job);
}

}  // namespace lignara
