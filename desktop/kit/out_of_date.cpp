#include "desktop/kit/out_of_date.h"

#include <QApplication>
#include <QPalette>
#include <QWidget>

namespace lignara {
namespace {

constexpr const char* kOutOfDateTip = "Out of date: the input has changed since";

}  // namespace

void SetOutOfDate(QWidget* result, bool outOfDate) {
  if (result->property("outOfDate").toBool() == outOfDate) return;
  result->setProperty("outOfDate", outOfDate);
  const QPalette plain = QApplication::palette(result);
  QPalette palette = result->palette();
  for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText}) {
    palette.setColor(role, plain.color(outOfDate ? QPalette::PlaceholderText : role));
  }
  result->setPalette(palette);
  result->setToolTip(outOfDate ? kOutOfDateTip : QString());
}

}  // namespace lignara
