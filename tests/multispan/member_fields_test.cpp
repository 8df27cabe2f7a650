#include "tests/multispan/multi_span_fixture.h"

namespace lignara {
namespace {

class MemberFields : public MultiSpanTest {
 protected:
  void Activate() { ActivateMultiSpan(window, session, platform); }
  Texts Fields(std::initializer_list<SpanField> fields) const {
    Texts texts;
    for (const SpanField field : fields) texts.push_back(window.Field(field));
    return texts;
  }
  Texts Section() const {
    return Fields({SpanField::Modulus, SpanField::Inertia, SpanField::SectionModulus});
  }
};

TEST_F(MemberFields, OfASawnMember) {
  Open(2);
  ChooseWood();
  Activate();
  EXPECT_EQ(Section(), (Texts{"1.60e+06", "98.93", "21.39"}));
  EXPECT_EQ(Fields({SpanField::B, SpanField::D, SpanField::Fb, SpanField::Fv}),
            (Texts{"1.50", "9.25", "1200.00", "75.00"}));
  EXPECT_EQ((Texts{window.member, window.type}), (Texts{"Hem-Fir, 2X10", "NA"}));
}

TEST_F(MemberFields, OfAGlulamMember) {
  Open(2);
  ChooseGlulam();
  Activate();
  EXPECT_EQ(Section(), (Texts{"1.8E+06", "98.93", "21.39"}));
  EXPECT_EQ((Texts{window.member, window.type}), (Texts{"Hem-Fir, GL 24F-V4(DF/DF)", "GLU-LAM"}));
}

TEST_F(MemberFields, OfAnUnknownSourceLeaveTheModulus) {
  Open(2);
  ChooseWood();
  session.Member.MemberSource = 3;
  Type(SpanField::Modulus, "1234");
  Activate();
  EXPECT_EQ(Section(), (Texts{"1234", "98.93", "21.39"}));
}

TEST_F(MemberFields, FollowTheAxisWhenFilled) {
  Open(2);
  ChooseGlulam();
  window.weakAxis = true;
  Activate();
  EXPECT_EQ(Section(), (Texts{"1.6E+06", "2.60", "3.47"}));
}

TEST_F(MemberFields, FollowAClickOnTheAxisAtOnce) {
  Open(2);
  ChooseGlulam();
  ChooseSpanAxis(window, session, platform, true);
  EXPECT_EQ(Section(), (Texts{"1.6E+06", "2.60", "3.47"}));
  ChooseSpanAxis(window, session, platform, false);
  EXPECT_EQ(Section(), (Texts{"1.8E+06", "98.93", "21.39"}));
}

TEST_F(MemberFields, ModulusOfASawnMemberHasNoAxis) {
  Open(2);
  ChooseWood();
  Type(SpanField::Modulus, "1500000");
  ChooseSpanAxis(window, session, platform, true);
  EXPECT_EQ(Section(), (Texts{"1500000", "2.60", "3.47"}));
}

TEST_F(MemberFields, AnotherSizeSetsTheAreas) {
  Open(2);
  ChooseWood();
  session.Member.SectionArea = 99;  // typed in the calculator
  Activate();
  EXPECT_EQ(Fields({SpanField::Area, SpanField::ShearArea}), (Texts{"13.88", "9.25"}));
}

TEST_F(MemberFields, TheSameSizeLeavesTheAreaOfTheMember) {
  Open(2);
  ChooseWood();
  Activate();
  session.Member.SectionArea = 99;
  Type(SpanField::ShearArea, "6");
  Activate();
  EXPECT_EQ(Fields({SpanField::Area, SpanField::ShearArea}), (Texts{"99.00", "6"}));
}

TEST_F(MemberFields, LeaveLengthLoadsAndUnbracedLength) {
  Open(2);
  Type(SpanField::Length, "10");
  Type(SpanField::Unbraced, "4");
  Type(SpanField::Uniform, "150");
  window.pointLoad = "70";
  window.pointX = "3";
  ChooseWood();
  Activate();
  EXPECT_EQ(Fields({SpanField::Length, SpanField::Unbraced, SpanField::Uniform}),
            (Texts{"10", "4", "150"}));
  EXPECT_EQ((Texts{window.pointLoad, window.pointX}), (Texts{"70", "3"}));
}

TEST_F(MemberFields, AreNotStoredByThemselves) {
  Open(2);
  ChooseWood();
  Activate();
  EXPECT_EQ(model().spanE[1].value(), 0);
}

}  // namespace
}  // namespace lignara
