#include "beam/load_checks.h"

#include "beam/load_kinds.h"
#include "beam/support_class.h"

namespace lignara {
namespace {

using Beam = SingleSpanBeam;

const Float32& In(const LoadInput& input, LoadField field) {
  return input[static_cast<std::size_t>(field)];
}

// Lengths are compared as they are stored, so that 0.7 and 9.3 make 10.

bool StartsOffBeam(const Beam& beam, const LoadInput& input) {
  const Float32& A = In(input, LoadField::A);
  return A < 0 || A > beam.spanLength;
}

bool EndsOffBeam(const Beam& beam, const LoadInput& input) {
  const Float32 end = In(input, LoadField::A) + In(input, LoadField::B);
  return end > beam.spanLength;
}

bool IsLongerThanBeam(const Beam& beam, const LoadInput& input) {
  return In(input, LoadField::B) > beam.spanLength;
}

bool StandsOnSupport(const Beam& beam, const LoadInput& input) {
  const Float32& A = In(input, LoadField::A);
  return (A == 0 && beam.leftSupport != SupportType::Free) ||
         (A == beam.spanLength && beam.rightSupport != SupportType::Free);
}

template <LoadField field>
bool IsZero(const Beam&, const LoadInput& input) {
  return In(input, field) == 0;
}

bool HasTwoPins(const Beam& beam, const LoadInput&) {
  return beam.supportClass == SupportClass::SimpleSpan;
}

bool HasFreeEnd(const Beam& beam, const LoadInput&) { return IsCantilever(beam.supportClass); }

bool HasAxialLoad(const Beam& beam, const LoadInput&) {
  return HasLoadOf(beam, LoadKind::AxialLoad);
}

constexpr const char* kOffSpan = "YOUR LOAD IS OFF OF THE SPAN !";
constexpr const char* kMomentOffSpan = "YOUR MOMENT IS OFF OF THE SPAN !";
constexpr const char* kOffBeam = "YOUR LOAD IS OFF THE BEAM !";
constexpr const char* kOnSupport = "YOUR LOAD IS ON A SUPPORT, NO ACTION !";
constexpr const char* kNoLoad = "YOUR LOAD IS 0 !";
constexpr const char* kNoAxialLoad = "YOUR LOAD IS 0!";
constexpr const char* kNoDisplacement = "YOUR DISPLACEMENT IS 0 !";
constexpr const char* kTwoPins = "BOTH SIDES ARE PINNED, CAN'T USE SUPPORT DISP!";
constexpr const char* kFreeEnd = "WITH ONE SIDE FREE, SUPPORT DISP. GIVES NO AFFECT!";
constexpr const char* kOneAxialLoad =
    "DELETE YOUR EXISTING AXIAL LOAD, PRIOR TO ADDING A NEW ONE OR EDIT YOUR EXISTING AXIAL LOAD. "
    "ONLY ONE AXIAL LOAD IS PERMITTED!";

}  // namespace

LoadChecks PointLoadChecks() {
  return {.add = {{StartsOffBeam, kOffSpan},
                  {StandsOnSupport, kOnSupport},
                  {IsZero<LoadField::P>, kNoLoad}},
          .edit = {{StandsOnSupport, kOnSupport},
                   {StartsOffBeam, kOffSpan},
                   {IsZero<LoadField::P>, kNoLoad}}};
}

LoadChecks UniformLoadChecks() {
  return {
      .add = {{StartsOffBeam, kOffBeam}, {EndsOffBeam, kOffBeam}, {IsZero<LoadField::W>, kNoLoad}},
      .edit = {{StartsOffBeam, kOffBeam},
               {IsLongerThanBeam, kOffBeam},
               {IsZero<LoadField::W>, kNoLoad}}};
}

LoadChecks PointMomentChecks() {
  return {.add = {{StartsOffBeam, kMomentOffSpan}, {IsZero<LoadField::M>, kNoLoad}},
          .edit = {{StartsOffBeam, kOffSpan}, {IsZero<LoadField::M>, kNoLoad}}};
}

LoadChecks DisplacementChecks() {
  return {.add = {{IsZero<LoadField::Disp>, kNoDisplacement},
                  {HasTwoPins, kTwoPins},
                  {HasFreeEnd, kFreeEnd}},
          .edit = {{IsZero<LoadField::Disp>, kNoDisplacement}}};
}

LoadChecks AxialLoadChecks() {
  return {.add = {{HasAxialLoad, kOneAxialLoad}, {IsZero<LoadField::P>, kNoAxialLoad}},
          .edit = {{IsZero<LoadField::P>, kNoAxialLoad}}};
}

bool Passes(const std::vector<LoadCheck>& checks, const SingleSpanBeam& beam,
            const LoadInput& input, Platform& platform) {
  for (const LoadCheck& check : checks) {
    if (!check.fails(beam, input)) continue;
    platform.ShowMessage({check.message});
    return false;
  }
  return true;
}

}  // namespace lignara
