#pragma once

#include <gtest/gtest.h>

#include "tests/support/beam_fixture.h"

namespace lignara {

/// The frame "Loads" of a single-span beam.
class LoadEntry : public testing::Test {
 protected:
  /// "Add New" of a load that is refused with a message, and leaves the list alone.
  void ExpectAddRefused(LoadKind kind, const std::map<std::string, std::string>& fields,
                        const std::string& message) {
    const int before = beam.Loads();
    beam.Add(kind, fields);
    EXPECT_EQ(beam.Boxes(), Texts({message}));
    EXPECT_EQ(beam.Loads(), before);
  }

  /// "Edit" of load 1 that is refused with a message, and leaves it alone.
  void ExpectEditRefused(LoadKind kind, const std::map<std::string, std::string>& fields,
                         const std::string& message) {
    const int kindBefore = beam.window.beam.loadKind[1].value();
    const float A = beam.window.beam.loadA[1].value();
    beam.Edit(1, kind, fields);
    EXPECT_EQ(beam.Boxes(), Texts({message}));
    EXPECT_EQ(beam.window.beam.loadKind[1].value(), kindBefore);
    EXPECT_EQ(beam.window.beam.loadA[1].value(), A);
    EXPECT_EQ(beam.window.loads.row, 0) << "a refused edit keeps the selection";
  }

  void ExpectNoBox() { EXPECT_EQ(beam.Boxes(), Texts()); }

  TestBeam beam;
  SingleSpanBeam& model = beam.window.beam;
};

}  // namespace lignara
