#pragma once

#include <string>
#include <vector>

#include "app/platform.h"
#include "app/stored_number.h"

namespace lignara {

/// The families of sawn lumber, each with an index file of its own. The values are those of
/// `DataBaseFamily`.
enum class WoodFamily { None = 0, Western = 1, SouthernPine = 2, MachineRated = 3 };

/// The caption of a family's button, and its index file in the data directory.
struct WoodFamilyEntry {
  WoodFamily family;
  const char* caption;
  const char* indexFile;
};

inline constexpr WoodFamilyEntry kWoodFamilies[] = {
    {WoodFamily::Western, "Western Woods", "WWTRK.CSV"},
    {WoodFamily::SouthernPine, "Southern Pine", "SPTRK.CSV"},
    {WoodFamily::MachineRated, "Machine Rated", "MSRTRK.CSV"},
};

/// One grade of a species file: base design values in psi.
struct BaseStressRecord {
  std::string Grade;
  Float64 Fb;      ///< bending
  Float64 Ft;      ///< tension
  Float64 Fv;      ///< horizontal shear
  Float64 FcPerp;  ///< compression across the grain
  Float64 FcPar;   ///< compression along the grain
  Float64 E;       ///< modulus of elasticity
};

/// The content of an index file. Row 0 of both lists is blank, so that row i is row i of the list
/// on the screen.
struct SpeciesIndex {
  std::vector<std::string> names;  ///< as the list shows them
  std::vector<std::string> files;  ///< species files, plain names
};

/// The content of a species file. Row 0 of the grades is blank.
struct SpeciesFile {
  std::string woodTypes;  ///< the lines of wood types, joined with ", "
  std::vector<BaseStressRecord> grades;
};

/// Reads an index file: a count, then a name and a file name each. A file that is missing or short
/// is shown in a box; a count that cannot be read is 0, rows that cannot be read are blank.
SpeciesIndex ReadSpeciesIndex(const std::string& dataDirectory, const std::string& fileName,
                              Platform& platform);

/// Reads a species file: a count of wood types and the types, a count of grades and seven fields
/// each. Failures as in an index file; numbers that cannot be read are 0.
SpeciesFile ReadSpeciesFile(const std::string& dataDirectory, const std::string& fileName,
                            Platform& platform);

}  // namespace lignara
