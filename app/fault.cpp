#include "app/fault.h"

#include <string>

#include "app/platform.h"

namespace lignara {
namespace {

Platform* g_platform = nullptr;

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
  if (fault == Fault::None || g_platform == nullptr) return;
  g_platform->ShowMessage({std::string(FaultText(fault))});
}

FaultScope::FaultScope(Platform& platform) : outer_(g_platform) { g_platform = &platform; }

FaultScope::~FaultScope() { g_platform = outer_; }

SilentFaults::SilentFaults() : outer_(g_platform) { g_platform = nullptr; }

SilentFaults::~SilentFaults() { g_platform = outer_; }

}  // namespace lignara
