#pragma once

#include <string>
#include <vector>

#include "truss/active_model.h"

namespace lignara {

// Vertical deflection of the top nodes, in, downward positive, by unit loads: for each node the
// truss is analysed anew under 1 lb on that node alone, and the products of actual and unit force
// of every member are summed over the stiffness of its group. The length of the centre vertical
// counts as the height of the truss, whatever the type.
//
// Each routine fills DeflL, DeflR and DeflT and then `rows`, the list of the panel "Deflections".
// Where an area or a modulus is not above 0 it shows "AREA OR MOD. PROP. NOT SELECTED, NO DEF. WILL
// BE CALCULATED", fails the run and leaves the list as it was. Reactions, signs and components are
// those of the last unit load afterwards; loads and axial loads are brought back.

/// PRATT1, FINK, ENGLISH, KINGPOST, SCI.
void DEFLECTIONS_PEAKED(TrussJob& job, std::vector<std::string>& rows);
/// PRATT2, HOWE. The list starts with element 0, which is empty, and ends before the last node.
void DEFLECTIONS_FLAT(TrussJob& job, std::vector<std::string>& rows);
/// WARREN. The list counts in panels and shows every second element, the nodes are numbered one by
/// one; so it is empty from the middle on.
void DEFLECTIONS_WARREN(TrussJob& job, std::vector<std::string>& rows);

/// Moves loads and axial loads to the save fields and leaves zeros; elements 0..N.
void SAVE_RESULTS(TrussJob& job);
/// Moves them back and leaves zeros in the save fields.
void RESTORE_RESULTS(TrussJob& job);

}  // namespace lignara
