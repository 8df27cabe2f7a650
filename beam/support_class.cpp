#include "beam/support_class.h"

namespace lignara {
namespace {

using enum SupportType;
using enum SupportClass;

struct SupportPair {
  SupportType left, right;
  SupportClass supportClass;
};

constexpr SupportPair kSupportPairs[] = {
    {Pinned, Pinned, SimpleSpan},        //
    {Fixed, Pinned, ProppedFixedLeft},   //
    {Pinned, Fixed, ProppedFixedRight},  //
    {Pinned, Free, UnstableFreeRight},   //
    {Free, Pinned, UnstableFreeLeft},    //
    {Fixed, Free, CantileverFromLeft},   //
    {Free, Fixed, CantileverFromRight},  //
    {Fixed, Fixed, FixedBothEnds},
};

constexpr double kFixedEnds = 0.85;

}  // namespace

void ClassifySupports(SingleSpanBeam& beam, SessionState& session) {
  session.EndFixity = 1.0;
  for (const SupportPair& pair : kSupportPairs) {
    if (pair.left != beam.leftSupport || pair.right != beam.rightSupport) continue;
    beam.supportClass = pair.supportClass;
    if (pair.supportClass == FixedBothEnds) session.EndFixity = kFixedEnds;
  }
}

bool IsUnstable(SupportClass supportClass) {
  return supportClass == UnstableFreeRight || supportClass == UnstableFreeLeft;
}

bool IsCantilever(SupportClass supportClass) {
  return supportClass == CantileverFromLeft || supportClass == CantileverFromRight;
}

const char* SupportWord(SupportType support) {
  if (support == Fixed) return "fixed";
  return support == Pinned ? "pinned" : "free";
}

}  // namespace lignara
