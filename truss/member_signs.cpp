#include "truss/member_signs.h"

#include "truss/truss_types.h"

namespace lignara {
namespace {

constexpr int kPresses = -1;
constexpr int kPulls = 1;

SignRule Sign(int sign, Family left, Family right, int first = 1, Upper last = Upper::Half) {
  return {{{left, right}, first, last}, sign};
}

Signs WithChords(Signs signs) {
  signs.push_back(Sign(kPresses, Family::TL, Family::TR));
  signs.push_back(Sign(kPulls, Family::CL, Family::CR));
  return signs;
}

SignRule CentreInCompression() { return {CentreVertical(), kPresses}; }

}  // namespace

Signs Pratt1Signs() {
  return WithChords(
      {Sign(kPresses, Family::VL, Family::VR), Sign(kPulls, Family::DL, Family::DR, 2)});
}

Signs EnglishSigns() {
  return WithChords({Sign(kPulls, Family::VL, Family::VR),
                     Sign(kPresses, Family::DL, Family::DR, 2), CentreInCompression()});
}

Signs KingPostSigns() {
  return {Sign(kPresses, Family::TL, Family::TR, 1, Upper::One),
          Sign(kPulls, Family::CL, Family::CR, 1, Upper::One), CentreInCompression()};
}

Signs ScissorsSigns() {
  return {Sign(kPresses, Family::TL, Family::TR, 1, Upper::Two),
          Sign(kPulls, Family::CL, Family::CR, 1, Upper::One),
          Sign(kPresses, Family::VL, Family::VR, 1, Upper::One), CentreInCompression()};
}

Signs Pratt2Signs() {
  return WithChords({Sign(kPresses, Family::VL, Family::VR), Sign(kPulls, Family::DL, Family::DR),
                     CentreInCompression()});
}

Signs HoweSigns() {
  return WithChords({Sign(kPresses, Family::VL, Family::VR, 1, Upper::One),
                     Sign(kPulls, Family::VL, Family::VR, 2),
                     Sign(kPresses, Family::DL, Family::DR), CentreInCompression()});
}

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

}  // namespace lignara
