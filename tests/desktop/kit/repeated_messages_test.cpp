// Equal boxes of one command: from the second on the user may ask for no more of them.

#include "desktop/kit/repeated_messages.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QMessageBox>
#include <QTimer>

#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/text.h"

namespace lignara {
namespace {

using Box = RepeatedMessages::Box;

TEST(RepeatedMessages, OfferSilenceFromTheSecondEqualBoxOfACommandOn) {
  RepeatedMessages boxes;
  boxes.BeginCommand();
  EXPECT_EQ(boxes.Next({"Overflow"}), Box::Plain);
  EXPECT_EQ(boxes.Next({"Division by zero"}), Box::Plain);
  EXPECT_EQ(boxes.Next({"Overflow"}), Box::WithOffer);
  EXPECT_EQ(boxes.Next({"Overflow", "ERROR!"}), Box::Plain);
}

TEST(RepeatedMessages, StaySilentUntilTheOutermostCommandEnds) {
  RepeatedMessages boxes;
  boxes.BeginCommand();
  boxes.Next({"Overflow"});
  boxes.Silence({"Overflow"});
  boxes.BeginCommand();
  EXPECT_EQ(boxes.Next({"Overflow"}), Box::None);
  boxes.EndCommand();
  EXPECT_EQ(boxes.Next({"Overflow"}), Box::None);
  EXPECT_EQ(boxes.Next({"Division by zero"}), Box::Plain);
  boxes.EndCommand();
  boxes.BeginCommand();
  EXPECT_EQ(boxes.Next({"Overflow"}), Box::Plain);
}

TEST(RepeatedMessages, AreNeverDroppedOutsideOfACommand) {
  RepeatedMessages boxes;
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(boxes.Next({"Overflow"}), Box::Plain);
    boxes.Silence({"Overflow"});
  }
}

/// Answers each box that comes up, and writes down what it offered and which pointer was shown.
class BoxReader : public QObject {
 public:
  explicit BoxReader(bool tick) : tick_(tick) {
    timer_.callOnTimeout([this] { Answer(); });
    timer_.start(1);
  }

  int boxes = 0;
  int offers = 0;
  Qt::CursorShape pointer = Qt::BlankCursor;

 private:
  void Answer() {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    ++boxes;
    if (const QCursor* cursor = QApplication::overrideCursor()) pointer = cursor->shape();
    if (QCheckBox* offer = box->checkBox()) {
      ++offers;
      EXPECT_EQ(FromQt(PlainCaption(offer->text())), "Do not show again during this command");
      offer->setChecked(tick_);
    }
    box->accept();
  }

  const bool tick_;
  QTimer timer_;
};

int FaultBoxes(bool tick, int faults, BoxReader& reader) {
  SessionState session;
  DesktopPlatform platform(session);
  platform.BeginCommand(nullptr, {});
  platform.SetBusyPointer(true);
  for (int i = 0; i < faults; ++i) platform.ShowMessage({"There is no element of that number"});
  platform.SetBusyPointer(false);
  platform.EndCommand();
  EXPECT_EQ(reader.offers > 0, faults > 1) << tick;
  return reader.boxes;
}

TEST(FaultBoxes, EndAtTheTick) {
  BoxReader reader(true);
  EXPECT_EQ(FaultBoxes(true, 60, reader), 2);
}

TEST(FaultBoxes, AllComeWithoutIt) {
  BoxReader reader(false);
  EXPECT_EQ(FaultBoxes(false, 5, reader), 5);
}

TEST(FaultBoxes, ShowAnArrowInsteadOfTheHourglass) {
  BoxReader reader(false);
  FaultBoxes(false, 1, reader);
  EXPECT_EQ(reader.pointer, Qt::ArrowCursor);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace lignara
