#include "desktop/session/printed_shapes.h"

#include <QStringList>

#include "desktop/kit/text.h"

namespace lignara {
namespace {

QString Figure(double value) { return QString::number(value, 'g', 10); }

struct ShapeLine {
  QString operator()(const LineShape& line) const {
    return QStringList({"line", Figure(line.x1), Figure(line.y1), Figure(line.x2), Figure(line.y2),
                        ColourName(line.colour)})
        .join(' ');
  }
  QString operator()(const CircleShape& circle) const {
    return QStringList({"circle", Figure(circle.x), Figure(circle.y), Figure(circle.radius),
                        ColourName(circle.colour)})
        .join(' ');
  }
  QString operator()(const TextShape& text) const {
    return QStringList({"text", Figure(text.x), Figure(text.y), Quoted(ToQt(text.text)),
                        ColourName(text.colour)})
        .join(' ');
  }
};

}  // namespace

void PrintShapes(const Drawing& drawing, const ScriptOutput& output) {
  for (const Shape& shape : drawing.shapes) output(std::visit(ShapeLine(), shape));
}

}  // namespace lignara
