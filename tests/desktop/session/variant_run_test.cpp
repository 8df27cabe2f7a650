// Variants are played by a program of their own: what the two say to each other, and how a run
// ends.

#include "desktop/session/variant_run.h"

#include <gtest/gtest.h>

#include <QTest>

#include "desktop/kit/text.h"
#include "desktop/session/variant_pipe.h"

namespace lignara {
namespace {

/// Two spans and more are a beam; the length field is read in its window.
Variants Beams(const QStringList& values) {
  return {{"enter \"Enter No. of Spans\" 2", "press \"Multi-Span Beam\"", "window MS"},
          0,
          values,
          {{"MS", {"No. of Spans"}}}};
}

class VariantRunTest : public testing::Test {
 protected:
  std::vector<VariantOutcome> outcomes;
  std::vector<VariantRun::End> ends;
  VariantRun run{[this](const VariantOutcome& outcome) { outcomes.push_back(outcome); },
                 [this](VariantRun::End end) { ends.push_back(end); }};
};

TEST_F(VariantRunTest, TellsTheOutcomesInTheOrderOfTheValues) {
  run.Start(Beams({"2", "1", "7"}), LIGNARA_DATA_DIRECTORY);
  run.WaitForEnd();
  EXPECT_EQ(ends, std::vector{VariantRun::End::Done});
  ASSERT_EQ(outcomes.size(), 3u);
  EXPECT_EQ(outcomes[0].readings, std::vector<RowTexts>{{{"2"}}});
  EXPECT_EQ(FromQt(outcomes[1].reason), "the window MS is not open");
  EXPECT_EQ(outcomes[1].stopLine, 3);
  EXPECT_EQ(outcomes[1].said, QStringList{"You must enter at least 2 spans"});
  EXPECT_EQ(outcomes[2].readings, std::vector<RowTexts>{{{"7"}}});
}

TEST_F(VariantRunTest, RunsByTheEventLoop) {
  run.Start(Beams({"2", "3"}), LIGNARA_DATA_DIRECTORY);
  EXPECT_TRUE(run.IsRunning());
  EXPECT_TRUE(QTest::qWaitFor([this] { return !run.IsRunning(); }, 30000));
  EXPECT_EQ(outcomes.size(), 2u);
}

TEST_F(VariantRunTest, CanBeCancelled) {
  run.Start(Beams(QStringList(10000, "2")), LIGNARA_DATA_DIRECTORY);
  ASSERT_TRUE(QTest::qWaitFor([this] { return outcomes.size() > 2; }, 30000));
  run.Cancel();
  run.WaitForEnd();
  EXPECT_EQ(ends, std::vector{VariantRun::End::Cancelled});
  EXPECT_LT(outcomes.size(), 10000u);
  run.Start(Beams({"2"}), LIGNARA_DATA_DIRECTORY);
  run.WaitForEnd();
  EXPECT_EQ(ends.back(), VariantRun::End::Done) << "it can run again";
}

TEST_F(VariantRunTest, AProgramThatIsMissingOrEndsFails) {
  for (const char* program : {"", "/no such program", "/bin/false"}) {
    ends.clear();
    run.Start(Beams({"2"}), LIGNARA_DATA_DIRECTORY, program);
    run.WaitForEnd();
    EXPECT_EQ(ends, std::vector{VariantRun::End::Failed}) << program;
    EXPECT_TRUE(outcomes.empty());
  }
}

TEST(VariantPipe, ARequestArrivesAsItWasSent) {
  const Variants asked = {{"enter \"L\u00e4nge\" \"a \\\" b\"", "press \"OK\""},
                          0,
                          {"1", "x y"},
                          {{"TRUSS", {"Panel", "Force"}, true}, {"MS", {"E"}}}};
  EXPECT_EQ(ReadRequest(RequestFor(asked)), asked);
}

TEST(VariantPipe, WhatAsksForNothingIsRefused) {
  for (const char* request :
       {"", "[]", "{", "{}", "{\"lines\":[\"press a\"],\"line\":0}",
        "{\"lines\":[\"enter a 1\"],\"line\":1}",
        "{\"lines\":[\"enter a 1\"],\"line\":0,\"readings\":[{\"window\":\"MS\"}]}"}) {
    EXPECT_FALSE(ReadRequest(request)) << request;
  }
  EXPECT_TRUE(ReadRequest("{\"lines\":[\"enter a 1\"],\"line\":0}"));
}

TEST(VariantPipe, AnAnswerIsOneLine) {
  const VariantOutcome outcome{{}, {{{"a\nb"}}, {}}, {"said"}, "", 7, "why"};
  const QByteArray line = AnswerFor(outcome);
  EXPECT_FALSE(line.contains('\n'));
  const auto read = ReadAnswer(line);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->readings, outcome.readings);
  EXPECT_EQ(read->said, outcome.said);
  EXPECT_EQ(read->stopLine, 7);
  EXPECT_EQ(read->reason, "why");
  EXPECT_FALSE(ReadAnswer("half a li"));
}

}  // namespace
}  // namespace lignara
