// A picture on the screen: which place of the drawing the mouse means, and the picture as a file.

#include "desktop/kit/picture.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <cstdlib>

namespace lignara {
namespace {

class PictureTest : public testing::Test {
 protected:
  PictureTest() {
    Drawing drawing;
    drawing.width = 4800;
    drawing.height = 3000;
    drawing.textHeight = 110;
    drawing.shapes = {LineShape{0, 1500, 4800, 1500, Colour::Red}};
    picture.SetDrawing(drawing);
    picture.OnPress([this](double x, double y) { pressed = {x, y}; });
  }

  void Send(QEvent::Type type, QPointF place, Qt::MouseButton button = Qt::LeftButton) {
    QMouseEvent event(type, place, place, button, button, Qt::NoModifier);
    QApplication::sendEvent(&picture, &event);
  }

  Picture picture;
  QPointF pressed{-1, -1};
};

TEST_F(PictureTest, TellsAPressInUnitsOfTheDrawing) {
  picture.resize(480, 300);  // 10 units a pixel
  Send(QEvent::MouseButtonPress, {63, 48});
  EXPECT_NEAR(pressed.x(), 630, 1e-6);
  EXPECT_NEAR(pressed.y(), 480, 1e-6);
}

TEST_F(PictureTest, TakesTheMarginBesideTheDrawingIntoAccount) {
  picture.resize(480, 400);  // the drawing keeps its shape: 50 pixels above and below it
  Send(QEvent::MouseButtonPress, {63, 98});
  EXPECT_NEAR(pressed.x(), 630, 1e-6);
  EXPECT_NEAR(pressed.y(), 480, 1e-6);
  picture.resize(680, 300);  // 100 pixels on each side
  Send(QEvent::MouseButtonPress, {163, 48});
  EXPECT_NEAR(pressed.x(), 630, 1e-6);
  EXPECT_NEAR(pressed.y(), 480, 1e-6);
}

TEST_F(PictureTest, LeavesTheRightButtonToTheContextMenu) {
  picture.resize(480, 300);
  Send(QEvent::MouseButtonPress, {63, 48}, Qt::RightButton);
  EXPECT_EQ(pressed, QPointF(-1, -1));
}

TEST_F(PictureTest, ShowsAHandWhereAPressWouldDoSomething) {
  picture.resize(480, 300);
  picture.OnHover([](double x, double y) { return x > 600 && x < 660 && y > 450 && y < 510; });
  Send(QEvent::MouseMove, {63, 48}, Qt::NoButton);
  EXPECT_EQ(picture.cursor().shape(), Qt::PointingHandCursor);
  Send(QEvent::MouseMove, {100, 48}, Qt::NoButton);
  EXPECT_EQ(picture.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(PictureTest, IsWrittenAsAPngWithItsLines) {
  QTemporaryDir directory;
  picture.resize(480, 300);
  const QString path = directory.filePath("picture.png");
  ASSERT_TRUE(picture.SavePng(path));
  const QImage image(path);
  ASSERT_EQ(image.size(), QSize(960, 600));
  const QColor line = image.pixelColor(480, 300), ground = image.pixelColor(480, 100);
  EXPECT_GT(line.red() - line.blue(), 100);
  EXPECT_EQ(ground, picture.palette().color(QPalette::Base));
}

TEST_F(PictureTest, SaysWhereItCannotBeWritten) {
  EXPECT_FALSE(picture.SavePng("/no such directory/picture.png"));
}

TEST(ColourOn, KeepsEveryColourWellApartFromALightAndADarkGround) {
  for (const QColor ground :
       {QColor("white"), QColor("#efefef"), QColor("#2d2d30"), QColor("black")}) {
    for (const Colour colour : {Colour::Black, Colour::Red, Colour::Blue, Colour::Gray,
                                Colour::RoyalBlue, Colour::DarkOrange}) {
      const QColor pen = ColourOn(ground, colour);
      const int apart = std::abs(pen.red() - ground.red()) +
                        std::abs(pen.green() - ground.green()) +
                        std::abs(pen.blue() - ground.blue());
      EXPECT_GT(apart, 200) << ColourName(colour) << " on " << ground.name().toStdString();
    }
  }
}

}  // namespace
}  // namespace lignara
