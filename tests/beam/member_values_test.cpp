#include <gtest/gtest.h>

#include "tests/support/beam_fixture.h"

namespace lignara {
namespace {

class MemberValues : public testing::Test {
 protected:
  MemberValues() {
    MemberSelection& m = beam.session.Member;
    m.MemberSource = 1;
    m.SizeName = "4X12";
    m.ModulusE = 1625000;
    m.SectionArea = 39.38;
    m.SectionIx = 415.28;
    m.SectionIy = 40.2;
    m.SectionSx = 73.83;
    m.SectionSy = 22.97;
    m.DressedB = 3.5;
    m.DressedD = 11.25;
    m.AllowFb = 1000;
    m.AllowFv = 95.5;
    m.AllowFc = 1500;
    m.AllowFt = 675;
  }

  const std::string& Text(StressField field) const { return beam.window.Field(field).text; }
  void Type(StressField field, const std::string& text) {
    beam.window.Field(field).text = text;
    EditStressField(beam.window, field);
  }

  TestBeam beam;
};

TEST_F(MemberValues, FillAllFields) {
  FillFromMember(beam.window, beam.session);
  EXPECT_EQ(beam.window.modulus.text, "1.63e+06");
  EXPECT_EQ(beam.window.inertia.text, "415.28");
  EXPECT_EQ(Text(StressField::SectionModulus), "73.83");
  EXPECT_EQ(Text(StressField::Area), "39.38");
  EXPECT_EQ(Text(StressField::B), "3.50");
  EXPECT_EQ(Text(StressField::D), "11.25");
  EXPECT_EQ(Text(StressField::Fb), "1000.00");
  EXPECT_EQ(Text(StressField::Fv), "95.50");
  EXPECT_EQ(Text(StressField::Fc), "1500.00");
  EXPECT_EQ(Text(StressField::Ft), "675.00");
  EXPECT_EQ(beam.window.memberName, "4X12");
  // 39.38 / 1.5
  EXPECT_EQ(Text(StressField::ShearArea), "26.253");
}

TEST_F(MemberValues, AreNeutralAtTheStart) {
  const TestBeam opened;
  EXPECT_EQ(opened.window.modulus.text, "1.00e+06");
  EXPECT_EQ(opened.window.inertia.text, "1.00");
  EXPECT_EQ(opened.window.Field(StressField::Area).text, "1.00");
  EXPECT_EQ(opened.window.Field(StressField::ShearArea).text, "0.667");
  EXPECT_EQ(opened.window.memberName, "CUSTOM");
  EXPECT_EQ(opened.window.beam.momentOfInertia.value(), 1.0f);
  EXPECT_EQ(opened.window.memberNote, "");
}

TEST_F(MemberValues, OfTheWeakAxis) {
  FillFromMember(beam.window, beam.session);
  SetAxis(beam.window, beam.session, 1);
  EXPECT_EQ(beam.window.inertia.text, "40.20");
  EXPECT_EQ(Text(StressField::SectionModulus), "22.97");
  SetAxis(beam.window, beam.session, 0);
  EXPECT_EQ(beam.window.inertia.text, "415.28");
  beam.window.beam.loadAxis = 1;
  FillFromMember(beam.window, beam.session);
  EXPECT_EQ(beam.window.inertia.text, "40.20");
}

TEST_F(MemberValues, OfAnAxisWithoutInertiaLeaveTheFields) {
  FillFromMember(beam.window, beam.session);
  beam.session.Member.SectionIy = 0;
  SetAxis(beam.window, beam.session, 1);
  EXPECT_EQ(beam.window.beam.loadAxis.value(), 1);
  EXPECT_EQ(beam.window.inertia.text, "415.28");
  EXPECT_EQ(Text(StressField::SectionModulus), "73.83");
}

TEST_F(MemberValues, OfAGlulamTakeTheModulusOfTheAxis) {
  beam.session.Member.MemberSource = 2;
  beam.session.Glulam.Value(GlulamValue::Ex) = 1800000;
  beam.session.Glulam.Value(GlulamValue::Ey) = 1600000;
  FillFromMember(beam.window, beam.session);
  EXPECT_EQ(beam.window.modulus.text, "1.80E+06");
  SetAxis(beam.window, beam.session, 1);
  EXPECT_EQ(beam.window.modulus.text, "1.60E+06");
}

TEST_F(MemberValues, OfAnotherSourceLeaveTheModulus) {
  beam.window.modulus.text = "7";
  beam.session.Member.MemberSource = 3;
  FillFromMember(beam.window, beam.session);
  EXPECT_EQ(beam.window.modulus.text, "7");
}

TEST_F(MemberValues, SayWhenTheyReplaceATypedOne) {
  FillFromMember(beam.window, beam.session);
  EXPECT_EQ(beam.window.memberNote, "") << "what it filled itself is nobody's loss";
  Type(StressField::Fb, "900");
  FillFromMember(beam.window, beam.session);
  EXPECT_EQ(Text(StressField::Fb), "1000.00");
  EXPECT_EQ(beam.window.memberNote, "Values of 4X12 put in");
  FillFromMember(beam.window, beam.session);
  EXPECT_EQ(beam.window.memberNote, "");
}

TEST_F(MemberValues, SayNothingOfAnEmptiedOrAnEqualField) {
  FillFromMember(beam.window, beam.session);
  EnterStressField(beam.window, StressField::Fb);
  FillFromMember(beam.window, beam.session);
  EXPECT_EQ(beam.window.memberNote, "");
  beam.window.inertia.text = "415.28";
  SetAxis(beam.window, beam.session, 0);
  EXPECT_EQ(beam.window.memberNote, "");
}

TEST_F(MemberValues, KeepATypedShearAreaOfTheSameArea) {
  FillFromMember(beam.window, beam.session);
  Type(StressField::ShearArea, "20");
  FillFromMember(beam.window, beam.session);
  EXPECT_EQ(Text(StressField::ShearArea), "20");
}

TEST_F(MemberValues, ShearAreaFollowsATypedArea) {
  Type(StressField::Area, "9");
  EXPECT_EQ(Text(StressField::ShearArea), "6.000");
  EnterStressField(beam.window, StressField::Area);
  EXPECT_EQ(Text(StressField::Area), "");
  EXPECT_EQ(Text(StressField::ShearArea), "0.000");
}

TEST_F(MemberValues, EnteringAFieldOfThePanelEmptiesIt) {
  FillFromMember(beam.window, beam.session);
  for (int i = 0; i < kStressFields; ++i) {
    EnterStressField(beam.window, static_cast<StressField>(i));
    EXPECT_EQ(beam.window.stressFields[static_cast<std::size_t>(i)].text, "") << i;
  }
}

TEST_F(MemberValues, PanelOpensAndCloses) {
  OpenProperties(beam.window);
  EXPECT_TRUE(beam.window.propertiesOpen);
  CloseProperties(beam.window);
  EXPECT_FALSE(beam.window.propertiesOpen);
}

}  // namespace
}  // namespace lignara
