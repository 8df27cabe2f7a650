#pragma once

#include <gtest/gtest.h>

#include "tests/support/data_folder.h"
#include "tests/support/recording_platform.h"
#include "wood/wood_data_base_window.h"

namespace lignara {

/// A data base window over small files, for tests of its factor panel.
class FactorPanelTest : public testing::Test {
 protected:
  using Texts = std::vector<std::string>;

  FactorPanelTest() {
    folder.Write("WWTRK.CSV", "1\nHem-Fir,HF.CSV\n");
    folder.Write("SPTRK.CSV", "1\nHem-Fir,HF.CSV\n");
    folder.Write("MSRTRK.CSV", "1\nHem-Fir,HF.CSV\n");
    folder.Write(
        "HF.CSV",
        "1\nHem-Fir\n2\nNo.1,1000,600,80,400,1200,1500000\nNo.2,100,200,300,400,500,999999\n");
    session.DataDirectory = folder.DataDirectory();
  }

  void Open(WoodFamily family) {
    if (family != WoodFamily::None) {
      ChooseFamily(window, session, platform, family);
      ChooseSpeciesFile(window, session, platform, 1);
      ChooseGrade(window, session, platform, 1);
    }
    OpenFactorPanel(window, platform);
  }
  void Choose(FactorList list, int row) { ChooseFactorRow(window, platform, list, row); }
  void ChooseSize(int width, int thickness) {
    Choose(FactorList::Width, width);
    Choose(FactorList::Thickness, thickness);
  }
  void Answer(FactorPair pair, bool yes) { AnswerFactorPair(window, platform, pair, yes); }
  void Calculate() { CalculateFactors(window, platform); }
  void Accept() { AcceptFactors(window, session, platform); }

  std::array<std::string, kStressKinds>& Multipliers() { return window.panel.multipliers; }
  Texts Selection() const {
    const FinalSelection& s = window.selection;
    return {s.grade, s.fb, s.ft, s.fv, s.fcPerp, s.fcPar, s.e};
  }
  Texts FourBoxes() const {
    const FactorPanel& p = window.panel;
    return {p.repetitive, p.loadDuration, p.shearCondition, p.flatUse};
  }

  DataFolder folder;
  SessionState session;
  RecordingPlatform platform;
  WoodDataBaseWindow window;
};

}  // namespace lignara
