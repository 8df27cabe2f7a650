#include "beam/load_kinds.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace lignara {
namespace {

struct ShownFields {
  LoadKind kind;
  const char* caption;
  std::vector<LoadField> fields;
};

TEST(LoadKinds, ShowTheirCaptionAndFields) {
  using enum LoadField;
  const ShownFields expected[] = {{LoadKind::PointLoad, "Point Load", {A, P}},
                                  {LoadKind::LevelUniform, "Level Uniform", {A, B, W}},
                                  {LoadKind::SlopedLeftZero, "Slpd. Unif. L=0", {A, B, W}},
                                  {LoadKind::SlopedRightZero, "Slpd. Unif. R=0", {A, B, W}},
                                  {LoadKind::PointMoment, "Point Moment", {A, M}},
                                  {LoadKind::LeftDisplacement, "Disp. Sup. Left", {Disp}},
                                  {LoadKind::RightDisplacement, "Disp. Sup. Right", {Disp}},
                                  {LoadKind::AxialLoad, "Axial Load", {P}}};
  for (const ShownFields& row : expected) {
    const LoadKindInfo& kind = LoadKindOf(row.kind);
    EXPECT_STREQ(kind.caption, row.caption);
    EXPECT_EQ(kind.kind, row.kind);
    for (const LoadField field : {A, B, P, M, W, Disp}) {
      const bool shown = std::find(row.fields.begin(), row.fields.end(), field) != row.fields.end();
      EXPECT_EQ(kind.Shows(field), shown) << row.caption;
    }
  }
}

}  // namespace
}  // namespace lignara
