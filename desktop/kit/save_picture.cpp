#include "desktop/kit/save_picture.h"

#include <QImage>
#include <QPainter>

#include "desktop/kit/desktop_platform.h"
#include "desktop/kit/drawing_painter.h"
#include "desktop/kit/legend.h"
#include "desktop/kit/picture_widget.h"
#include "desktop/kit/text.h"

namespace lignara {
namespace {

/// Pixels of a picture in a file for each on the screen.
constexpr double kFileScale = 2.0;

}  // namespace

bool SavePng(Picture& picture, const QString& path) {
  const Drawing& drawing = picture.drawing();
  const std::vector<LegendEntry>& entries = drawing.scene.legend;
  const QRect area = picture.rect();
  const double legend = LegendHeight(entries, picture.fontMetrics().height());
  QImage image((QSizeF(area.size()) + QSizeF(0, legend)).toSize() * kFileScale,
               QImage::Format_RGB32);
  image.setDevicePixelRatio(kFileScale);
  image.fill(picture.palette().color(QPalette::Base));
  QPainter painter(&image);
  painter.setFont(picture.font());
  painter.save();
  painter.setClipRect(area);
  PaintDrawing(painter, picture.view(), area, drawing, picture.palette());
  painter.restore();
  PaintLegend(painter, QRectF(0, area.height(), area.width(), legend), entries, picture.palette());
  painter.end();
  return image.save(path, "PNG");
}

void LetUserSave(Picture* picture, DesktopPlatform& platform) {
  picture->OnSave([picture, &platform] {
    const auto path = platform.ChooseSaveFile("PNG(*.png)|*.png|");
    if (!path) return;
    if (SavePng(*picture, ToQt(*path))) {
      platform.ShowNote("Saved to " + *path);
    } else {
      platform.ShowMessage({"Cannot write " + *path});
    }
  });
}

}  // namespace lignara
