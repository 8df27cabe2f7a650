#pragma once

class QWidget;

namespace lignara {

/// Greys the text of a result, with a tip that says why; takes it back again.
void SetOutOfDate(QWidget* result, bool outOfDate);

}  // namespace lignara
