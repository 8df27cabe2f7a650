#include "multispan/descriptions.h"

#include "tests/multispan/multi_span_fixture.h"

namespace lignara {
namespace {

class BeamDescriptions : public MultiSpanTest {
 protected:
  void OpenTwo() {
    Open(2);
    EnterSpan(10, 120);
    EnterSpan(10, 120);
  }
};

TEST_F(BeamDescriptions, TellSpansEndsAndLoads) {
  OpenTwo();
  EXPECT_EQ(DescribeBeam(model()),
            "Beam of 2 spans, left end pinned, right end pinned, 2 uniform loads, 0 point loads");
  EnterLoad("500", "5");
  Support(FarEnd::Left, EndSupport::Fixed);
  Support(FarEnd::Right, EndSupport::None);
  model().spanUniform[1] = 0;
  EXPECT_EQ(DescribeBeam(model()),
            "Beam of 2 spans, left end fixed, right end free, 1 uniform load, 1 point load");
}

// 120 x 100 / 8 = 1500 over the joint, 600 + 150 beside it.
TEST_F(BeamDescriptions, TellTheLargestAndWhatTheCursorReads) {
  OpenTwo();
  Run();
  MultiSpanResults results;
  EXPECT_EQ(DescribeShear(results), "No run yet");
  EXPECT_EQ(DescribeMoment(results), "No run yet");
  ShowMultiSpanResults(results, session);
  EXPECT_EQ(DescribeShear(results), "Shear along the beam: largest 750.00 lbs");
  EXPECT_EQ(DescribeMoment(results), "Moment along the beam: largest 1500.00 ft-lbs");
  ReadDiagrams(results, 2.5);
  EXPECT_EQ(DescribeShear(results), "Shear along the beam: largest 750.00 lbs, 150. at 2.5 ft");
  EXPECT_EQ(DescribeMoment(results),
            "Moment along the beam: largest 1500.00 ft-lbs, 750. at 2.5 ft");
}

// At 4.4 ft: w x (L^3 - 3 L x^2 + 2 x^3) / 48 E I = 12.96 x 0.44 x 0.5896 / 48 = 0.07004 in. The
// station on the joint counts twice: 1500 x 12 of the load, 0.887 x 12 of the unit load, over 0.03
// in: 0.00004 in more.
TEST_F(BeamDescriptions, TellTheStationOfTheShape) {
  OpenTwo();
  Run();
  MultiSpanResults results;
  ShowMultiSpanResults(results, session);
  EXPECT_EQ(DescribeShape(results), "");
  ShowDeflectedShape(results, session, platform);
  MoveShapeStation(results, 25);
  EXPECT_EQ(DescribeShape(results), "Deflected shape: largest 0.0701 in, 0.0000 in at 10.000 ft");
}

}  // namespace
}  // namespace lignara
