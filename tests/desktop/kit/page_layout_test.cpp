// How a report goes on paper: repeated heads, and no page for a line or two.

#include "desktop/kit/page_layout.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QImage>

#include "desktop/kit/text.h"

namespace lignara {
namespace {

class PageLayoutTest : public testing::Test {
 protected:
  /// Pages with room for ten lines.
  std::vector<PaperPage> Pages() {
    const double line = QFontMetricsF(font, &paper).lineSpacing();
    return LayOut(report, font, &paper, {2000, 10.5 * line});
  }

  static std::vector<std::string> TextsOf(const PaperPage& page) {
    std::vector<std::string> texts;
    for (const PlacedItem& item : page) texts.push_back(FromQt(std::get<PlacedText>(item).text));
    return texts;
  }

  void Lines(int count) {
    for (int i = 1; i <= count; ++i) report.Line("line " + std::to_string(i));
  }

  QImage paper{100, 100, QImage::Format_RGB32};
  QFont font;
  Report report;
};

TEST_F(PageLayoutTest, BreaksAPageThatIsFull) {
  Lines(13);
  const auto pages = Pages();
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_EQ(pages[0].size(), 10U);
  EXPECT_EQ(TextsOf(pages[1]), (std::vector<std::string>{"line 11", "line 12", "line 13"}));
}

TEST_F(PageLayoutTest, StartsNoPageForTwoLines) {
  Lines(12);
  const auto pages = Pages();
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_EQ(pages[0].size(), 12U);
}

TEST_F(PageLayoutTest, StartsNoPageForTwoLinesBeforeAPageBreakEither) {
  Lines(12);
  report.StartPage();
  report.Line("END");
  const auto pages = Pages();
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_EQ(TextsOf(pages[1]), std::vector<std::string>{"END"});
}

TEST_F(PageLayoutTest, RepeatsAllLinesOfTheHeadsWhereColumnsGoOn) {
  report.Heads({"MEMBER"});
  report.Heads({"in^2"}, 2);
  Lines(14);
  const auto pages = Pages();
  ASSERT_EQ(pages.size(), 2U);
  const auto texts = TextsOf(pages[1]);
  ASSERT_EQ(texts.size(), 8U);  // 2 of heads, lines 9 to 14
  EXPECT_EQ(texts[0], "MEMBER");
  EXPECT_EQ(texts[1], "in^2");
  EXPECT_EQ(texts[2], "line 9");
  EXPECT_DOUBLE_EQ(std::get<PlacedText>(pages[1][1]).room.left(),
                   std::get<PlacedText>(pages[0][1]).room.left());
}

TEST_F(PageLayoutTest, ForgetsTheHeadsAtABlankLineAndAtAPageBreak) {
  report.Heads({"MEMBER"});
  Lines(2);
  report.Line();
  Lines(20);
  report.Heads({"TYPE"});
  report.StartPage();
  Lines(14);
  const auto pages = Pages();
  ASSERT_EQ(pages.size(), 5U);  // 25 lines, then 14
  for (std::size_t i = 1; i < pages.size(); ++i) {
    EXPECT_EQ(TextsOf(pages[i]).front().substr(0, 4), "line") << i;
  }
}

TEST_F(PageLayoutTest, NumbersThePagesAtTheRightEndOfTheUpperMargin) {
  Lines(13);
  auto pages = Pages();
  paper.setDotsPerMeterX(static_cast<int>(100 / 0.0254));
  paper.setDotsPerMeterY(static_cast<int>(100 / 0.0254));
  NumberPages(pages, font, &paper, {2000, 500});
  EXPECT_EQ(TextsOf(pages[0]).back(), "Page 1 of 2");
  EXPECT_EQ(TextsOf(pages[1]).back(), "Page 2 of 2");
  const QRectF room = std::get<PlacedText>(pages[0].back()).room;
  EXPECT_DOUBLE_EQ(room.right(), 2000);
  // 0.45 inch below the edge of the sheet, which is 0.75 inch above the text: at 100 dots an inch.
  EXPECT_NEAR(room.bottom(), -30, 0.5);
}

}  // namespace
}  // namespace lignara
