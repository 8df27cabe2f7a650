#include "multispan/end_class.h"

#include <algorithm>

namespace lignara {

int EndClassNumber(EndSupport left, EndSupport right) {
  const auto row = std::find_if(kEndClasses.begin(), kEndClasses.end(), [&](const EndClass& c) {
    return c.left == left && c.right == right;
  });
  return static_cast<int>(row - kEndClasses.begin()) + 1;
}

const EndClass& EndClassOf(EndSupport left, EndSupport right) {
  return kEndClasses[static_cast<std::size_t>(EndClassNumber(left, right) - 1)];
}

const char* SupportWord(EndSupport support) {
  if (support == EndSupport::None) return "free";
  return support == EndSupport::Fixed ? "fixed" : "pinned";
}

}  // namespace lignara
