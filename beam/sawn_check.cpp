#include "app/fault.h"
#include "app/number_pattern.h"
#include "beam/actual_stresses.h"
#include "beam/stress_check.h"

namespace lignara {
namespace {

constexpr double kInchesPerFoot = 12;
/// Effective over real unbraced length, for all supports and loads.
constexpr double kEffectiveLength = 1.92;
constexpr double kShortLimit = 100;
constexpr double kLongLimit = 2500;
constexpr double kColumnLimit = 50;

constexpr const char* kInputMissing = "YOU ARE MISSING INPUT REQUIRED FOR STRESS CHECK!";

std::string Value(const Float32& number) { return FormatNumber(number, "0.00"); }

/// The check of a sawn member. A fault ends it at the statement that met it.
class SawnCheck {
 public:
  SawnCheck(BeamWindow& window, SessionState& session)
      : window_(window), check_(window.check), session_(session), member_(session.Member) {}

  /// The whole check. What stopped it, or nullptr.
  const char* Run();

 private:
  bool HasInput() const;
  void FindSlenderness();
  void CheckBending();
  void CheckCompression();
  void ListShearAndTension();
  void CheckCombined();
  void ListVerdicts();
  void Verdict(bool fails, const char* failure, const char* pass) { Row(fails ? failure : pass); }
  void Row(const std::string& text) { check_.rows.push_back(text); }
  void CombinedRow(const char* words) {
    if (!faults_.Met()) Row(words + Value(combined_));
  }

  bool HasCompression() const { return !(check_.actualCompression == 0); }
  bool HasTension() const { return !(check_.actualTension == 0); }

  BeamWindow& window_;
  StressCheck& check_;
  SessionState& session_;
  MemberSelection& member_;
  Float32 effectiveLength_;  ///< in
  Float32 slenderness_;      ///< B: the square of the beam's slenderness factor
  Float32 longStart_;        ///< K: where long beams begin
  Float32 combined_;         ///< C
  const SilentFaults faults_;
};

bool SawnCheck::HasInput() const {
  const MemberSelection& m = member_;
  for (const Float32* value :
       {&m.AllowFb, &m.AllowFv, &m.AllowFc, &m.AllowFt, &m.DressedB, &m.DressedD}) {
    if (*value <= 0) return false;
  }
  return true;
}

void SawnCheck::FindSlenderness() {
  const Float32 effective = kEffectiveLength * window_.beam.unbracedLength;
  effectiveLength_ = effective * kInchesPerFoot;
  slenderness_ = effectiveLength_ * member_.DressedD / Square(member_.DressedB);
  longStart_ = 3 * youngsModulus(session_) / (5 * member_.AllowFb);
}

void SawnCheck::CheckBending() {
  const char* words = nullptr;
  if (slenderness_ <= kShortLimit) {
    words = " Short Member";
  } else if (slenderness_ <= longStart_) {
    member_.AllowFb = (1 - Square(slenderness_ / longStart_) / 3) * member_.AllowFb;
    words = " Intermediate Member";
  } else if (slenderness_ <= kLongLimit) {
    member_.AllowFb = 0.4 * youngsModulus(session_) / slenderness_;
    words = " Long Member";
  } else {
    member_.AllowFb = 0;
    Row("Unbraced length is to long for bending loads!");
    return;
  }
  Row("Bending = " + Value(member_.AllowFb) + " psi" + words);
}

void SawnCheck::CheckCompression() {
  if (!HasCompression()) return;
  const Float32& least = member_.DressedB < member_.DressedD ? member_.DressedB : member_.DressedD;
  const Float32 length = effectiveLength_ / kEffectiveLength;
  const Float32 ratio = length / least;
  const Float32 euler = 0.3 * youngsModulus(session_) / Square(ratio);
  if (euler <= member_.AllowFc) member_.AllowFc = euler;
  if (ratio <= kColumnLimit) {
    Row("Axial Compression = " + Value(member_.AllowFc) + " psi");
    return;
  }
  const Float32 longest = kColumnLimit * least / kInchesPerFoot;
  Row("Your length to narrow dim. ratio is over 50, axial load may be unstable!");
  Row("Decrease your unbraced length to at least " + FormatNumber(longest, "0.0") +
      " ft, then rerun!");
}

void SawnCheck::ListShearAndTension() {
  Row("Shear = " + Value(member_.AllowFv) + " psi");
  if (HasTension()) Row("Tensile = " + Value(member_.AllowFt) + " psi");
}

/// Divides by the bending allowable, which is 0 behind too long a length.
void SawnCheck::CheckCombined() {
  Row("");
  Row("COMBINED AXIAL AND BENDING FACTOR");
  combined_ = 0;
  if (HasTension()) {
    combined_ = check_.actualTension / member_.AllowFt + check_.actualBending / member_.AllowFb;
    CombinedRow("ft/Ft + fb/Fb = ");
  } else if (HasCompression()) {
    combined_ = check_.actualCompression / member_.AllowFc + check_.actualBending / member_.AllowFb;
    CombinedRow("fc/Fc + fb/Fb = ");
  } else {
    Row("No axial load, thus no combined check required!");
  }
}

void SawnCheck::ListVerdicts() {
  Row("");
  Verdict(combined_ > 1, "Fails due to combined stress!", "Combined stress passes!");
  Verdict(check_.actualBending > member_.AllowFb, "Fails due to bending stress!",
          "Bending stress passes!");
  Verdict(member_.AllowFv < check_.actualShear, "Fails due to Shear stress!",
          "Shear Stress passes!");
  if (HasCompression()) {
    Verdict(check_.actualCompression > member_.AllowFc, "Fails due to axial compressive stress!",
            "Axial Compressive stress passes!");
  }
  if (HasTension()) {
    Verdict(check_.actualTension > member_.AllowFt, "Fails due to axial tensile stress!",
            "Axial Tension stress passes!");
  }
}

const char* SawnCheck::Run() {
  const CheckInput input(window_);
  if (!input.HasAreas()) return kAreaMissing;
  FindBendingAndShear(check_, input);
  if (faults_.Met()) return kAreaMissing;
  TakeCheckFields(window_, session_);
  if (!HasInput()) return kInputMissing;
  FindAxialStress(check_, input, member_.SectionArea);
  if (faults_.Met()) return kAreaMissing;
  check_.rows.clear();
  ListActualStresses(check_);
  for (const auto step :
       {&SawnCheck::FindSlenderness, &SawnCheck::CheckBending, &SawnCheck::CheckCompression,
        &SawnCheck::ListShearAndTension, &SawnCheck::CheckCombined, &SawnCheck::ListVerdicts}) {
    (this->*step)();
    if (faults_.Met()) return kAreaMissing;
  }
  return nullptr;
}

}  // namespace

void CheckSawnMember(BeamWindow& window, SessionState& session, Platform& platform) {
  if (!MayCheck(window, session, platform, MemberSelection::kSawnSource)) return;
  SawnCheck check(window, session);
  EndCheck(window, platform, check.Run());
}

}  // namespace lignara
