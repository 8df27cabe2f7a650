// A picture on the screen: which place of the drawing the mouse means, and the picture as a file.

#include "desktop/kit/picture_widget.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <cstdlib>

#include "desktop/kit/save_picture.h"

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

/// A diagram of 20 by 1000 units, on 500 x 300 pixels with a margin of 6 around.
class DiagramTest : public PictureTest {
 protected:
  DiagramTest() {
    diagram.width = 20;
    diagram.height = 1000;
    diagram.textHeight = 60;
    diagram.stretched = true;
    picture.SetDrawing(diagram);
    picture.OnMove([this](double x, double y) { moved = {x, y}; });
    picture.resize(500, 300);
  }

  Drawing diagram;
  QPointF moved{-1, -1};
};

TEST_F(DiagramTest, FillsItsRoomInBothDirections) {
  Send(QEvent::MouseButtonPress, {6 + 488 / 4.0, 6 + 288 / 2.0});
  EXPECT_NEAR(pressed.x(), 5, 1e-6);
  EXPECT_NEAR(pressed.y(), 500, 1e-6);
}

TEST_F(DiagramTest, CountsItsMarginToItsEnds) {
  Send(QEvent::MouseButtonPress, {1, 299});
  EXPECT_EQ(pressed, QPointF(0, 1000));
  Send(QEvent::MouseButtonPress, {499, 1});
  EXPECT_EQ(pressed, QPointF(20, 0));
}

TEST_F(DiagramTest, TellsWhereTheMouseMoves) {
  Send(QEvent::MouseMove, {6 + 488 / 2.0, 150}, Qt::NoButton);
  EXPECT_NEAR(moved.x(), 10, 1e-6);
  EXPECT_EQ(pressed, QPointF(-1, -1));
}

TEST_F(DiagramTest, IsMovedOverBeforeItIsPressed) {
  picture.PressAt(3.25, 7);
  EXPECT_EQ(moved, QPointF(3.25, 7));
  EXPECT_EQ(pressed, QPointF(3.25, 7));
}

TEST_F(DiagramTest, ShowsATextAtItsRimWhole) {
  const auto inkBeyond = [&](double x) {
    diagram.shapes = {TextShape{x, 400, "12345", Colour::Black}};
    picture.SetDrawing(diagram);
    const QImage image = picture.grab().toImage();
    int dark = 0;
    for (int row = 0; row < image.height(); ++row) {
      for (int column = 0; column < image.width(); ++column) {
        if (image.pixelColor(column, row).lightness() < 100) ++dark;
      }
    }
    return dark;
  };
  const int whole = inkBeyond(10);
  EXPECT_GT(whole, 20);
  EXPECT_NEAR(inkBeyond(20), whole, whole / 4);
}

class ExploredPictureTest : public PictureTest {
 protected:
  ExploredPictureTest() {
    picture.LetUserExplore();
    picture.resize(480, 300);  // a tenth of a pixel a unit
    picture.show();
  }

  void Wheel(QPointF place, int steps, Qt::KeyboardModifiers held) {
    QWheelEvent event(place, picture.mapToGlobal(place), QPoint(), QPoint(0, 120 * steps),
                      Qt::NoButton, held, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&picture, &event);
  }
  void Key(Qt::Key key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&picture, &event);
  }
  void Drag(QPointF from, QPointF to) {
    Send(QEvent::MouseButtonPress, from);
    Send(QEvent::MouseMove, to);
    Send(QEvent::MouseButtonRelease, to);
  }
  QPointF Corner() { return picture.view().ToPixels({0, 0}); }
};

TEST_F(ExploredPictureTest, IsEnlargedByCtrlAndWheelAtTheMouse) {
  Wheel({120, 90}, 3, Qt::ControlModifier);  // 1.25^3
  EXPECT_NEAR(picture.view().zoom(), 1.953125, 1e-9);
  const QPointF held = picture.view().ToPixels({1200, 900});
  EXPECT_NEAR(held.x(), 120, 1e-6);
  EXPECT_NEAR(held.y(), 90, 1e-6);
}

