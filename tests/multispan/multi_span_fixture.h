#pragma once

#include <gtest/gtest.h>

#include "app/launcher.h"
#include "multispan/multi_span_window.h"
#include "multispan/results_window.h"
#include "tests/support/recording_platform.h"
#include "tests/support/typed.h"

namespace lignara {

/// The multi-span window in a fresh session, for tests.
class MultiSpanTest : public testing::Test {
 protected:
  using Texts = std::vector<std::string>;

  MultiSpanTest() { StartSession(session, "/data"); }

  void Open(int spans) {
    session.SpanCount = spans;
    OpenMultiSpan(window, session, platform);
  }
  void Type(SpanField field, const std::string& text) {
    window.Field(field) = text;
    EditSpanField(window, session, platform, field);
  }
  void Store() { UpdateSpan(window, session, platform); }
  void Next() { ShowNextSpan(window, session); }
  void Previous() { ShowPreviousSpan(window, session); }
  /// Stores a span of E 1600000 and I 100, and goes on to the next.
  void EnterSpan(double length, double uniform) {
    Type(SpanField::Length, Typed(length));
    Type(SpanField::Uniform, Typed(uniform));
    Type(SpanField::Inertia, "100");
    Type(SpanField::Modulus, "1600000");
    Store();
    Next();
  }
  void EnterLoad(const std::string& force, const std::string& x) {
    window.pointLoad = force;
    window.pointX = x;
    UpdatePointLoad(window, session, platform);
  }
  void Run() { RunMultiSpan(session, platform); }
  void Support(FarEnd end, EndSupport support) { SetFarSupport(window, session, end, support); }
  /// A sawn member as the calculator hands it over.
  void ChooseWood() {
    MemberSelection& m = session.Member;
    m.MemberSource = 1;
    m.WoodTypeText = "Hem-Fir";
    m.SizeName = "2X10";
    m.ModulusE = 1600000;
    m.SectionIx = 98.93;
    m.SectionIy = 2.6;
    m.SectionSx = 21.39;
    m.SectionSy = 3.47;
    m.SectionArea = 13.88;
    m.DressedB = 1.5;
    m.DressedD = 9.25;
    m.AllowFb = 1200;
    m.AllowFv = 75;
  }
  void ChooseGlulam() {
    ChooseWood();
    session.Member.MemberSource = 2;
    session.Member.SizeName = "GL 24F-V4(DF/DF)";
    session.Member.ModulusE = 1800000;
    session.Glulam.Value(GlulamValue::Ex) = 1800000;
    session.Glulam.Value(GlulamValue::Ey) = 1640000;
  }

  MultiSpanModel& model() { return session.MultiSpan; }
  Texts Messages() { return platform.TakeTexts(); }

  SessionState session;
  RecordingPlatform platform;
  MultiSpanWindow window;
};

}  // namespace lignara
