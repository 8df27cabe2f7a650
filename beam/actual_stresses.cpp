#include "beam/actual_stresses.h"

#include "app/number_pattern.h"
#include "app/number_reader.h"

namespace lignara {
namespace {

std::string StressRow(const char* words, const Float32& stress) {
  return words + FormatNumber(stress, "0.000") + " psi";
}

}  // namespace

CheckInput::CheckInput(const BeamWindow& window)
    : sectionModulus(ReadNumber(window.Field(StressField::SectionModulus).text)),
      shearArea(ReadNumber(window.Field(StressField::ShearArea).text)),
      maxMoment(ReadNumber(window.maxMoment)),
      maxShear(ReadNumber(window.maxShear)),
      axial(ReadNumber(window.axial)) {}

void FindBendingAndShear(StressCheck& check, const CheckInput& input) {
  check.actualShear = Abs(input.maxShear / input.shearArea);
  check.actualBending = Abs(input.maxMoment * 12 / input.sectionModulus);
}

void FindAxialStress(StressCheck& check, const CheckInput& input, const Float32& area) {
  check.actualCompression = 0;
  check.actualTension = 0;
  if (input.axial > 0) check.actualTension = Abs(input.axial / area);
  if (input.axial < 0) check.actualCompression = Abs(input.axial / area);
}

void ListActualStresses(StressCheck& check) {
  check.rows.push_back("ACTUAL STRESSES");
  check.rows.push_back(StressRow("Max. shear stress = ", check.actualShear));
  check.rows.push_back(StressRow("Max. bending stress = ", check.actualBending));
  if (!(check.actualCompression == 0)) {
    check.rows.push_back(StressRow("Max. axial comp. stress = ", check.actualCompression));
  }
  if (!(check.actualTension == 0)) {
    check.rows.push_back(StressRow("Max. axial ten. stress = ", check.actualTension));
  }
  check.rows.push_back("");
  check.rows.push_back("ALLOWABLE STRESSES");
}

}  // namespace lignara
