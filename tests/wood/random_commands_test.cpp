#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>

#include "app/launcher.h"
#include "tests/support/data_folder.h"
#include "tests/support/recording_platform.h"
#include "wood/member_size_window.h"
#include "wood/wood_data_base_window.h"
#include "wood/wood_report.h"

namespace lignara {
namespace {

/// A user without a plan: commands, rows and texts by chance, from a fixed seed.
class Chance {
 public:
  explicit Chance(unsigned seed) : engine_(seed) {}

  int Int(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine_); }
  bool Bool() { return Int(0, 1) == 1; }
  std::string Text() {
    constexpr std::array<const char*, 16> kTexts = {
        "",    "0",    "-1",   "1.5",   "3.5 in", "abc", "1e38", "1e999",
        "-.5", "1e-9", "9.25", "+2.25", " 12",    ".",   "-",    "99999999"};
    return kTexts[static_cast<std::size_t>(Int(0, 15))];
  }

 private:
  std::mt19937 engine_;
};

/// What the program writes is a number of its pattern: digits, and neither "-0.00" nor "inf".
void ExpectCleanNumber(const std::string& text) {
  EXPECT_EQ(text.find_first_not_of("0123456789.-+E"), std::string::npos) << text;
  const bool minusZero =
      text.starts_with('-') && text.find_first_of("123456789") == std::string::npos;
  EXPECT_FALSE(minusZero) << text;
}

void StepDataBase(Chance& chance, WoodDataBaseWindow& window, SessionState& session,
                  RecordingPlatform& platform) {
  FactorPanel& panel = window.panel;
  std::string FactorPanel::*const fields[] = {&FactorPanel::repetitive, &FactorPanel::loadDuration,
                                              &FactorPanel::shearCondition, &FactorPanel::flatUse};
  const std::function<void()> steps[] = {
      [&] { ChooseFamily(window, session, platform, kWoodFamilies[chance.Int(0, 2)].family); },
      [&] { ChooseSpeciesFile(window, session, platform, chance.Int(-1, 28)); },
      [&] { ChooseGrade(window, session, platform, chance.Int(-1, 15)); },
      [&] { OpenFactorPanel(window, platform); },
      [&] {
        ChooseFactorRow(window, platform, static_cast<FactorList>(chance.Int(0, 4)),
                        chance.Int(-1, 10));
      },
      [&] {
        AnswerFactorPair(window, platform, static_cast<FactorPair>(chance.Int(0, 2)),
                         chance.Bool());
      },
      [&] { panel.*fields[chance.Int(0, 3)] = chance.Text(); },
      [&] { CalculateFactors(window, platform); },
      [&] { AcceptFactors(window, session, platform); },
      [&] { CancelFactors(window); },
      [&] { PrintWoodReport(window, platform); },
      [&] { AcceptSelection(window, session, platform); },
  };
  steps[chance.Int(0, 11)]();
}

TEST(RandomCommands, DataBaseKeepsItsTextsClean) {
  RecordingPlatform platform;
  for (unsigned seed = 1; seed <= 20; ++seed) {
    Chance chance(seed);
    SessionState session;
    StartSession(session, LIGNARA_DATA_DIRECTORY);
    WoodDataBaseWindow window;
    for (int step = 0; step < 300; ++step) {
      StepDataBase(chance, window, session, platform);
      for (const std::string* text :
           {&window.selection.fb, &window.selection.ft, &window.selection.fv,
            &window.selection.fcPerp, &window.selection.fcPar, &window.selection.e}) {
        ExpectCleanNumber(*text);
      }
      for (const std::string& text : window.panel.multipliers) ExpectCleanNumber(text);
      EXPECT_GE(window.baseStresses.size(), window.grades.rows.size());
    }
  }
}

void StepMemberSize(Chance& chance, MemberSizeWindow& window, SessionState& session,
                    RecordingPlatform& platform) {
  const auto group = static_cast<MemberGroup>(chance.Int(0, 3));
  GroupPanel& panel = window.Group(group);
  std::string GroupPanel::*const groupBoxes[] = {&GroupPanel::fa, &GroupPanel::ft,
                                                 &GroupPanel::e,  &GroupPanel::b,
                                                 &GroupPanel::d,  &GroupPanel::area};
  std::string BeamPanel::*const beamBoxes[] = {&BeamPanel::b,  &BeamPanel::d,  &BeamPanel::area,
                                               &BeamPanel::ix, &BeamPanel::sx, &BeamPanel::e};
  const std::function<void()> steps[] = {
      [&] { PickWidth(window, chance.Int(-1, 14)); },
      [&] { PickDepth(window, chance.Int(-1, 14)); },
      [&] { AcceptSize(window, session, platform); },
      [&] { SelectGroupSize(window, session, platform, group); },
      [&] {
        const int field = chance.Int(0, 5);
        panel.*groupBoxes[field] = chance.Text();
        EditGroupField(window, session, platform, group, static_cast<GroupField>(field));
      },
      [&] {
        window.beam.*beamBoxes[chance.Int(0, 5)] = chance.Text();
        EditBeamSize(window, session, platform);
      },
      [&] { panel.ticked = chance.Bool(); },
      [&] { VisitWoodDataBase(session, platform); },
      [&] { ReturnFromWoodDataBase(window, session, platform); },
      [&] { AcceptMemberSize(window, session, platform); },
      [&] { CancelMemberSize(session, platform); },
      [&] {
        session.DesignMode = chance.Bool() ? "TRUSS" : "BEAM";
        OpenMemberSize(window, session, platform);
      },
  };
  steps[chance.Int(0, 11)]();
}

TEST(RandomCommands, CalculatorKeepsTheMemberFiniteAndItsTextsClean) {
  RecordingPlatform platform;
  for (unsigned seed = 1; seed <= 40; ++seed) {
    Chance chance(seed);
    SessionState session;
    StartSession(session, LIGNARA_DATA_DIRECTORY);
    session.DesignMode = "TRUSS";
    MemberSizeWindow window;
    OpenMemberSize(window, session, platform);
    for (int step = 0; step < 300; ++step) {
      StepMemberSize(chance, window, session, platform);
      const MemberSelection& m = session.Member;
      for (const Float32* value : {&m.DressedB, &m.DressedD, &m.ScratchArea, &m.SectionArea,
                                   &m.SectionIx, &m.SectionSy, &m.BeamDepthOverB2}) {
        EXPECT_TRUE(std::isfinite(value->value()));
      }
      ExpectCleanNumber(window.selection.dressedB);
      ExpectCleanNumber(window.selection.dressedD);
    }
    // Shown afresh, every field is the program's own text.
    OpenMemberSize(window, session, platform);
    for (const GroupPanel& p : window.groups) {
      for (const std::string* text : {&p.fa, &p.ft, &p.e, &p.b, &p.d, &p.area}) {
        ExpectCleanNumber(*text);
      }
    }
    ExpectCleanNumber(window.beam.ix);
  }
}

}  // namespace
}  // namespace lignara
