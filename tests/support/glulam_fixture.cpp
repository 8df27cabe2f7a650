#include "tests/support/glulam_fixture.h"

#include <algorithm>

#include "app/launcher.h"
#include "glulam/load_durations.h"
#include "glulam/moisture_and_load_types.h"

namespace lignara {

OwnCombination& OwnCombination::With(GlulamValue value, const std::string& text) {
  values[static_cast<std::size_t>(value)] = text;
  return *this;
}

std::string OwnCombination::Line() const {
  std::string line = "\"" + symbol + "\",\"" + species + "\",\"" + useCode + "\"";
  for (const std::string& value : values) line += "," + value;
  return line + "\n";
}

GlulamTest::GlulamTest() {
  StartSession(session, "");
  session.DataDirectory = folder.DataDirectory();
  std::string ones;
  for (std::size_t i = 0; i < kGlulamValues; ++i) ones += " 1\n";
  folder.Write("USERADJ.CSV", ones);
  OpenGlulamWindow(window, session, platform);
}

void GlulamTest::Load(const std::vector<OwnCombination>& combinations) {
  constexpr std::size_t kRows = 13;
  constexpr int kOption = 4;
  std::string bytes;
  for (std::size_t i = 0; i < kRows; ++i) {
    bytes += combinations[std::min(i, combinations.size() - 1)].Line();
  }
  folder.Write("GL4.CSV", bytes);
  LoadCombinationFile(window, session, platform, kOption);
}

void GlulamTest::Enter(const std::string& feet, const std::string& depth,
                       const std::string& width) {
  window.length = feet;
  window.depth = depth;
  window.width = width;
  RecomputeAllowables(window, session, platform);
}

void GlulamTest::Press(const std::string& caption) {
  for (std::size_t i = 0; i < kGlulamDurations.size(); ++i) {
    if (caption == kGlulamDurations[i].use.caption) {
      ChooseDuration(window, session, platform, static_cast<int>(i));
      return;
    }
  }
  for (std::size_t i = 0; i < kGlulamLoadTypes.size(); ++i) {
    if (caption == kGlulamLoadTypes[i].caption) {
      ChooseLoadType(window, static_cast<int>(i));
      return;
    }
  }
  FAIL() << "no button " << caption;
}

void GlulamTest::TypeFactor(GlulamValue value, const std::string& text) {
  window.factors[static_cast<std::size_t>(value)] = text;
  RecomputeAllowables(window, session, platform);
}

}  // namespace lignara
