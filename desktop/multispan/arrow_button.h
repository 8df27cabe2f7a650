#pragma once

class QPushButton;
class QString;

namespace lignara {

/// Makes a button one of a pair "<" and ">" that walks through spans or loads. `walk` tells what it
/// does, such as "Next span": as a tip, and to screen readers.
void MakeArrow(QPushButton* button, const QString& walk);

}  // namespace lignara
