// A row of a table as text that a spreadsheet reads.

#include "desktop/session/csv_line.h"

#include <gtest/gtest.h>

#include "desktop/kit/text.h"

namespace lignara {
namespace {

TEST(CsvLine, QuotesWhatWouldSplit) {
  EXPECT_EQ(FromQt(CsvLine({"a", "b, c", "d \"e\"", ""})), "a,\"b, c\",\"d \"\"e\"\"\",");
}

}  // namespace
}  // namespace lignara
