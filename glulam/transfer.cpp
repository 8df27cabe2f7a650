// From the current member to the data base, and from there to it and to the record of the glulam
// values.

#include "app/fault.h"
#include "app/number_pattern.h"
#include "app/number_reader.h"
#include "app/section.h"
#include "app/window_names.h"
#include "glulam/glulam_window.h"
#include "glulam/load_durations.h"
#include "glulam/moisture_and_load_types.h"

namespace lignara {
namespace {

constexpr int kGlulamSource = 2;  // of MemberSource

/// The three sizes as the user entered them.
struct EnteredSizes {
  Float32 length;  ///< unbraced, ft
  Float32 depth;   ///< in
  Float32 width;   ///< in

  bool Complete() const { return length > 0 && depth > 0 && width > 0; }
};

EnteredSizes ReadSizes(const GlulamWindow& window) {
  return {ReadNumber(window.length), ReadNumber(window.depth), ReadNumber(window.width)};
}

void HandOverStresses(const GlulamWindow& window, MemberSelection& member) {
  const Number tensionZone = ReadNumber(window.Value(GlulamValue::FbxTensionZone));
  const Number compressionZone = ReadNumber(window.Value(GlulamValue::FbxCompressionZone));
  member.ModulusE = ReadNumber(window.Value(GlulamValue::Ex));
  member.AllowFb = compressionZone < tensionZone ? compressionZone : tensionZone;
  member.AllowFv = ReadNumber(window.Value(GlulamValue::Fv));
  member.AllowFt = ReadNumber(window.Value(GlulamValue::Ft));
  member.AllowFc = ReadNumber(window.Value(GlulamValue::Fc));
  member.SizeName = "GL " + window.combinations.Chosen() + "(" + window.species + ")";
}

void HandOverUse(const GlulamWindow& window, GlulamTransfer& transfer) {
  transfer.MoistureCode = kGlulamMoistures[window.dryUse ? 0 : 1].code;
  // Without a choice the code of an earlier transfer stays.
  if (window.duration >= 0) {
    transfer.DurationCode = kGlulamDurations[static_cast<std::size_t>(window.duration)].use.code;
  }
  if (window.loadType >= 0) {
    transfer.LoadCode = kGlulamLoadTypes[static_cast<std::size_t>(window.loadType)].code;
  }
  transfer.UseNote = window.useNote;
}

}  // namespace

void TransferGlulamSelection(const GlulamWindow& window, SessionState& session,
                             Platform& platform) {
  FaultScope faults(platform);
  const EnteredSizes sizes = ReadSizes(window);
  if (!sizes.Complete()) {
    platform.ShowMessage({"You need to enter a value for L, d and b!"});
    return;
  }
  session.Member.MemberSource = kGlulamSource;
  TakeRectangle(session.Member, sizes.width, sizes.depth);
  HandOverStresses(window, session.Member);
  session.Member.UnbracedLength = sizes.length;
  session.Glulam.UnbracedLength = sizes.length;
  for (std::size_t i = 0; i < kGlulamValues; ++i) {
    session.Glulam.Values[i] = ReadNumber(window.values[i]);
  }
  HandOverUse(window, session.Glulam);
  platform.HideWindow(window_name::kGlulam);
}

void ReturnToGlulam(GlulamWindow& window, const SessionState& session, Platform& platform) {
  window.length = FormatNumber(session.Member.UnbracedLength, kTwoDecimals);
  RecomputeAllowables(window, session, platform);
}

}  // namespace lignara
