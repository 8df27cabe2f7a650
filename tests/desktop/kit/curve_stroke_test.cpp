// A curve of very many lines, painted as one stroke.

#include "desktop/kit/curve_stroke.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <cmath>

namespace lignara {
namespace {

constexpr int kWidth = 300, kHeight = 100;

class CurveStrokeTest : public testing::Test {
 protected:
  CurveStrokeTest() : image_(kWidth, kHeight, QImage::Format_RGB32) { image_.fill(Qt::white); }

  /// Paints the lines that join points.
  void Paint(const QPolygonF& points, const QColor& colour = Qt::black) {
    QPainter painter(&image_);
    CurveStroke stroke(painter, 0.5);
    for (qsizetype i = 1; i < points.size(); ++i) {
      stroke.Add(points[i - 1], points[i], QPen(colour, 1));
    }
    stroke.Finish();
  }
  bool IsInked(int x, int y) const { return image_.pixelColor(x, y) != QColor(Qt::white); }

  QImage image_;
};

TEST_F(CurveStrokeTest, IsTheSameAsThePlainLinesWhereTheyAreFewerThanPixels) {
  QPolygonF points;
  for (int x = 0; x < kWidth; x += 3) points << QPointF(x, 50 + 40 * std::sin(x / 20.0));
  Paint(points);
  QImage plain(image_.size(), image_.format());
  plain.fill(Qt::white);
  QPainter painter(&plain);
  painter.setPen(QPen(Qt::black, 1));
  painter.drawPolyline(points);
  painter.end();
  EXPECT_EQ(image_, plain);
}

TEST_F(CurveStrokeTest, ShowsAPeakThatIsNarrowerThanAPixel) {
  QPolygonF points;
  constexpr int kPoints = 30000;
  for (int i = 0; i < kPoints; ++i) {
    const double y = i == 15005 ? 5 : i == 15006 ? 95 : 50;
    points << QPointF(1.0 * kWidth * i / kPoints, y);
  }
  Paint(points);
  for (const int y : {6, 50, 94}) EXPECT_TRUE(IsInked(150, y)) << y;
  EXPECT_FALSE(IsInked(140, 6));
  for (const int x : {2, 100, 297}) EXPECT_TRUE(IsInked(x, 50)) << x;
}

TEST_F(CurveStrokeTest, JoinsNoLinesThatAreApartOrOfOtherColours) {
  QPainter painter(&image_);
  CurveStroke stroke(painter, 0.5);
  stroke.Add({10, 20}, {90, 20}, QPen(Qt::red, 1));
  stroke.Add({200, 20}, {280, 20}, QPen(Qt::red, 1));
  stroke.Add({280, 20}, {280, 80}, QPen(Qt::blue, 1));
  stroke.Finish();
  painter.end();
  EXPECT_TRUE(IsInked(50, 20));
  EXPECT_FALSE(IsInked(150, 20));
  EXPECT_EQ(image_.pixelColor(250, 20), QColor(Qt::red));
  EXPECT_EQ(image_.pixelColor(280, 60), QColor(Qt::blue));
}

TEST_F(CurveStrokeTest, DrawsAnUprightLineWhole) {
  Paint({{100, 90}, {100, 10}});
  for (const int y : {11, 50, 89}) EXPECT_TRUE(IsInked(100, y)) << y;
}

}  // namespace
}  // namespace lignara
