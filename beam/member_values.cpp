#include "app/fault.h"
#include "app/number_pattern.h"
#include "app/number_reader.h"
#include "beam/beam_window.h"

namespace lignara {
namespace {

using Member = MemberSelection;

/// A field of the stress panel and where its value stands in the chosen member.
struct FilledStress {
  StressField field;
  Float32 Member::*value;
};

constexpr FilledStress kFilledStresses[] = {
    {StressField::Area, &Member::SectionArea}, {StressField::B, &Member::DressedB},
    {StressField::D, &Member::DressedD},       {StressField::Fb, &Member::AllowFb},
    {StressField::Fv, &Member::AllowFv},       {StressField::Fc, &Member::AllowFc},
    {StressField::Ft, &Member::AllowFt}};

/// The values of a section that depend on the axis of bending.
struct AxisValues {
  Float32 Member::*inertia;
  Float32 Member::*sectionModulus;
  GlulamValue modulus;
};

constexpr AxisValues kAxisValues[] = {{&Member::SectionIx, &Member::SectionSx, GlulamValue::Ex},
                                      {&Member::SectionIy, &Member::SectionSy, GlulamValue::Ey}};

const AxisValues& AxisOf(const SingleSpanBeam& beam) {
  return kAxisValues[beam.loadAxis == 0 ? 0 : 1];
}

/// Puts values of the member into fields, and notes where one goes over another that was typed.
class MemberFiller {
 public:
  MemberFiller(BeamWindow& window, const SessionState& session)
      : window_(window), session_(session) {}
  ~MemberFiller() {
    window_.memberNote =
        typedOver_ ? "Values of " + session_.Member.SizeName + " put in" : std::string();
  }
  MemberFiller(const MemberFiller&) = delete;
  MemberFiller& operator=(const MemberFiller&) = delete;

  void FillModulus() {
    const Int16& source = session_.Member.MemberSource;
    if (source == Member::kNoSource || source == Member::kSawnSource) {
      Put(window_.modulus, FormatNumber(youngsModulus(session_), "0.00e+00"));
    } else if (source == Member::kGlulamSource) {
      Put(window_.modulus,
          FormatNumber(session_.Glulam.Value(AxisOf(window_.beam).modulus), "0.00E+00"));
    }
  }
  void FillSection() {
    const AxisValues& axis = AxisOf(window_.beam);
    Put(window_.inertia, FormatNumber(session_.Member.*axis.inertia, kTwoDecimals));
    Put(window_.Field(StressField::SectionModulus),
        FormatNumber(session_.Member.*axis.sectionModulus, kTwoDecimals));
  }
  void FillStresses() {
    const std::string area = window_.Field(StressField::Area).text;
    for (const FilledStress& stress : kFilledStresses) {
      Put(window_.Field(stress.field), FormatNumber(session_.Member.*stress.value, kTwoDecimals));
    }
    if (window_.Field(StressField::Area).text != area) {
      Put(window_.Field(StressField::ShearArea), ShearAreaText(window_));
    }
  }

  /// The shear area of a rectangle, whose shear stress is 1.5 times the mean.
  static std::string ShearAreaText(const BeamWindow& window) {
    const Float32 area = ReadNumber(window.Field(StressField::Area).text);
    const Float32 shearArea = area / 1.5;
    return FormatNumber(shearArea, "0.000");
  }

 private:
  void Put(MemberField& field, const std::string& text) {
    const bool typed = !field.text.empty() && field.text != field.filled;
    if (typed && field.text != text) typedOver_ = true;
    field.text = field.filled = text;
  }

  BeamWindow& window_;
  const SessionState& session_;
  bool typedOver_ = false;
};

}  // namespace

void FillFromMember(BeamWindow& window, const SessionState& session) {
  MemberFiller filler(window, session);
  filler.FillModulus();
  filler.FillSection();
  filler.FillStresses();
  window.memberName = session.Member.SizeName;
}

void SetAxis(BeamWindow& window, const SessionState& session, int axis) {
  window.beam.loadAxis = axis;
  if (session.Member.*AxisOf(window.beam).inertia == 0) return;
  MemberFiller filler(window, session);
  filler.FillModulus();
  filler.FillSection();
}

void OpenProperties(BeamWindow& window) { window.propertiesOpen = true; }

void CloseProperties(BeamWindow& window) { window.propertiesOpen = false; }

void EnterStressField(BeamWindow& window, StressField field) {
  window.Field(field).text.clear();
  EditStressField(window, field);
}

void EditStressField(BeamWindow& window, StressField field) {
  if (field != StressField::Area) return;
  MemberField& shearArea = window.Field(StressField::ShearArea);
  shearArea.text = shearArea.filled = MemberFiller::ShearAreaText(window);
}

}  // namespace lignara