TEST_F(ExploredPictureTest, LeavesTheWheelAloneWithoutCtrl) {
  Wheel({120, 90}, 3, Qt::NoModifier);
  EXPECT_EQ(picture.view().zoom(), 1);
}

TEST_F(ExploredPictureTest, StillTellsAPressInUnitsOfTheDrawing) {
  Wheel({120, 90}, 3, Qt::ControlModifier);
  Send(QEvent::MouseButtonPress, {120, 90});
  EXPECT_NEAR(pressed.x(), 1200, 1e-6);
  EXPECT_NEAR(pressed.y(), 900, 1e-6);
}

TEST_F(ExploredPictureTest, IsMovedByADrag) {
  Drag({100, 100}, {160, 130});
  EXPECT_NEAR(Corner().x(), 60, 1e-6);
  EXPECT_NEAR(Corner().y(), 30, 1e-6);
}

TEST_F(ExploredPictureTest, IsNotMovedByAPressThatTrembles) {
  Drag({100, 100}, {101, 101});
  EXPECT_NEAR(Corner().x(), 0, 1e-6);
}

TEST_F(ExploredPictureTest, ShowsAllAgainByHomeAndByADoubleClick) {
  for (const bool byKey : {true, false}) {
    Wheel({120, 90}, 3, Qt::ControlModifier);
    Drag({100, 100}, {160, 130});
    byKey ? Key(Qt::Key_Home) : Send(QEvent::MouseButtonDblClick, {50, 50});
    EXPECT_EQ(picture.view().zoom(), 1);
    EXPECT_NEAR(Corner().x(), 0, 1e-6);
  }
}

TEST_F(ExploredPictureTest, IsEnlargedAndMovedByKeys) {
  Key(Qt::Key_Plus);
  EXPECT_NEAR(picture.view().zoom(), 1.25, 1e-9);
  const double x = Corner().x();
  Key(Qt::Key_Right);
  EXPECT_NEAR(Corner().x(), x - 40, 1e-6);
  Key(Qt::Key_Minus);
  EXPECT_NEAR(picture.view().zoom(), 1, 1e-9);
}

TEST_F(ExploredPictureTest, KeepsItsViewWhenTheDrawingChanges) {
  Wheel({120, 90}, 3, Qt::ControlModifier);
  const QPointF before = Corner();
  Drawing drawing = picture.drawing();
  drawing.shapes.emplace_back(CircleShape{100, 100, 50});
  picture.SetDrawing(drawing);
  EXPECT_EQ(Corner(), before);
}

TEST_F(PictureTest, ThatIsNotToBeExploredStaysAsItIs) {
  picture.resize(480, 300);
  Send(QEvent::MouseButtonPress, {100, 100});
  Send(QEvent::MouseMove, {200, 200});
  EXPECT_NEAR(picture.view().ToPixels({0, 0}).x(), 0, 1e-6);
  EXPECT_EQ(picture.focusPolicy(), Qt::NoFocus);
}

TEST_F(PictureTest, IsWrittenAsAPngWithItsLines) {
  QTemporaryDir directory;
  picture.resize(480, 300);
  const QString path = directory.filePath("picture.png");
  ASSERT_TRUE(SavePng(picture, path));
  const QImage image(path);
  ASSERT_EQ(image.size(), QSize(960, 600));
  const QColor line = image.pixelColor(480, 300), ground = image.pixelColor(480, 100);
  EXPECT_GT(line.red() - line.blue(), 100);
  EXPECT_EQ(ground, picture.palette().color(QPalette::Base));
}

TEST_F(PictureTest, SaysWhereItCannotBeWritten) {
  EXPECT_FALSE(SavePng(picture, "/no such directory/picture.png"));
}

TEST(ColourOn, KeepsEveryColourWellApartFromALightAndADarkGround) {
  for (const QColor ground :
       {QColor("white"), QColor("#efefef"), QColor("#2d2d30"), QColor("black")}) {
    for (const Colour colour : {Colour::Black, Colour::Red, Colour::Blue, Colour::Gray,
                                Colour::RoyalBlue, Colour::DarkOrange, Colour::Green}) {
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
