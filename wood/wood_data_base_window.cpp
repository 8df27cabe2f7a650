#include "wood/wood_data_base_window.h"

#include "app/fault.h"
#include "app/number_pattern.h"
#include "app/number_reader.h"
#include "app/window_names.h"

namespace lignara {
namespace {

/// A base stress and where "Final Selection" shows it. The modulus shows no decimals.
struct BaseStressField {
  Float64 BaseStressRecord::*stress;
  std::string FinalSelection::*shown;
  const char* pattern;
};

constexpr BaseStressField kBaseStressFields[] = {
    {&BaseStressRecord::Fb, &FinalSelection::fb, kTwoDecimals},
    {&BaseStressRecord::Ft, &FinalSelection::ft, kTwoDecimals},
    {&BaseStressRecord::Fv, &FinalSelection::fv, kTwoDecimals},
    {&BaseStressRecord::FcPerp, &FinalSelection::fcPerp, kTwoDecimals},
    {&BaseStressRecord::FcPar, &FinalSelection::fcPar, kTwoDecimals},
    {&BaseStressRecord::E, &FinalSelection::e, "0"},
};

const char* IndexFile(WoodFamily family) {
  for (const WoodFamilyEntry& entry : kWoodFamilies) {
    if (entry.family == family) return entry.indexFile;
  }
  return "";
}

void Close(WoodDataBaseWindow& window, Platform& platform) {
  window.woodTypes.clear();
  platform.CloseWindow(window_name::kWoodDataBase);
}

}  // namespace

void OpenWoodDataBase(WoodDataBaseWindow& window) { window = WoodDataBaseWindow(); }

void ChooseFamily(WoodDataBaseWindow& window, const SessionState& session, Platform& platform,
                  WoodFamily family) {
  window.DataBaseFamily = family;
  window.files = ListRows();
  window.grades = ListRows();
  window.index = ReadSpeciesIndex(session.DataDirectory, IndexFile(family), platform);
  window.files.rows = window.index.names;
}

void ChooseSpeciesFile(WoodDataBaseWindow& window, SessionState& session, Platform& platform,
                       int row) {
  if (!window.files.Has(row)) return;
  window.files.row = row;
  if (row == 0) return;
  window.grades = ListRows();
  window.woodTypes.clear();
  SpeciesFile species = ReadSpeciesFile(
      session.DataDirectory, window.index.files[static_cast<std::size_t>(row)], platform);
  window.woodTypes = species.woodTypes;
  session.LastWoodTypes = species.woodTypes;
  window.baseStresses = std::move(species.grades);
  for (const BaseStressRecord& grade : window.baseStresses) {
    window.grades.rows.push_back(grade.Grade);
  }
}

void ShowChosenGrade(WoodDataBaseWindow& window, SessionState& session, Platform& platform) {
  if (!window.grades.Has(window.grades.row)) {
    platform.ShowMessage({"No grade is selected"});
    return;
  }
  if (window.grades.row == 0) return;
  const BaseStressRecord& grade = window.baseStresses[static_cast<std::size_t>(window.grades.row)];
  window.selection.grade = grade.Grade;
  for (const BaseStressField& field : kBaseStressFields) {
    window.selection.*field.shown = FormatNumber(grade.*field.stress, field.pattern);
  }
  session.LastGrade = grade.Grade;
}

void ChooseGrade(WoodDataBaseWindow& window, SessionState& session, Platform& platform, int row) {
  if (!window.grades.Has(row)) return;
  window.grades.row = row;
  ShowChosenGrade(window, session, platform);
}

void AcceptSelection(WoodDataBaseWindow& window, SessionState& session, Platform& platform) {
  FaultScope faults(platform);
  MemberSelection& member = session.Member;
  const FinalSelection& selection = window.selection;
  member.GradeText = selection.grade;
  member.WoodTypeText = window.woodTypes;
  member.AllowFb = ReadNumber(selection.fb);
  member.AllowFv = ReadNumber(selection.fv);
  member.AllowFt = ReadNumber(selection.ft);
  member.DataBaseE = ReadNumber(selection.e);
  member.AllowFcPerp = ReadNumber(selection.fcPerp);
  member.AllowFc = ReadNumber(selection.fcPar);
  member.ModulusE = member.DataBaseE;
  Close(window, platform);
}

void CancelSelection(WoodDataBaseWindow& window, Platform& platform) { Close(window, platform); }

}  // namespace lignara
