#include "truss/picture_in_words.h"

#include <cctype>
#include <cmath>
#include <optional>

#include "app/fault.h"
#include "app/number_pattern.h"
#include "truss/force_sense.h"
#include "truss/truss_types.h"

namespace lignara {
namespace {

/// The member with the largest force of a run, be it tension or compression.
std::optional<Member> MostStrained(const TrussWindow& window, const SessionState& session) {
  std::optional<Member> most;
  double largest = 0;
  const auto& ranges = TrussTypeOf(session.TrussType).checkedMembers;
  for (const Member& member : MembersOf(ranges, HalfSpans(session))) {
    const Float32 force = AxialOf(window.model, member.family)[member.index];
    if (std::abs(force.value()) <= largest) continue;
    largest = std::abs(force.value());
    most = member;
  }
  return most;
}

std::string ForceInWords(const TrussWindow& window, const Member& member) {
  const Float32 force = AxialOf(window.model, member.family)[member.index];
  return MemberLabel(member) + " " + FormatNumber(std::abs(force.value()), kTwoDecimals) + " lbs " +
         SenseOf(force).spoken;
}

}  // namespace

std::string TypeInWords(std::string_view keyword) {
  std::string words = TrussTypeOf(keyword).title;
  for (std::size_t i = 1; i < words.size(); ++i) {
    words[i] = static_cast<char>(std::tolower(static_cast<unsigned char>(words[i])));
  }
  return words;
}

std::string DescribeTruss(const TrussWindow& window, const SessionState& session) {
  const SilentFaults silent;
  const Float32 panels = session.TrussLength / session.PanelLength;
  const std::string truss =
      TypeInWords(session.TrussType) + ", " + FormatNumber(panels, "0") + " panels, ";
  if (!window.view.resultsShown) return truss + "before a run";
  const std::optional<Member> most = MostStrained(window, session);
  return truss + "after a run: " +
         (most ? "largest force " + ForceInWords(window, *most) : "no member bears a force");
}

}  // namespace lignara
