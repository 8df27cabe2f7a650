#include "beam/descriptions.h"

#include <gtest/gtest.h>

#include "tests/support/beam_fixture.h"

namespace lignara {
namespace {

using enum SupportType;

class SingleSpanDescriptions : public testing::Test {
 protected:
  TestBeam beam;
};

TEST_F(SingleSpanDescriptions, TellLengthSupportsAndLoads) {
  beam.Supports(Fixed, Free);
  EXPECT_EQ(DescribeLoads(beam.window.beam),
            "beam of 10 ft, left support fixed, right support free, 0 loads");
  beam.Length("12.5");
  beam.Point("5", "1");
  EXPECT_EQ(DescribeLoads(beam.window.beam),
            "beam of 12.5 ft, left support fixed, right support free, 1 load");
}

TEST_F(SingleSpanDescriptions, TellThePeakOfADiagram) {
  beam.Constants("1000000", "64");
  EXPECT_EQ(DescribeDiagram(beam.window, Diagram::Shear), "before a run");
  beam.Supports(SupportType::Fixed, SupportType::Free);
  beam.Point("10", "100");
  beam.Run();
  EXPECT_EQ(DescribeDiagram(beam.window, Diagram::Moment), "largest value 1000.00 at 0.000 ft");
  EXPECT_EQ(DescribeDiagram(beam.window, Diagram::Deflection), "largest value 0.9000 at 10.000 ft");
}

}  // namespace
}  // namespace lignara
