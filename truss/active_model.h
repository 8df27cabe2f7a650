#pragma once

#include <string>

#include "app/bounded_array.h"
#include "app/session_state.h"
#include "app/stored_number.h"

namespace lignara {

/// The right angle of all truss formulas, radians. Four decimals on purpose: printed results follow
/// from them.
inline constexpr double kRightAngle = 1.5708;

/// The truss at hand: one array an entity and member family, elements counted from the end of the
/// half towards the middle. Element 0 is empty unless said otherwise. NS is the number of panels.
/// L and R stand for the left and right half; T top chord, C bottom chord, V vertical, D diagonal.
struct ActiveModel {
  // Member lengths, ft; bounds 0..NS.
  Float32Array LEN_TL, LEN_TR, LEN_CL, LEN_CR, LEN_VL, LEN_VR, LEN_DL, LEN_DR;
  Float32Array LEN_CV;  ///< element 1: the centre vertical, ft; bounds 0..2

  // Axial loads, lbs, tension positive once the signs are applied; bounds 0..NS.
  Float32Array AX_TL, AX_TR, AX_CL, AX_CR, AX_VL, AX_VR, AX_DL, AX_DR;
  Float32Array AX_CV;  ///< element 1: the centre vertical; bounds 0..2

  // -1 compression, 1 tension, 0 no member; bounds 0..NS.
  Int16Array SGN_TL, SGN_TR, SGN_CL, SGN_CR, SGN_VL, SGN_VR, SGN_DL, SGN_DR;
  Int16Array SGN_CV;  ///< element 1: the centre vertical; bounds 0..2

  // Horizontal and vertical components of top chord and diagonals, lbs; bounds 0..NS.
  Float32Array TLH, TRH, TLV, TRV, DLH, DRH, DLV, DRV;

  Float32Array ARM_L, ARM_R;          ///< lever arm along the top chord, ft; bounds 0..NS
  Float32Array ARM_D;                 ///< moment arm of a diagonal about the heel, ft; bounds 0..NS
  Float32Array ANG_D;                 ///< slope of a diagonal, rad; bounds 0..NS
  Float32Array ANG_T, ANG_V;          ///< work angles of the web, rad; bounds 0..NS
  Float32Array FinkWebVL, FinkWebVR;  ///< vertical part of a Fink web, lbs; bounds 0..NS
  Float32Array FinkWebHL, FinkWebHR;  ///< horizontal part of a Fink web, lbs; bounds 0..NS

  // Loads on the top nodes, lbs; bounds 0..NS/2. They live as long as the window.
  Float32Array PL, PR;
  Float32 PT;  ///< load on the peak or the middle top node, lbs

  Float32 ANG_A;   ///< slope of the top chord, or of the diagonals between parallel chords, rad
  Float32 ANG_AC;  ///< right angle less ANG_A, rad
  Float32 ANG_W;   ///< Fink: right angle less ANG_AC, rad
  Float32 ANG_AB;  ///< scissors: slope of the raised bottom chord, rad

  // Scissors truss, set when it is drawn, ft.
  Float32 SCI_BOTTOM;              ///< half bottom chord
  Float32 SCI_ARM;                 ///< arm of the web about the heel
  Float32 SCI_TOP1;                ///< lower rafter member
  Float32 SCI_TOP2;                ///< upper rafter member
  Float32 SCI_RISE;                ///< height of the top node
  Float32 SCI_RUN;                 ///< distance of the top node from the heel
  Float32 SCI_WEB;                 ///< web
  Float32 SCI_TOPARM;              ///< arm of the upper rafter
  Float32 SCI_A5, SCI_A7, SCI_A8;  ///< work angles, rad

  Float32 TOTAL_LOAD;        ///< sum of the node loads, lbs
  Float32 NODE_RL, NODE_RR;  ///< end reactions, lbs

  std::string WarrenChord;  ///< "TOP" or "BOTTOM": the chord of a Warren's midspan node

  Int16 RunState;   ///< 1 when the last run finished without an error
  Int16 ErrorFlag;  ///< 1 after any calculation error of the run

  // The actual run, kept while unit loads borrow the arrays; bounds 0..NS.
  Float32Array SaveVL, SaveVR, SaveTL, SaveTR, SaveCL, SaveCR, SaveDL, SaveDR;
  Float32Array SaveCV;  ///< bounds 0..2
  Float32Array SavePL, SavePR;
  Float32 SavePT;

  Float32Array DeflL, DeflR;  ///< deflection of the top nodes, in, down; bounds 0..NS/2
  Float32Array DeflT;         ///< element 1: of the peak, in; bounds 0..1

  // Stress check of the member last checked.
  Float32 MemberFt, MemberFa;         ///< psi
  Float32 MinBracingLength;           ///< ft
  Float32 FceAtBracing, FceAtLength;  ///< psi
};

/// The number of panels in a half of the session's truss; a whole number (ties to even). 0 where it
/// does not fit 16 bits, which is an overflow fault.
int HalfSpans(const SessionState& session);

struct TrussTypeInfo;

/// What every calculation step of a truss works on, for the length of one command.
class TrussJob {
 public:
  TrussJob(ActiveModel& model, const SessionState& session, Platform& platform);

  /// Number of panels in a half, counted once for the whole job.
  int HalfSpans() const { return halfSpans_; }

  ActiveModel& model;
  const SessionState& session;
  Platform& platform;
  const TrussTypeInfo& type;  ///< of the session's truss

 private:
  int halfSpans_;
};

/// Makes all arrays of a run anew, filled with zero; the node loads stay.
void TRUSS_ALLOC(TrussJob& job);

/// Shows a detected error and marks the run as failed; the step that found it then ends.
void FailRun(TrussJob& job, const std::string& text, const std::string& title = "");

}  // namespace lignara
