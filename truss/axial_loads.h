#pragma once

#include "truss/active_model.h"

namespace lignara {

// Member forces, lbs, as magnitudes. The pitched types use the method of sections with the moment
// centre at the heel: a cut through a web gives its force directly, and the chords follow by
// subtracting what each web takes out. The types with parallel chords walk the joints from the end
// to midspan. A detected error is shown, fails the run and ends the routine, not the chain.

/// The heel joint of all pitched types but SCI. "TAN SLOPE IS 0!" without a slope.
void END_PANEL_LOADS(TrussJob& job);
/// Diagonals of PRATT1 and ENGLISH. "MOMENT ARM (MA) IS 0" without an arm.
void DIAG_LOADS(TrussJob& job);

void VERT_LOADS(TrussJob& job);    ///< PRATT1
void TOP_LOADS(TrussJob& job);     ///< PRATT1
void BOTTOM_LOADS(TrussJob& job);  ///< PRATT1

void VERT_LOADS_ENGLISH(TrussJob& job);
void TOP_LOADS_ENGLISH(TrussJob& job);
void BOTTOM_LOADS_ENGLISH(TrussJob& job);

/// "MOMENT ARM (MA) IS 0" without an arm. Where the slope is steep or panels are many a
/// diagonal can stand upright. Rounded numbers may then leave the root of a negative number for its
/// run, and the run of the diagonal before serves; or a run of 0, and its slope stays 0. The fault
/// is shown either way.
void DIAG_LOADS_FINK(TrussJob& job);
/// "MOMENT ARM (ML) IS 0" or "ML(N)=0,ERROR" without an arm.
void VERT_LOADS_FINK(TrussJob& job);
void TOP_LOADS_FINK(TrussJob& job);
void BOTTOM_LOADS_FINK(TrussJob& job);

void TOP_LOADS_KINGPOST(TrussJob& job);
/// The post shows no load: that of the peak goes straight into the rafters.
void VERT_LOADS_KINGPOST(TrussJob& job);

/// "TEMP2 OR TOPARM=0, ERROR" without an arm, "COS(AB)=0,ERROR" with an upright bottom chord.
void SCI_LOADS(TrussJob& job);
/// "TAN(A)=0, ERROR" without a slope.
void PRATT2_LOADS(TrussJob& job);
/// "ERROR L=0" without a panel length, "TAN(A) IS 0, ERROR" without a slope.
void HOWE_LOADS(TrussJob& job);
/// Finds the signs too: the diagonals alternate, and a small shear can turn one around.
void WARREN_LOADS(TrussJob& job);

// The whole analysis of a type, from empty arrays to magnitudes.

void PRATT1_AXIAL(TrussJob& job);
void ENGLISH_AXIAL(TrussJob& job);
void FINK_AXIAL(TrussJob& job);
void KINGPOST_AXIAL(TrussJob& job);
void SCI_AXIAL(TrussJob& job);
void PRATT2_AXIAL(TrussJob& job);
void HOWE_AXIAL(TrussJob& job);
void WARREN_AXIAL(TrussJob& job);

/// One whole analysis: the chain of the type, the signs, the signed loads.
void AnalyseTruss(TrussJob& job);

}  // namespace lignara
