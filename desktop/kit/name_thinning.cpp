#include "desktop/kit/name_thinning.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace lignara {

std::size_t FirstStep(const std::vector<SeriesMark>& marks, double height, double gap) {
  std::map<int, const SeriesMark*> last;
  double most = 1;
  for (const SeriesMark& mark : marks) {
    const SeriesMark*& before = last[mark.series];
    if (before != nullptr && mark.place == before->place + 1) {
      const double dx = std::fabs(mark.at.x() - before->at.x());
      const double dy = std::fabs(mark.at.y() - before->at.y());
      const double across = (mark.width + gap) / std::max(dx, 1e-6);
      const double down = (height + gap) / std::max(dy, 1e-6);
      most = std::max(most, std::min(across, down));
    }
    before = &mark;
  }
  const auto found = std::lower_bound(kNameSteps.begin(), kNameSteps.end(), most - 1e-9);
  return static_cast<std::size_t>(std::min(found, kNameSteps.end() - 1) - kNameSteps.begin());
}

}  // namespace lignara
