// One field of a session with several values, and what comes out of each.

#include "desktop/session/variants.h"

#include <gtest/gtest.h>

#include "desktop/kit/text.h"
#include "desktop/session/variant_table.h"
#include "tests/desktop/open_desktop.h"

namespace lignara {
namespace {

TEST(Variants, ATrussOfSeveralLengthsGivesARowEach) {
  OpenDesktop desktop;
  Variants variants;
  variants.lines = QStringList{"press \"KINGPOST\"",
                               "window TR_INPUT",
                               "enter \"Total Length (ft)\" 24",
                               "enter \"H (ft)\" 5",
                               "press \"OK\"",
                               "window TRUSS",
                               "enter \"Top Node Loads (lbs)\" 1000",
                               "press \"All\"",
                               "press \"Run\"",
                               "read \"Left Side\"",
                               "rows \"Top Node Loads (lbs)\""};
  variants.enterLine = 6;
  EXPECT_EQ(FromQt(VariantHeads(variants).join('/')),
            "Top Node Loads (lbs)/Left Side/Top Node Loads (lbs)");
  const VariantOutcome first = PlayVariant(variants, "1000", desktop.session, desktop.platform);
  const VariantOutcome other = PlayVariant(variants, "2000", desktop.session, desktop.platform);
  ASSERT_EQ(first.read.size(), 2) << FromQt(first.stop);
  ASSERT_EQ(other.read.size(), 2) << FromQt(other.stop);
  // All loads twice as large: so is the reaction.
  EXPECT_DOUBLE_EQ(other.read[0].toDouble(), 2 * first.read[0].toDouble());
  EXPECT_GT(first.read[0].toDouble(), 0);
}

TEST(Variants, AValueThatCannotBePlayedSaysWhy) {
  OpenDesktop desktop;
  Variants variants;
  variants.lines =
      QStringList{"enter \"Enter No. of Spans\" 2", "press \"Multi-Span Beam\"", "window MS"};
  const VariantOutcome outcome = PlayVariant(variants, "1", desktop.session, desktop.platform);
  EXPECT_EQ(FromQt(outcome.stop), "1:3: the window MS is not open");
  EXPECT_EQ(outcome.stopLine, 3);
  EXPECT_EQ(FromQt(outcome.reason), "the window MS is not open");
  EXPECT_EQ(FromQt(outcome.said.join('/')), "You must enter at least 2 spans");
}

TEST(Variants, OnlyALineThatEntersCanTakeValues) {
  const QStringList lines = {"press \"KINGPOST\"", "enter \"A\" 1", "enter \"A"};
  EXPECT_EQ(FromQt(WhyNoVariants(lines, 0)), "line 1 enters no value");
  EXPECT_EQ(FromQt(WhyNoVariants(lines, 1)), "");
  EXPECT_EQ(FromQt(WhyNoVariants(lines, 2)), "line 3 enters no value");
  EXPECT_EQ(FromQt(WhyNoVariants(lines, 3)), "there is no line 4");
}

}  // namespace
}  // namespace lignara
