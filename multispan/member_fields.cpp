#include "app/fault.h"
#include "app/number_pattern.h"
#include "app/number_reader.h"
#include "multispan/multi_span_window.h"

namespace lignara {
namespace {

void ShowAreas(MultiSpanWindow& window) {
  const Number b = ReadNumber(window.Field(SpanField::B));
  const Number d = ReadNumber(window.Field(SpanField::D));
  Float32 area;
  Float32 shearArea;
  area = b * d;
  shearArea = 2 * b * d / 3;
  window.Field(SpanField::Area) = FormatNumber(area, kTwoDecimals);
  window.Field(SpanField::ShearArea) = FormatNumber(shearArea, kTwoDecimals);
}

/// Fills "bf(in)" or "d(in)": another text counts as a change.
void FillSize(MultiSpanWindow& window, SpanField field, const Float32& size) {
  const std::string text = FormatNumber(size, kTwoDecimals);
  if (window.Field(field) == text) return;
  window.Field(field) = text;
  ShowAreas(window);
}

void FillGlulamModulus(MultiSpanWindow& window, const SessionState& session) {
  const GlulamValue about = window.weakAxis ? GlulamValue::Ey : GlulamValue::Ex;
  window.Field(SpanField::Modulus) = FormatNumber(session.Glulam.Value(about), "0.0E+00");
}

void FillModulus(MultiSpanWindow& window, const SessionState& session) {
  const int source = session.Member.MemberSource.value();
  if (source == MemberSelection::kNoSource || source == MemberSelection::kSawnSource) {
    window.Field(SpanField::Modulus) = FormatNumber(session.Member.ModulusE, "0.00e+00");
  } else if (source == MemberSelection::kGlulamSource) {
    FillGlulamModulus(window, session);
  }
}

void FillSection(MultiSpanWindow& window, const MemberSelection& member) {
  window.Field(SpanField::Inertia) =
      FormatNumber(window.weakAxis ? member.SectionIy : member.SectionIx, kTwoDecimals);
  window.Field(SpanField::SectionModulus) =
      FormatNumber(window.weakAxis ? member.SectionSy : member.SectionSx, kTwoDecimals);
}

}  // namespace

void FillFromMember(MultiSpanWindow& window, const SessionState& session) {
  const MemberSelection& member = session.Member;
  FillModulus(window, session);
  FillSection(window, member);
  window.Field(SpanField::Area) = FormatNumber(member.SectionArea, kTwoDecimals);
  FillSize(window, SpanField::B, member.DressedB);
  FillSize(window, SpanField::D, member.DressedD);
  window.Field(SpanField::Fb) = FormatNumber(member.AllowFb, kTwoDecimals);
  window.Field(SpanField::Fv) = FormatNumber(member.AllowFv, kTwoDecimals);
  window.type = member.MemberSource.value() == MemberSelection::kGlulamSource ? "GLU-LAM" : "NA";
  window.member = member.WoodTypeText + ", " + member.SizeName;
}

void ActivateMultiSpan(MultiSpanWindow& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  FillFromMember(window, session);
  RefreshSpanNote(window, session);
}

void ChooseSpanAxis(MultiSpanWindow& window, SessionState& session, Platform& platform, bool weak) {
  FaultScope faults(platform);
  window.weakAxis = weak;
  if (session.Member.MemberSource.value() == MemberSelection::kGlulamSource) {
    FillGlulamModulus(window, session);
  }
  FillSection(window, session.Member);
  RefreshSpanNote(window, session);
}

void EditSpanField(MultiSpanWindow& window, SessionState& session, Platform& platform,
                   SpanField field) {
  FaultScope faults(platform);
  if (field == SpanField::B || field == SpanField::D) ShowAreas(window);
  RefreshSpanNote(window, session);
}

}  // namespace lignara
