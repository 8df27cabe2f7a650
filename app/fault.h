#pragma once

#include <string_view>

namespace lignara {

class Platform;

/// What can go wrong in one statement of a calculation.
enum class Fault { None, DivisionByZero, Overflow, NoRealResult, IndexOutOfBounds };

/// The text that the user sees in the box for a fault; empty for Fault::None.
std::string_view FaultText(Fault fault);

/// Shows the fault's text in a plain box of the innermost FaultScope. Fault::None shows nothing.
void ReportFault(Fault fault);

/// While one stands, arithmetic and index faults of stored numbers are shown by its platform.
///
/// Each command that calculates sets one up. Scopes nest; the innermost is in force. Without any
/// scope a fault still stores nothing, but nobody is told.
class FaultScope {
 public:
  explicit FaultScope(Platform& platform);
  ~FaultScope();
  FaultScope(const FaultScope&) = delete;
  FaultScope& operator=(const FaultScope&) = delete;

 private:
  Platform* outer_;
};

/// While one stands, each fault is shown once only: for a calculation that would meet the same one
/// at every station.
class FaultsOnce {
 public:
  FaultsOnce();
  ~FaultsOnce();
  FaultsOnce(const FaultsOnce&) = delete;
  FaultsOnce& operator=(const FaultsOnce&) = delete;

 private:
  unsigned met_ = 0;  // a bit for each fault
  unsigned* outer_;
};

/// While one stands, faults are not shown: for work that the user did not ask for, and that has
/// shown its faults before, or for a routine that tells of any fault in words of its own.
class SilentFaults {
 public:
  SilentFaults();
  ~SilentFaults();
  SilentFaults(const SilentFaults&) = delete;
  SilentFaults& operator=(const SilentFaults&) = delete;

  /// A fault was met since.
  bool Met() const { return met_ != 0; }

 private:
  unsigned met_ = 0;
  unsigned* outerMet_;
  Platform* outer_;
};

}  // namespace lignara
