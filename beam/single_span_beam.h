#pragma once

#include "app/bounded_array.h"
#include "app/session_state.h"
#include "app/stored_number.h"

namespace lignara {

enum class SupportType : std::int16_t { Fixed = 1, Pinned = 2, Free = 3 };

/// How the two supports hold the beam.
enum class SupportClass : std::int16_t {
  SimpleSpan = 1,
  ProppedFixedLeft = 2,
  ProppedFixedRight = 3,
  UnstableFreeRight = 4,
  UnstableFreeLeft = 5,
  CantileverFromLeft = 6,
  CantileverFromRight = 7,
  FixedBothEnds = 8
};

enum class LoadKind : std::int16_t {
  PointLoad = 1,
  LevelUniform = 2,
  SlopedLeftZero = 3,   ///< 0 at A, W at A + B
  SlopedRightZero = 4,  ///< W at A, 0 at A + B
  PointMoment = 5,
  LeftDisplacement = 6,
  RightDisplacement = 7,
  AxialLoad = 8
};
inline constexpr int kLoadKinds = 8;

/// The most loads that a beam takes.
inline constexpr int kMostLoads = 101;

/// One prismatic beam on two supports, and its loads. It lives as long as its window. The modulus
/// of elasticity is not here: the data bases share it (`youngsModulus`).
///
/// Loads count from 1. Downward loads, tension and upward displacements are positive.
struct SingleSpanBeam {
  Float32 spanLength = 10.0;  ///< L, ft
  Float32 momentOfInertia;    ///< I of the last run, in^4
  Float32 unbracedLength;     ///< of the last run or check, ft
  Int16 loadAxis;             ///< 0 strong axis, 1 weak axis
  SupportType leftSupport = SupportType::Pinned;
  SupportType rightSupport = SupportType::Pinned;
  SupportClass supportClass = SupportClass::SimpleSpan;
  Int16 loadCount;
  LoadKind selectedKind = LoadKind::PointLoad;
  Float32 accuracySteps = 500.0;    ///< N: stations along the span less one
  Float32 equivalentLoads = 100.0;  ///< Q: point loads for each distributed load
  Float32 axialLoad;                ///< of the last run, lbs
  Int16 hasRun;                     ///< -1 once a run was started
  Int16 abortRun;                   ///< -1 where a step stopped the run or the check

  Int16Array loadKind{kMostLoads};
  Float32Array loadA{kMostLoads};      ///< from the left support, ft
  Float32Array loadB{kMostLoads};      ///< length of a distributed load, ft
  Float32Array loadP{kMostLoads};      ///< lbs
  Float32Array loadAxial{kMostLoads};  ///< lbs
  Float32Array loadM{kMostLoads};      ///< ft-lbs
  Float32Array loadW{kMostLoads};      ///< lbs/ft
  Float32Array loadDisp{kMostLoads};   ///< in

  LoadKind KindOf(int load) const { return static_cast<LoadKind>(loadKind[load].value()); }
};

/// E in psi. The last choice of a member sets it, and each run reads it from its field.
inline Float32& youngsModulus(SessionState& session) { return session.Member.ModulusE; }
inline const Float32& youngsModulus(const SessionState& session) { return session.Member.ModulusE; }

}  // namespace lignara
