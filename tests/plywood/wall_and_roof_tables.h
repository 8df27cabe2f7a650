#pragma once

#include "tests/plywood/table.h"

namespace lignara::published {

// clang-format off

/// Captions of the list and the results, and the entries, of each application.
struct WallListCase {
  const char* list;
  Texts entries;
  Texts results;
};
inline const WallListCase kWallLists[] = {
    {"Ply APA Rating", {"12/0", "16/0", "20/0", "Wall-16 oc", "24/0", "24/16", "32/16", "Wall-24 oc"}, {"Nail Size", "Stud Spacing(in)"}},
    {"Stud Spacing (in)", {"16", "24"}, {"Min. Panel Thk. (in)", "Panel APA Rating"}},
    {"Panel Thk. (in)", {"1/4", "5/16", "11/32-1/2", "19/32-3/4", "Texture 1-11"}, {"Stud Spacing (in)", "Nail Size"}},
};

/// Application, orientation, row of the list; the two results.
struct WallCase {
  int application, orientation, row;
  Texts results;
};
inline const WallCase kWallCases[] = {
    {0, 0, 0, {"6D for thk.<=1/2 or 8D for thk. >1/2", "16"}},
    {0, 0, 1, {"6D for thk.<=1/2 or 8D for thk. >1/2", "16"}},
    {0, 0, 2, {"6D for thk.<=1/2 or 8D for thk. >1/2", "16"}},
    {0, 0, 3, {"6D for thk.<=1/2 or 8D for thk. >1/2", "16"}},
    {0, 0, 4, {"6D for thk.<=1/2 or 8D for thk. >1/2", "24"}},
    {0, 0, 5, {"6D for thk.<=1/2 or 8D for thk. >1/2", "24"}},
    {0, 0, 6, {"6D for thk.<=1/2 or 8D for thk. >1/2", "24"}},
    {0, 0, 7, {"6D for thk.<=1/2 or 8D for thk. >1/2", "24"}},
    {1, 1, 0, {"3/8 OR 5/16", "24/0 or Wall-24 oc"}},
    {1, 0, 0, {"15/32", "32/16"}},
    {1, 1, 1, {"7/16", "24/0"}},
    {1, 0, 1, {"19/32", "40/20"}},
    {2, 0, 0, {"16", "4D"}},
    {2, 0, 1, {"16", "6D"}},
    {2, 0, 2, {"24", "6D"}},
    {2, 0, 3, {"24", "8D"}},
    {2, 0, 4, {"24", "8D"}},
};

/// Grade 1, directly to frame: a column a thickness, a row a nail spacing.
inline const Table kShear1Direct = {
    {"5/16", "3/8", "7/16", "15/32", "15/32"},
    {{"6", {"200", "230", "255", "280", "340"}},
     {"4", {"300", "260", "395", "430", "510"}},
     {"3", {"390", "460", "505", "550", "665"}},
     {"2", {"510", "610", "670", "730", "870"}}}};

/// Grade 1, over gypsum: a column a thickness, a row a nail spacing.
inline const Table kShear1Gypsum = {
    {"5/16", "3/8", "7/16", "15/32", "15/32"},
    {{"6", {"200", "280", "NA", "NA", "NA"}},
     {"4", {"300", "430", "NA", "NA", "NA"}},
     {"3", {"390", "550", "NA", "NA", "NA"}},
     {"2", {"510", "730", "NA", "NA", "NA"}}}};

/// Grade 2, directly to frame: a column a thickness, a row a nail spacing.
inline const Table kShear2Direct = {
    {"5/16 or 1/4", "3/8", "3/8", "7/16", "15/32", "15/32", "19/32"},
    {{"6", {"180", "200", "220", "240", "260", "310", "340"}},
     {"4", {"270", "300", "320", "350", "380", "460", "510"}},
     {"3", {"350", "390", "410", "450", "490", "600", "665"}},
     {"2", {"450", "510", "530", "585", "640", "770", "870"}}}};

/// Grade 2, over gypsum: a column a thickness, a row a nail spacing.
inline const Table kShear2Gypsum = {
    {"5/16 or 1/4", "3/8", "3/8", "7/16", "15/32", "15/32", "19/32"},
    {{"6", {"180", "200", "260", "NA", "NA", "NA", "NA"}},
     {"4", {"270", "300", "380", "NA", "NA", "NA", "NA"}},
     {"3", {"350", "390", "490", "NA", "NA", "NA", "NA"}},
     {"2", {"450", "510", "640", "NA", "NA", "NA", "NA"}}}};

/// Grade 3, directly to frame: a column a thickness, a row a nail spacing.
inline const Table kShear3Direct = {
    {"5/16", "3/8"},
    {{"6", {"140", "160"}},
     {"4", {"210", "240"}},
     {"3", {"275", "310"}},
     {"2", {"360", "410"}}}};

/// Grade 3, over gypsum: a column a thickness, a row a nail spacing.
inline const Table kShear3Gypsum = {
    {"5/16", "3/8"},
    {{"6", {"140", "160"}},
     {"4", {"210", "240"}},
     {"3", {"275", "310"}},
     {"2", {"360", "410"}}}};

/// Grade, base, row of the thickness; penetration, nail.
struct ShearNailCase {
  int grade, base, row;
  const char* penetration;
  const char* nail;
};
inline constexpr ShearNailCase kShearNails[] = {
    {0, 0, 0, "1-1/4", "6D"},
    {0, 0, 1, "1-1/2", "8D"},
    {0, 0, 2, "1-1/2", "8D"},
    {0, 0, 3, "1-1/2", "8D"},
    {0, 0, 4, "1-5/8", "10D"},
    {0, 1, 0, "1-1/4", "8D"},
    {0, 1, 1, "1-1/2", "10D"},
    {0, 1, 2, "1-1/2", "10D"},
    {0, 1, 3, "1-1/2", "10D"},
    {0, 1, 4, "NA", "NA"},
    {1, 0, 0, "1-1/4", "6D"},
    {1, 0, 1, "1-1/4", "6D"},
    {1, 0, 2, "1-1/2", "8D"},
    {1, 0, 3, "1-1/2", "8D"},
    {1, 0, 4, "1-1/2", "8D"},
    {1, 0, 5, "1-5/8", "10D"},
    {1, 0, 6, "1-5/8", "10D"},
    {1, 1, 0, "1-1/4", "8D"},
    {1, 1, 1, "1-1/4", "8D"},
    {1, 1, 2, "1-1/2", "10D"},
    {1, 1, 3, "1-1/2", "10D"},
    {1, 1, 4, "1-1/2", "10D"},
    {1, 1, 5, "NA", "NA"},
    {1, 1, 6, "NA", "NA"},
    {2, 0, 0, "1-1/4", "6D"},
    {2, 0, 1, "1-1/2", "8D"},
    {2, 1, 0, "1-1/4", "8D"},
    {2, 1, 1, "1-1/2", "10D"},
};

/// Grade caption and ratings of each orientation and grade.
struct RoofListCase {
  int orientation, grade;
  const char* caption;
  Texts ratings;
};
inline const RoofListCase kRoofLists[] = {
    {0, 0, "APA Rated Sheathing", {"12/0", "16/0", "20/0", "24/0", "24/16", "32/16", "40/20", "48/24"}},
    {0, 1, "APA Rated Sturd-I-Floor", {"16 oc", "20 oc", "24 oc", "32 oc", "48 oc"}},
    {1, 0, "APA Structural 1 Sheathing", {"24/0, 24/16", "32/16", "32/16", "40/20", "48/24"}},
    {1, 1, "APA Rated Sheathing", {"24/20, 24/16", "32/16", "24/0, 32/16", "40/20", "32/16, 40/20", "40/20, 48/24"}},
};

/// Across the supports, grade 1: a column a rating, a row a support spacing.
inline const Table kRoofLoads1 = {
    {"12/0", "16/0", "20/0", "24/0", "24/16", "32/16", "40/20", "48/24"},
    {{"12", {"30", "70", "120", "170", "190", "220", "220", "220"}},
     {"16", {"0", "30", "50", "100", "100", "155", "200", "210"}},
     {"20", {"0", "0", "30", "60", "65", "120", "165", "210"}},
     {"24", {"0", "0", "0", "30", "40", "70", "125", "165"}},
     {"32", {"0", "0", "0", "0", "0", "30", "60", "95"}},
     {"40", {"0", "0", "0", "0", "0", "0", "30", "45"}},
     {"48", {"0", "0", "0", "0", "0", "0", "0", "35"}},
     {"60", {"0", "0", "0", "0", "0", "0", "0", "0"}}}};

/// Grade 1: spans with and without edge support, thickness, nail; a column a rating.
inline const Texts kRoofSpansEdge1 = {"12", "16", "20", "24", "24", "32", "40", "48"};
inline const Texts kRoofSpansNoEdge1 = {"12", "16", "20", "20", "24", "28", "32", "36"};
inline const Texts kRoofThickness1 = {"5/16", "5/16", "5/16", "3/8", "7/16", "15/32", "19/32", "23/32"};
inline const Texts kRoofNails1 = {"6D", "6D", "6D", "6D", "8D", "8D", "8D", "8D"};

/// Across the supports, grade 2: a column a rating, a row a support spacing.
inline const Table kRoofLoads2 = {
    {"16 oc", "20 oc", "24 oc", "32 oc", "48 oc"},
    {{"12", {"185", "270", "270", "270", "290"}},
     {"16", {"100", "150", "240", "250", "290"}},
     {"20", {"65", "100", "160", "250", "290"}},
     {"24", {"40", "60", "100", "185", "290"}},
     {"32", {"0", "30", "50", "100", "160"}},
     {"40", {"0", "0", "30", "60", "100"}},
     {"48", {"0", "0", "25", "40", "65"}},
     {"60", {"0", "0", "0", "0", "40"}}}};

/// Grade 2: spans with and without edge support, thickness, nail; a column a rating.
inline const Texts kRoofSpansEdge2 = {"24", "32", "40", "48", "60"};
inline const Texts kRoofSpansNoEdge2 = {"24", "32", "36", "40", "48"};
inline const Texts kRoofThickness2 = {"19/32", "19/32", "23/32", "7/8", "1-3/32"};
inline const Texts kRoofNails2 = {"8D", "8D", "8D", "8D", "10D"};

/// Along the supports: grade, row of the rating; load, span, thickness, nail.
struct RoofAlongCase {
  int grade, row;
  Texts results;
};
inline const RoofAlongCase kRoofAlong[] = {
    {0, 0, {"20", "24", "7/16", "8D"}},
    {0, 1, {"35", "24", "15/32", "8D"}},
    {0, 2, {"40", "24", "1/2", "8D"}},
    {0, 3, {"70", "24", "19/32, 5/8", "8D"}},
    {0, 4, {"90", "24", "23/32, 3/4", "8D"}},
    {1, 0, {"40", "16", "7/16", "8D"}},
    {1, 1, {"20", "24", "15/32", "8D"}},
    {1, 2, {"25", "24", "1/2", "8D"}},
    {1, 3, {"40", "24", "19/32", "8D"}},
    {1, 4, {"45", "24", "5/8", "8D"}},
    {1, 5, {"60", "24", "23/32, 3/4", "8D"}},
};

// clang-format on

}  // namespace lignara::published
