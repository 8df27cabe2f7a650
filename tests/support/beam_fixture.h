#pragma once

#include <map>
#include <string>
#include <vector>

#include "beam/beam_window.h"
#include "tests/support/recording_platform.h"

namespace lignara {

/// A single-span window as the launcher opens it: 10 ft, two pins, N = 500, Q = 100, E = 1,000,000
/// psi, I = 1 in^4. Loads are entered as a user does.
class TestBeam {
 public:
  TestBeam();

  void Supports(SupportType left, SupportType right);
  void Length(const std::string& text);
  void Constants(const std::string& modulus, const std::string& inertia);
  /// Fills the fields of a kind, by their captions' first letters: {{"A", "5"}, {"P", "1000"}}.
  void Fill(LoadKind kind, const std::map<std::string, std::string>& fields);
  /// Fill and "Add New".
  void Add(LoadKind kind, const std::map<std::string, std::string>& fields);
  /// Selects a load by its number, fills, and presses "Edit".
  void Edit(int load, LoadKind kind, const std::map<std::string, std::string>& fields);
  void Point(const std::string& A, const std::string& P);
  void Uniform(const std::string& A, const std::string& B, const std::string& W);
  void Moment(const std::string& A, const std::string& M);
  void Axial(const std::string& P);
  void Run() { RunBeam(window, session, platform); }

  /// The texts of the boxes since the last call.
  std::vector<std::string> Boxes() { return platform.TakeTexts(); }

  double Shear(int station) const { return window.results.shearTotal[station].value(); }
  double BendingMoment(int station) const { return window.results.momentTotal[station].value(); }
  double Deflection(int station) const { return window.results.deflTotal[station].value(); }
  int Loads() const { return window.beam.loadCount.value(); }

  SessionState session;
  RecordingPlatform platform;
  BeamWindow window;
};

using Texts = std::vector<std::string>;

}  // namespace lignara
