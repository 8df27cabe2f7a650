#include "beam/load_kinds.h"

#include <algorithm>

#include "beam/support_class.h"

namespace lignara {
namespace {

using Beam = SingleSpanBeam;

const Float32& In(const LoadInput& input, LoadField field) {
  return input[static_cast<std::size_t>(field)];
}

// The checks. Lengths are compared as they are stored, so that 0.7 and 9.3 make 10.

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

// What adding does besides.

void KeepRightLength(Beam& beam, int load) {
  beam.loadB[load] = beam.spanLength - beam.loadA[load];
}

/// A moment acts as a couple, which needs room on both sides.
void PullMomentFromEnds(Beam& beam, int load) {
  const Number room = 4 * beam.spanLength / beam.accuracySteps;
  const Number lastPlace = (beam.accuracySteps - 4) / beam.accuracySteps * beam.spanLength;
  if (room > beam.loadA[load]) beam.loadA[load] = room;
  if (lastPlace < beam.loadA[load]) beam.loadA[load] = beam.spanLength - room;
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

const std::vector<LoadCheck> kPointAdd = {
    {StartsOffBeam, kOffSpan}, {StandsOnSupport, kOnSupport}, {IsZero<LoadField::P>, kNoLoad}};
const std::vector<LoadCheck> kPointEdit = {
    {StandsOnSupport, kOnSupport}, {StartsOffBeam, kOffSpan}, {IsZero<LoadField::P>, kNoLoad}};
const std::vector<LoadCheck> kUniformAdd = {
    {StartsOffBeam, kOffBeam}, {EndsOffBeam, kOffBeam}, {IsZero<LoadField::W>, kNoLoad}};
const std::vector<LoadCheck> kUniformEdit = {
    {StartsOffBeam, kOffBeam}, {IsLongerThanBeam, kOffBeam}, {IsZero<LoadField::W>, kNoLoad}};
const std::vector<LoadCheck> kMomentAdd = {{StartsOffBeam, kMomentOffSpan},
                                           {IsZero<LoadField::M>, kNoLoad}};
const std::vector<LoadCheck> kMomentEdit = {{StartsOffBeam, kOffSpan},
                                            {IsZero<LoadField::M>, kNoLoad}};
const std::vector<LoadCheck> kDisplacementAdd = {
    {IsZero<LoadField::Disp>, kNoDisplacement}, {HasTwoPins, kTwoPins}, {HasFreeEnd, kFreeEnd}};
const std::vector<LoadCheck> kDisplacementEdit = {{IsZero<LoadField::Disp>, kNoDisplacement}};
const std::vector<LoadCheck> kAxialAdd = {{HasAxialLoad, kOneAxialLoad},
                                          {IsZero<LoadField::P>, kNoAxialLoad}};
const std::vector<LoadCheck> kAxialEdit = {{IsZero<LoadField::P>, kNoAxialLoad}};

const std::vector<LoadValue> kPointValues = {{LoadField::A, &Beam::loadA},
                                             {LoadField::P, &Beam::loadP}};
const std::vector<LoadValue> kUniformValues = {
    {LoadField::A, &Beam::loadA}, {LoadField::B, &Beam::loadB}, {LoadField::W, &Beam::loadW}};
const std::vector<LoadValue> kMomentValues = {{LoadField::A, &Beam::loadA},
                                              {LoadField::M, &Beam::loadM}};
const std::vector<LoadValue> kDisplacementValues = {{LoadField::Disp, &Beam::loadDisp}};
const std::vector<LoadValue> kAxialValues = {{LoadField::P, &Beam::loadAxial}};

constexpr const char* kLocation = "Location from left = ";

std::vector<LoadReportLine> UniformLines(const char* intensity) {
  return {{intensity, &Beam::loadW, " lbs/ft"},
          {"Start location from left = ", &Beam::loadA, ""},
          {"Length of applied uniform load = ", &Beam::loadB, "ft"}};
}

const std::array<LoadKindInfo, kLoadKinds> kLoadKindTable = {{
    {
        .kind = LoadKind::PointLoad,
        .caption = "Point Load",
        .listWord = "Point Load",
        .values = kPointValues,
        .addChecks = kPointAdd,
        .editChecks = kPointEdit,
        .afterAdd = KeepRightLength,
        .reportWord = "Load is point load",
        .reportLines = {{"P = ", &Beam::loadP, " lbs"}, {kLocation, &Beam::loadA, ""}},
    },
    {
        .kind = LoadKind::LevelUniform,
        .caption = "Level Uniform",
        .listWord = "Unif. Level",
        .values = kUniformValues,
        .addChecks = kUniformAdd,
        .editChecks = kUniformEdit,
        .afterAdd = nullptr,
        .reportWord = "Load is level uniform",
        .reportLines = UniformLines("w = "),
    },
    {
        .kind = LoadKind::SlopedLeftZero,
        .caption = "Slpd. Unif. L=0",
        .listWord = "Unif. Sl. L=0",
        .values = kUniformValues,
        .addChecks = kUniformAdd,
        .editChecks = kUniformEdit,
        .afterAdd = nullptr,
        .reportWord = "Load is sloped uniform, left side = 0 lbs/ft",
        .reportLines = UniformLines("Max w = "),
    },
    {
        .kind = LoadKind::SlopedRightZero,
        .caption = "Slpd. Unif. R=0",
        .listWord = "Unif. Sl. R=0",
        .values = kUniformValues,
        .addChecks = kUniformAdd,
        .editChecks = kUniformEdit,
        .afterAdd = nullptr,
        .reportWord = "Load is sloped uniform, right side = 0 lbs/ft",
        .reportLines = UniformLines("Max w = "),
    },
    {
        .kind = LoadKind::PointMoment,
        .caption = "Point Moment",
        .listWord = "Point Moment",
        .values = kMomentValues,
        .addChecks = kMomentAdd,
        .editChecks = kMomentEdit,
        .afterAdd = PullMomentFromEnds,
        .reportWord = "Load is point moment",
        .reportLines = {{"M = ", &Beam::loadM, " ft-lbs"}, {kLocation, &Beam::loadA, ""}},
    },
    {
        .kind = LoadKind::LeftDisplacement,
        .caption = "Disp. Sup. Left",
        .listWord = "Left Sup. Disp.",
        .values = kDisplacementValues,
        .addChecks = kDisplacementAdd,
        .editChecks = kDisplacementEdit,
        .afterAdd = nullptr,
        .reportWord = "Load is left support displacement",
        .reportLines = {{"Left support displacement = ", &Beam::loadDisp, " in"}},
    },
    {
        .kind = LoadKind::RightDisplacement,
        .caption = "Disp. Sup. Right",
        .listWord = "Right Sup. Disp.",
        .values = kDisplacementValues,
        .addChecks = kDisplacementAdd,
        .editChecks = kDisplacementEdit,
        .afterAdd = nullptr,
        .reportWord = "Load is right support displacement",
        .reportLines = {{"Right support displacement = ", &Beam::loadDisp, " in"}},
    },
    {
        .kind = LoadKind::AxialLoad,
        .caption = "Axial Load",
        .listWord = "Axial Load",
        .values = kAxialValues,
        .addChecks = kAxialAdd,
        .editChecks = kAxialEdit,
        .afterAdd = nullptr,
        .reportWord = "Load is Axial",
        .reportLines = {{"Axial Load = ", &Beam::loadAxial, " lbs"}},
    },
}};

}  // namespace

bool LoadKindInfo::Shows(LoadField field) const {
  return std::any_of(values.begin(), values.end(),
                     [field](const LoadValue& value) { return value.field == field; });
}

const std::array<LoadKindInfo, kLoadKinds>& LoadKindTable() { return kLoadKindTable; }

const LoadKindInfo& LoadKindOf(LoadKind kind) {
  return kLoadKindTable[static_cast<std::size_t>(kind) - 1];
}

bool IsDistributed(LoadKind kind) { return LoadKindOf(kind).Shows(LoadField::W); }

bool HasLoadOf(const SingleSpanBeam& beam, LoadKind kind) {
  for (int load = 1; load <= beam.loadCount.value(); ++load) {
    if (beam.KindOf(load) == kind) return true;
  }
  return false;
}

}  // namespace lignara
