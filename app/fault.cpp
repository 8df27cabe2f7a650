#include "app/fault.h"

#include <string>

#include "app/platform.h"

namespace lignara {
namespace {

Platform* g_platform = nullptr;
unsigned* g_met = nullptr;

/// Notes a fault for the innermost scope that asks; true where it was noted before.
bool WasMet(Fault fault) {
  if (g_met == nullptr) return false;
  const unsigned bit = 1u << static_cast<unsigned>(fault);
  const bool before = (*g_met & bit) != 0;
  *g_met |= bit;
  return before;
}

}  // namespace

std::string_view FaultText(Fault fault) {
  switch (fault) {
    case Fault::None:
      return "";
    case Fault::DivisionByZero:
      return "Division by zero";
    case Fault::Overflow:
      return "The number is too large";
    case Fault::NoRealResult:
      return "Square root of a negative number";
    case Fault::IndexOutOfBounds:
      return "There is no element of that number";
  }
  return "";
}

void ReportFault(Fault fault) {
  if (fault == Fault::None || WasMet(fault) || g_platform == nullptr) return;
  g_platform->ShowMessage({std::string(FaultText(fault))});
}

FaultScope::FaultScope(Platform& platform) : outer_(g_platform) { g_platform = &platform; }

FaultScope::~FaultScope() { g_platform = outer_; }

FaultsOnce::FaultsOnce() : outer_(g_met) { g_met = &met_; }

FaultsOnce::~FaultsOnce() { g_met = outer_; }

SilentFaults::SilentFaults() : outerMet_(g_met), outer_(g_platform) {
  g_met = &met_;
  g_platform = nullptr;
}

SilentFaults::~SilentFaults() {
  g_met = outerMet_;
  g_platform = outer_;
}

}  // namespace lignara
