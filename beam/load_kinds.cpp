#include "beam/load_kinds.h"

#include <algorithm>

#include "beam/point_moment.h"

namespace lignara {
namespace {

using Beam = SingleSpanBeam;

// What adding does besides.

void KeepRightLength(Beam& beam, int load) {
  beam.loadB[load] = beam.spanLength - beam.loadA[load];
}

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
        .checks = PointLoadChecks(),
        .afterAdd = KeepRightLength,
        .reportWord = "Load is point load",
        .reportLines = {{"P = ", &Beam::loadP, " lbs"}, {kLocation, &Beam::loadA, ""}},
    },
    {
        .kind = LoadKind::LevelUniform,
        .caption = "Level Uniform",
        .listWord = "Unif. Level",
        .values = kUniformValues,
        .checks = UniformLoadChecks(),
        .afterAdd = nullptr,
        .reportWord = "Load is level uniform",
        .reportLines = UniformLines("w = "),
    },
    {
        .kind = LoadKind::SlopedLeftZero,
        .caption = "Slpd. Unif. L=0",
        .listWord = "Unif. Sl. L=0",
        .values = kUniformValues,
        .checks = UniformLoadChecks(),
        .afterAdd = nullptr,
        .reportWord = "Load is sloped uniform, left side = 0 lbs/ft",
        .reportLines = UniformLines("Max w = "),
    },
    {
        .kind = LoadKind::SlopedRightZero,
        .caption = "Slpd. Unif. R=0",
        .listWord = "Unif. Sl. R=0",
        .values = kUniformValues,
        .checks = UniformLoadChecks(),
        .afterAdd = nullptr,
        .reportWord = "Load is sloped uniform, right side = 0 lbs/ft",
        .reportLines = UniformLines("Max w = "),
    },
    {
        .kind = LoadKind::PointMoment,
        .caption = "Point Moment",
        .listWord = "Point Moment",
        .values = kMomentValues,
        .checks = PointMomentChecks(),
        .afterAdd = PullMomentFromEnds,
        .reportWord = "Load is point moment",
        .reportLines = {{"M = ", &Beam::loadM, " ft-lbs"}, {kLocation, &Beam::loadA, ""}},
    },
    {
        .kind = LoadKind::LeftDisplacement,
        .caption = "Disp. Sup. Left",
        .listWord = "Left Sup. Disp.",
        .values = kDisplacementValues,
        .checks = DisplacementChecks(),
        .afterAdd = nullptr,
        .reportWord = "Load is left support displacement",
        .reportLines = {{"Left support displacement = ", &Beam::loadDisp, " in"}},
    },
    {
        .kind = LoadKind::RightDisplacement,
        .caption = "Disp. Sup. Right",
        .listWord = "Right Sup. Disp.",
        .values = kDisplacementValues,
        .checks = DisplacementChecks(),
        .afterAdd = nullptr,
        .reportWord = "Load is right support displacement",
        .reportLines = {{"Right support displacement = ", &Beam::loadDisp, " in"}},
    },
    {
        .kind = LoadKind::AxialLoad,
        .caption = "Axial Load",
        .listWord = "Axial Load",
        .values = kAxialValues,
        .checks = AxialLoadChecks(),
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
