#include "connections/fastener_tables.h"

#include <gtest/gtest.h>

#include <span>

#include "tests/connections/fastener_pages.h"

namespace lignara {
namespace {

using Texts = std::vector<std::string>;

Texts Cells(const FastenerRow& row, bool hasLength) {
  Texts cells = {row.size};
  if (hasLength) cells.emplace_back(row.length);
  for (const char* cell : {row.diameter, row.lateral, row.pullOut[0], row.pullOut[1]}) {
    cells.emplace_back(cell);
  }
  return cells;
}

void ExpectPage(std::span<const FastenerRow> table, const char* page, bool hasLength) {
  const std::vector<Texts> rows = PageRows(page);
  ASSERT_EQ(table.size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) EXPECT_EQ(Cells(table[i], hasLength), rows[i]);
}

TEST(FastenerTables, WireNailsReadLikeThePage) { ExpectPage(WireNailTable, kWireNails, true); }

TEST(FastenerTables, SpikesReadLikeThePage) { ExpectPage(SpikeTable, kSpikes, true); }

TEST(FastenerTables, WoodScrewsReadLikeThePage) {
  ExpectPage(WoodScrewTable, kWoodScrews, false);
  for (const FastenerRow& row : WoodScrewTable) EXPECT_STREQ(row.length, "") << row.size;
}

TEST(FastenerTables, LagScrewSizesAreDiameters) {
  const Texts head = PageRows(kLagPullOut).front();
  ASSERT_EQ(head.size(), LagScrewTable.sizes.size() + 1);
  for (std::size_t i = 1; i < head.size(); ++i) {
    EXPECT_EQ(LagScrewTable.sizes[i - 1], "Dia. " + head[i]);
  }
}

TEST(FastenerTables, EmbedmentsAreThreeToSixteenInches) {
  for (std::size_t i = 0; i < LagScrewTable.embedments.size(); ++i) {
    EXPECT_EQ(LagScrewTable.embedments[i], std::to_string(3 + i));
  }
}

TEST(FastenerTables, LagPullOutReadsLikeThePage) {
  const std::vector<Texts> rows = PageRows(kLagPullOut);
  ASSERT_EQ(rows.size(), 3U);
  for (std::size_t wood = 0; wood < 2; ++wood) {
    for (std::size_t size = 0; size < kLagScrewSizes; ++size) {
      EXPECT_EQ(LagScrewTable.pullOut[wood][size], rows[wood + 1].at(size + 1));
    }
  }
}

void ExpectLateral(const LagScrews::ByEmbedment& table, const char* page) {
  const std::vector<Texts> rows = PageRows(page);
  ASSERT_EQ(rows.size(), kEmbedments + 1);
  for (std::size_t embedment = 0; embedment < kEmbedments; ++embedment) {
    const Texts& row = rows[embedment + 1];
    EXPECT_EQ(LagScrewTable.embedments[embedment], row.at(0));
    ASSERT_EQ(row.size(), kLagScrewSizes + 1);
    for (std::size_t size = 0; size < kLagScrewSizes; ++size) {
      const std::string expected = row[size + 1] == "-" ? "NA" : row[size + 1];
      EXPECT_EQ(table[embedment][size], expected) << LagScrewTable.sizes[size] << " " << row[0];
    }
  }
}

TEST(FastenerTables, LagLateralParallelReadsLikeThePage) {
  ExpectLateral(LagScrewTable.parallel, kLagParallel);
}

TEST(FastenerTables, LagLateralPerpendicularReadsLikeThePage) {
  ExpectLateral(LagScrewTable.perpendicular, kLagPerpendicular);
}

TEST(FastenerTables, LagScrewsHaveBothLateralStrengthsOrNone) {
  for (std::size_t embedment = 0; embedment < kEmbedments; ++embedment) {
    for (std::size_t size = 0; size < kLagScrewSizes; ++size) {
      EXPECT_EQ(std::string(LagScrewTable.parallel[embedment][size]) == "NA",
                std::string(LagScrewTable.perpendicular[embedment][size]) == "NA")
          << LagScrewTable.sizes[size] << " " << LagScrewTable.embedments[embedment];
    }
  }
}

}  // namespace
}  // namespace lignara
