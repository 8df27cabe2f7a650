#include "tests/multispan/multi_span_fixture.h"

namespace lignara {
namespace {

class SpanInput : public MultiSpanTest {};

TEST_F(SpanInput, CaptionsFollowTheUnits) {
  const Texts english = {"Length(ft)",
                         "Unbraced Length (ft)",
                         "Unif. ld(lb/ft)",
                         "Mom. of Inertia(in^4)",
                         "Youngs Mod.(psi)",
                         "Sect. Mod.(in^3)",
                         "Shear Area(in^2)",
                         "Gross Area , in^2",
                         "bf(in)",
                         "d(in)",
                         "Base All. Bending Str. (psi)",
                         "Base All. Shear Str. (psi)"};
  const Texts metric = {"Length, ft",
                        "Unbraced Length (ft)",
                        "Unif. Load, lbf/ft",
                        "Mom. of Inertia, in^4",
                        "Youngs Modulus, psi",
                        "Section Mod. in^3",
                        "Shear Area , in^2",
                        "Gross Area , in^2",
                        "B, in",
                        "D, in",
                        "Base All. Bending Str. (psi)",
                        "Base All. Shear Str. (psi)"};
  for (std::size_t i = 0; i < english.size(); ++i) {
    EXPECT_EQ(SpanFieldCaption(static_cast<SpanField>(i), 0), english[i]);
    EXPECT_EQ(SpanFieldCaption(static_cast<SpanField>(i), 1), metric[i]);
  }
  EXPECT_STREQ(LoadCaptionsOf(0).place, "X(ft)");
  EXPECT_STREQ(LoadCaptionsOf(1).place, "X, ft");
  EXPECT_STREQ(LoadCaptionsOf(0).load, "lbs");
}

// "Update Span".

TEST_F(SpanInput, UpdateStoresAllFields) {
  Open(2);
  const Texts typed = {"10.5 ft", "8",    "100.1", "98.9", "1.6e6", "21.4",
                       "9.2",     "13.9", "1.5",   "9.25", "1200",  "75"};
  for (std::size_t i = 0; i < typed.size(); ++i) window.fields[i] = typed[i];
  window.member = "Hem-Fir, 2X10";
  window.type = "NA";
  Store();
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(model().spanLength[1].value(), 10.5F);
  EXPECT_EQ(model().spanUnbraced[1].value(), 8.0F);
  EXPECT_EQ(model().spanUniform[1].value(), 100.1);  // 64 bits
  EXPECT_EQ(model().spanI[1].value(), 98.9F);
  EXPECT_EQ(model().spanE[1].value(), 1600000.0F);
  EXPECT_EQ(model().spanSectionModulus[1].value(), 21.4F);
  EXPECT_EQ(model().spanShearArea[1].value(), 9.2F);
  EXPECT_EQ(model().spanArea[1].value(), 13.9F);
  EXPECT_EQ(model().spanB[1].value(), 1.5F);
  EXPECT_EQ(model().spanD[1].value(), 9.25F);
  EXPECT_EQ(model().spanFb[1].value(), 1200.0F);
  EXPECT_EQ(model().spanFv[1].value(), 75.0F);
  EXPECT_EQ(model().spanMember[1], "Hem-Fir, 2X10");
  EXPECT_EQ(model().spanType[1], "NA");
  EXPECT_TRUE(window.spanAccepted);
}

TEST_F(SpanInput, UpdateTellsWhatIsMissingAndStoresTheRest) {
  for (const SpanField missing : {SpanField::Inertia, SpanField::Modulus, SpanField::Length}) {
    Open(2);
    for (const SpanField field : {SpanField::Inertia, SpanField::Modulus, SpanField::Length}) {
      Type(field, field == missing ? "0" : "12");
    }
    Type(SpanField::Uniform, "55");
    ChooseSpanAxis(window, session, platform, true);
    Type(missing, "-1");
    Store();
    EXPECT_EQ(Messages(), Texts{"I,E OR L IS MISSING"});
    EXPECT_EQ(model().spanUniform[1].value(), 55);
    EXPECT_EQ(model().spanAxis[1].value(), 0);  // the axis is not stored
    EXPECT_FALSE(window.spanAccepted);
  }
}

TEST_F(SpanInput, UpdateStoresTheAxis) {
  Open(2);
  Type(SpanField::Length, "10");
  ChooseSpanAxis(window, session, platform, true);
  Store();
  EXPECT_EQ(model().spanAxis[1].value(), 1);
  ChooseSpanAxis(window, session, platform, false);
  Store();
  EXPECT_EQ(model().spanAxis[1].value(), 0);
}

TEST_F(SpanInput, UpdateTakesTheGlulamValuesOfAGlulamMemberAlone) {
  Open(2);
  ChooseGlulam();
  session.Glulam.MoistureCode = 2;
  session.Member.MemberSource = 1;
  Type(SpanField::Length, "10");
  Store();
  EXPECT_EQ(model().spanGlulam[1].MoistureCode.value(), 0);
  session.Member.MemberSource = 2;
  Store();
  EXPECT_EQ(model().spanGlulam[1].MoistureCode.value(), 2);
  EXPECT_EQ(model().spanGlulam[1].Value(GlulamValue::Ey).value(), 1640000.0F);
}

TEST_F(SpanInput, UpdateBeyondTheListsEndsSilently) {
  Open(60);
  for (int i = 0; i < 51; ++i) Next();
  EXPECT_EQ(window.spanNumber, "52");
  Type(SpanField::Length, "10");
  Store();
  EnterLoad("100", "2");
  ShowNextLoad(window, session);
  LoadSameSpan(window, session);
  Run();
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(window.note, "Only 51 spans can be stored");
  for (int i = 0; i < 20; ++i) Next();
  EXPECT_EQ(window.spanNumber, "60");
  for (int i = 0; i < 70; ++i) Previous();
  EXPECT_EQ(window.spanNumber, "1");
}

// Areas.

TEST_F(SpanInput, ChangedSizeSetsBothAreas) {
  Open(2);
  Type(SpanField::B, "1.5");
  Type(SpanField::D, "9.25");
  EXPECT_EQ(window.Field(SpanField::Area), "13.88");
  EXPECT_EQ(window.Field(SpanField::ShearArea), "9.25");
}

TEST_F(SpanInput, AreasAreStoredAsShown) {
  Open(2);
  Type(SpanField::B, "1.5");
  Type(SpanField::D, "9.25");
  Store();
  EXPECT_EQ(model().spanArea[1].value(), 13.88F);
}

TEST_F(SpanInput, AnotherFieldLeavesTheAreas) {
  Open(2);
  Type(SpanField::Area, "20");
  Type(SpanField::Fb, "900");
  EXPECT_EQ(window.Field(SpanField::Area), "20");
}

// Moving.

TEST_F(SpanInput, ArrowsShowWhatIsStored) {
  Open(2);
  EnterSpan(10.5, 100);
  Type(SpanField::Length, "7");  // of span 2, never stored
  Previous();
  EXPECT_EQ(window.Field(SpanField::Length), "10.5");
  EXPECT_EQ(window.Field(SpanField::Uniform), "100");
  EXPECT_EQ(window.Field(SpanField::Modulus), "1600000");
  Next();
  EXPECT_EQ(window.Field(SpanField::Length), "0");
}

TEST_F(SpanInput, ASpanNeverStoredHasNoNameAndNoType) {
  Open(2);
  Next();
  EXPECT_EQ((Texts{window.member, window.type}), (Texts{"", ""}));
  EXPECT_EQ(window.Field(SpanField::Modulus), "0");
}

TEST_F(SpanInput, ArrowAtTheEndKeepsTheNumberAndShowsWhatIsStored) {
  Open(2);
  Type(SpanField::Length, "7");
  Previous();
  EXPECT_EQ(window.spanNumber, "1");
  EXPECT_EQ(window.Field(SpanField::Length), "0");
  Next();
  Type(SpanField::Length, "7");
  Next();
  EXPECT_EQ(window.spanNumber, "2");
  EXPECT_EQ(window.Field(SpanField::Length), "0");
}

TEST_F(SpanInput, ArrowsReturnToTheFirstLoad) {
  Open(2);
  EnterSpan(10, 0);
  Previous();
  EnterLoad("500", "2.5");
  ShowNextLoad(window, session);
  EnterLoad("700", "3");
  Next();
  EXPECT_EQ((Texts{window.loadNumber, window.loadCount, window.pointLoad, window.pointX}),
            (Texts{"1", "0", "0", "0"}));
  Previous();
  EXPECT_EQ((Texts{window.loadNumber, window.loadCount, window.pointLoad, window.pointX}),
            (Texts{"1", "2", "500", "2.5"}));
}

TEST_F(SpanInput, ArrowsShowTheStoredAxis) {
  Open(2);
  Type(SpanField::Length, "10");
  ChooseSpanAxis(window, session, platform, true);
  Store();
  Next();
  EXPECT_FALSE(window.weakAxis);
  Previous();
  EXPECT_TRUE(window.weakAxis);
}

TEST_F(SpanInput, ArrowsShowStoredAreasNotThoseOfTheSize) {
  Open(2);
  Type(SpanField::Length, "10");
  Type(SpanField::B, "1.5");
  Type(SpanField::D, "9.25");
  Type(SpanField::ShearArea, "6.5");  // notched
  Store();
  Next();
  Previous();
  EXPECT_EQ(window.Field(SpanField::ShearArea), "6.5");
  EXPECT_EQ(window.Field(SpanField::Area), "13.88");
}

// "Load Same ".

TEST_F(SpanInput, LoadSameTakesAllButThePointLoads) {
  Open(3);
  ChooseGlulam();
  ActivateMultiSpan(window, session, platform);
  Type(SpanField::Length, "12");
  Type(SpanField::Unbraced, "4");
  Type(SpanField::Uniform, "150");
  ChooseSpanAxis(window, session, platform, true);
  session.Glulam.LoadCode = 3;
  Store();
  EnterLoad("500", "2.5");
  Next();
  LoadSameSpan(window, session);
  for (std::size_t i = 0; i < kSpanFields.size(); ++i) {
    if (kSpanFields[i].list == nullptr) continue;
    const Float32Array& list = model().*kSpanFields[i].list;
    EXPECT_EQ(list[2].value(), list[1].value()) << i;
  }
  EXPECT_EQ(model().spanUniform[2].value(), 150);
  EXPECT_EQ(model().spanAxis[2].value(), 1);
  EXPECT_EQ(model().spanMember[2], "Hem-Fir, GL 24F-V4(DF/DF)");
  EXPECT_EQ(model().spanType[2], "GLU-LAM");
  EXPECT_EQ(model().spanGlulam[2].LoadCode.value(), 3);
  EXPECT_EQ(model().pointCount[2].value(), 0);
  EXPECT_EQ(window.Field(SpanField::Length), "12");
  EXPECT_TRUE(window.weakAxis);
  EXPECT_EQ(window.note, "");
}

TEST_F(SpanInput, LoadSameOnTheFirstSpanDoesNothing) {
  Open(2);
  Type(SpanField::Length, "10");
  LoadSameSpan(window, session);
  EXPECT_EQ(window.Field(SpanField::Length), "10");
  EXPECT_EQ(model().spanLength[1].value(), 0);
}

// The note beside "Update Span".

TEST_F(SpanInput, NoteTellsWhetherTheFieldsAreStored) {
  Open(2);
  EXPECT_EQ(window.note, "Not stored yet");
  Type(SpanField::Length, "10");
  Store();
  EXPECT_EQ(window.note, "");
  Type(SpanField::Uniform, "33.333333");
  EXPECT_EQ(window.note, "Not stored yet");
  Store();
  Previous();
  EXPECT_EQ(window.note, "");
  Type(SpanField::Length, "10.0");  // the same number
  EXPECT_EQ(window.note, "");
}

TEST_F(SpanInput, NoteTellsOfAnotherMemberPutOverTheFields) {
  Open(2);
  Type(SpanField::Length, "10");
  Store();
  ChooseWood();
  ActivateMultiSpan(window, session, platform);
  EXPECT_EQ(window.note, "Not stored yet");
}

TEST_F(SpanInput, NoteTellsOfALoadThatAShortenedSpanLeftBehind) {
  Open(2);
  EnterSpan(10, 0);
  Previous();
  EnterLoad("500", "4");
  ShowNextLoad(window, session);
  EnterLoad("500", "8");
  Type(SpanField::Length, "5");
  EXPECT_EQ(window.note, "Not stored yet");
  Store();
  EXPECT_EQ(window.note, "Load 2 is off the span");
  EnterLoad("500", "4.5");
  RefreshSpanNote(window, session);
  EXPECT_EQ(window.note, "");
}

TEST_F(SpanInput, NoteTellsOfAnotherAxis) {
  Open(2);
  Type(SpanField::Length, "10");
  Store();
  ChooseSpanAxis(window, session, platform, true);
  EXPECT_EQ(window.note, "Not stored yet");
}

}  // namespace
}  // namespace lignara
