#include "app/bounded_array.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

#include "tests/support/recording_platform.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

const std::string kIndex(FaultText(Fault::IndexOutOfBounds));

class BoundedArrays : public testing::Test {
 protected:
  RecordingPlatform platform;
  FaultScope faults{platform};
};

TEST_F(BoundedArrays, BothBoundsAreElements) {
  Float32Array array(3);
  array[0] = 1.5;
  array[3] = 2.5;
  EXPECT_EQ(array.upper(), 3);
  EXPECT_EQ(array[0].value(), 1.5f);
  EXPECT_EQ(array[1].value(), 0.0f);
  EXPECT_EQ(array[3].value(), 2.5f);
  EXPECT_EQ(platform.TakeTexts(), Texts{});
}

TEST_F(BoundedArrays, StoringOutsideIsReportedOnceAndStoresNothing) {
  Float32Array array(3);
  for (const int index : {-1, 4, INT_MAX, INT_MIN}) {
    array[index] = 9.0;
    EXPECT_EQ(platform.TakeTexts(), Texts{kIndex}) << index;
  }
  for (int i = 0; i <= 3; ++i) EXPECT_EQ(array[i].value(), 0.0f);
}

TEST_F(BoundedArrays, ReadingOutsideFaultsTheStatement) {
  const Float32Array array(3);
  Float32 sum = 8.0;
  for (const int index : {-1, 4, INT_MAX, INT_MIN}) {
    sum = array[index] * 2.0 + 1.0;
    EXPECT_EQ(platform.TakeTexts(), Texts{kIndex}) << index;
    EXPECT_EQ(sum.value(), 8.0f);
  }
  sum = array[4];  // also as it is
  EXPECT_EQ(platform.TakeTexts(), Texts{kIndex});
  EXPECT_EQ(sum.value(), 8.0f);
}

TEST_F(BoundedArrays, AStatementOutsideOnBothSidesIsReportedOnce) {
  Float32Array array(3);
  array[4] = array[5];
  EXPECT_EQ(platform.TakeTexts(), Texts{kIndex});
  array[4] += 1.0;
  EXPECT_EQ(platform.TakeTexts(), Texts{kIndex});
  array[4] = Number(1.0) / Number(0.0);
  EXPECT_EQ(platform.TakeTexts(), Texts{kIndex});
}

TEST_F(BoundedArrays, WhatWasNotStoredOutsideCannotBeRead) {
  Float32Array array(3);
  array[4] = 5.0;
  Float32 read = 1.0;
  read = array[4];
  read = Float32Array(1)[7];
  EXPECT_EQ(read.value(), 1.0f);
  EXPECT_EQ(platform.TakeTexts(), (Texts{kIndex, kIndex, kIndex}));
}

TEST_F(BoundedArrays, AComparisonOutsideIsFalse) {
  const Float32Array array(1);
  EXPECT_FALSE(array[2] > -1.0);
  EXPECT_FALSE(array[2] <= 0.0);
}

TEST_F(BoundedArrays, AnArrayWithoutElementsHasNone) {
  Float32Array array;
  EXPECT_EQ(array.upper(), -1);
  array[0] = 1.0;
  EXPECT_EQ(platform.TakeTexts(), Texts{kIndex});
  array.Allocate(-5);
  EXPECT_EQ(array.upper(), -1);
  array.Allocate(0);
  array[0] = 1.0;
  EXPECT_EQ(array[0].value(), 1.0f);
  EXPECT_EQ(platform.TakeTexts(), Texts{});
}

TEST_F(BoundedArrays, AllocatingAnewFillsWithZero) {
  Float32Array array(2);
  for (int i = 0; i <= 2; ++i) array[i] = 1.0 + i;
  array.Allocate(4);
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(array[i].value(), 0.0f);
  array.Allocate(1);
  EXPECT_EQ(array.upper(), 1);
  array[2] = 1.0;
  EXPECT_EQ(platform.TakeTexts(), Texts{kIndex});
}

TEST_F(BoundedArrays, CopiesStandAlone) {
  Float32Array first(2);
  first[1] = 3.0;
  Float32Array second = first;
  first[1] = 4.0;
  EXPECT_EQ(second[1].value(), 3.0f);
}

TEST_F(BoundedArrays, WholeNumbersRoundTiesToEven) {
  Int16Array signs(2);
  signs[1] = -1;
  signs[2] = 2.5;
  EXPECT_EQ(signs[1].value(), -1);
  EXPECT_EQ(signs[2].value(), 2);
}

}  // namespace
}  // namespace lignara
