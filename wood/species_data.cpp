#include "wood/species_data.h"

#include "app/field_file.h"

namespace lignara {
namespace {

std::string ReadWoodTypes(FieldFile& file) {
  const int count = file.ReadCount();
  std::string types;
  for (int i = 1; i <= count && !file.AtEnd(); ++i) {
    if (i > 1) types += ", ";
    types += file.ReadText();
  }
  return types;
}

BaseStressRecord ReadGrade(FieldFile& file) {
  BaseStressRecord grade;
  grade.Grade = file.ReadText();
  for (Float64 BaseStressRecord::*stress :
       {&BaseStressRecord::Fb, &BaseStressRecord::Ft, &BaseStressRecord::Fv,
        &BaseStressRecord::FcPerp, &BaseStressRecord::FcPar, &BaseStressRecord::E}) {
    grade.*stress = file.ReadValue();
  }
  return grade;
}

}  // namespace

SpeciesIndex ReadSpeciesIndex(const std::string& dataDirectory, const std::string& fileName,
                              Platform& platform) {
  FieldFile file(dataDirectory, fileName, platform);
  SpeciesIndex index{{""}, {""}};
  const int count = file.ReadCount();
  for (int i = 1; i <= count; ++i) {
    index.names.push_back(file.ReadText());
    index.files.push_back(file.ReadText());
  }
  return index;
}

SpeciesFile ReadSpeciesFile(const std::string& dataDirectory, const std::string& fileName,
                            Platform& platform) {
  FieldFile file(dataDirectory, fileName, platform);
  SpeciesFile species;
  species.woodTypes = ReadWoodTypes(file);
  species.grades.emplace_back();
  const int count = file.ReadCount();
  for (int i = 1; i <= count; ++i) species.grades.push_back(ReadGrade(file));
  return species;
}

}  // namespace lignara
