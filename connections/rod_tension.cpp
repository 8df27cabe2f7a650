#include "connections/rod_tension.h"

namespace lignara {
namespace {

constexpr double kPoundsPerKip = 1000;

}  // namespace

const char* TensionRefusal(const Number& boltStress, const Number& woodStress) {
  if (boltStress > 0 && woodStress > 0) return nullptr;
  return "WOOD AND STEEL ALLOWABLE STRESS IN TENSION SECTION MUST BE GREATER THAN 0";
}

RodTension TensionOf(const RodSize& rod, const Number& boltStress, const Number& woodStress) {
  RodTension tension;
  tension.load = rod.area * boltStress * kPoundsPerKip;
  tension.plateSide = Sqrt(tension.load / woodStress);
  return tension;
}

}  // namespace lignara
